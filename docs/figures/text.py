"""Numbers and tables as text, and their places in the documents."""

import re
import sys
import textwrap


def signed(value, decimals=2):
    """With a sign; none for what rounds to zero."""
    text = f"{value:+.{decimals}f}"
    return text.lstrip("+-") if float(text) == 0 else text


def percent(value, decimals=2):
    return signed(value, decimals) + "%"


def plain(value, decimals=2):
    """A size, without a sign, in percent."""
    return f"{abs(value):.{decimals}f}%"


def tiny(value):
    """A share such as 2.9e-7."""
    if value == 0:
        return "none"
    digits, exponent = f"{value:.1e}".split("e")
    return f"{digits}e{int(exponent)}"


def power(reynolds):
    exponent = len(f"{reynolds:.0f}") - 1
    return f"{reynolds / 10 ** exponent:.0f}e{exponent}"


def rounded(reynolds):
    """A Reynolds number in two digits: 8.6e4."""
    digits, exponent = f"{reynolds:.1e}".split("e")
    return f"{digits}e{int(exponent)}"


def worst(values):
    """The value farthest from zero."""
    return max(values, key=abs)


def row(cells):
    return "| " + " | ".join(cells) + " |"


def table(head, rows):
    return "\n".join([row(head), row(["---"] * len(head)), *(row(r) for r in rows)])


def wrapped(content, width=125):
    """Lines that are no part of a table, broken where a line of a document ends."""
    lines = []
    for line in content.splitlines():
        if line.startswith("|") or not line:
            lines.append(line)
        else:
            indent = "  " if line.startswith("- ") else ""
            lines += textwrap.wrap(line, width, subsequent_indent=indent, break_long_words=False,
                                   break_on_hyphens=False)
    return "\n".join(lines)


def fill(path, blocks):
    """The document with the text between the marks of each block replaced."""
    document = path.read_text(encoding="utf-8")
    manual = path.suffix == ".1"
    for name, content in blocks.items():
        begin, end = ((f'.\\" made: {name}\n', '.\\" end\n') if manual else
                      (f"<!-- made: {name} -->\n", "<!-- end -->"))
        marks = re.compile(f"({re.escape(begin)}).*?({re.escape(end)})", re.DOTALL)
        inner = f"{content}\n" if manual else f"\n{wrapped(content, 100 if path.name == 'README.md' else 125)}\n\n"
        document, count = marks.subn(lambda m, t=inner: m[1] + t + m[2], document)
        if count != 1:
            sys.exit(f"make-figures.py: {path.name} has no place (or several) for: {name}")
    left = set(re.findall(r'(?:<!--|\.\\") made: ([^\n]*?)(?: -->)?\n', document)) - set(blocks)
    if left:
        sys.exit(f"make-figures.py: {path.name} has places that nothing is made for: {left}")
    return document


def typed_percentages(name, document):
    """Percentages that are neither made nor in a table that a test reads, nor quoted."""
    rest = re.sub(r"<!-- made: .*?<!-- end -->", lambda m: "\n" * m[0].count("\n"), document,
                  flags=re.DOTALL)
    rest = re.sub(r"<!-- figures: .*?\n\n", lambda m: "\n" * m[0].count("\n"), rest,
                  flags=re.DOTALL)
    for number, line in enumerate(rest.splitlines(), 1):
        if re.search(r"\d ?(%|percent)", line) and not line.startswith(">"):
            yield f"docs/{name}: a typed percentage, made and tested by nothing: {line.strip()}"


def untrue_quotes(name, document, sources):
    """Quotations ("> ...") that are not among the texts of these sources."""
    texts = " ".join(" ".join(re.findall(r'"([^"]*)"', source.read_text(encoding="utf-8")))
                     for source in sources)
    known = " ".join(texts.split())
    for quote in re.findall(r"(?:^>.*\n)+", document, flags=re.MULTILINE):
        words = " ".join(quote.replace(">", " ").split())
        if words not in known:
            yield f"docs/{name}: quotes what the About window does not say: {words}"
