"""The ways in which mutate.py spoils a source: constants, comparisons, operators, texts, choices of
enumerators, precision, and the order and presence of statements."""

import dataclasses
import re
import struct


@dataclasses.dataclass(frozen=True)
class Mutant:
    file: str
    start: int
    end: int
    replacement: str
    context: str  # the line it stands in
    swaps_statements: bool = False

    def apply(self, text):
        return text[:self.start] + self.replacement + text[self.end:]

    def key(self):
        """What names a mutant independently of line numbers."""
        return f"{self.file}: {self.context}  ->  {self.replacement_line()}"

    def replacement_line(self):
        return " ".join(self.replacement.split()) or "(nothing)"


# A text, a character, a comment or a line for the preprocessor; then code.
_TOKEN = re.compile(r"""
    (?P<skip>//[^\n]*|/\*.*?\*/|^[ \t]*\#[^\n]*)
  | (?P<string>"(?:[^"\\\n]|\\.)*")
  | (?P<char>'(?:[^'\\\n]|\\.)')
  | (?P<number>\b\d[\d']*(?:\.\d*)?(?:[eE][+-]?\d+)?[fFuUlL]*\b|\b0x[0-9A-Fa-f]+\b)
  | (?P<arrow>->|::|<<|>>|\+\+|--|[+*/-]=)
  | (?P<compare><=|>=|==|!=|(?<=\ )[<>](?=\ ))
  | (?P<logic>&&|\|\|)
  | (?P<binary>(?<=\ )[-+*/](?=\ ))
  | (?P<word>\b[A-Za-z_]\w*\b)
""", re.X | re.M | re.S)

_COMPARISONS = {"<": ["<=", ">"], "<=": ["<", ">="], ">": [">=", "<"], ">=": [">", "<="],
                "==": ["!="], "!=": ["=="]}
_BINARY = {"+": "-", "-": "+", "*": "/", "/": "*"}
_WORDS = {"true": "false", "false": "true"}

# Enumerators that could be taken for one another.
_ENUMERATORS = [
    ("SolveFor::", ["Beta", "DiffPressure", "FlowRate"]),
    ("FlowKind::", ["Volume", "Mass"]),
    ("CompCorrection::", ["None", "Density", "Zf"]),
    ("Grouping::", ["On", "Off"]),
    ("Negatives::", ["MinusSign", "Parentheses"]),
    ("Halves::", ["AwayFromZero", "ToEven"]),
    ("SteamRange::", ["BelowTable", "InTable", "AboveTable"]),
    ("CompressibilityWarning::", ["None", "May", "Will"]),
    ("PerTime::", ["Minute", "Hour"]),
    ("Rule::", ["Positive", "OperatingPressure", "AnyNumber"]),
    ("BoxStyle::", ["Critical", "Exclamation", "Information"]),
    ("BoxButtons::", ["OkCancel", "Ok"]),
    ("Field::", ["Flow", "DeltaP", "Beta", "Pf", "Tf", "Density", "SGb", "SGf", "GasSGb", "Zf"]),
]


def _single(text):
    return struct.pack("f", float(text))


def _changed_number(text):
    """The number with its last digit changed, or with a further digit when it has few."""
    if text.startswith("0x"):
        return "0x" + format(int(text, 16) ^ 1, "X")
    match = re.fullmatch(r"([\d.']+)((?:[eE][+-]?\d+)?)([fFuUlL]*)", text)
    digits, exponent, suffix = match.groups()
    if "." not in digits and not exponent:
        return str(int(digits.replace("'", "")) + 1) + suffix
    is_single = suffix.lower().startswith("f")
    if "." in digits and len(digits.strip("0.").replace(".", "")) < 3:
        return digits + "1" + exponent + suffix
    # From the right, the first digit whose change a single shows.
    for i in reversed([i for i, c in enumerate(digits) if c.isdigit()]):
        new = digits[:i] + ("8" if digits[i] == "9" else str(int(digits[i]) + 1)) + digits[i + 1:]
        if not is_single or _single(new + exponent) != _single(digits + exponent):
            return new + exponent + suffix
    return None


def _changed_text(text):
    """The text with one letter in the middle changed, or else its last digit, or one more."""
    inside = text[1:-1]
    letters = [i for i, c in enumerate(inside) if c.isalpha() and inside[max(i - 1, 0)] != "\\"]
    if letters:
        i = letters[len(letters) // 2]
        return '"' + inside[:i] + inside[i].swapcase() + inside[i + 1:] + '"'
    if inside and inside[-1].isdigit():
        return '"' + inside[:-1] + str((int(inside[-1]) + 1) % 10) + '"'
    return '"' + inside + 'x"'


def _token_mutants(text):
    for token in _TOKEN.finditer(text):
        kind, found = token.lastgroup, token.group()
        start, end = token.span()
        if kind == "number":
            new = _changed_number(found)
            if new:
                yield start, end, new
        elif kind == "string":
            yield start, end, _changed_text(found)
        elif kind == "char" and found not in ("'\\0'",):
            yield start, end, "'x'" if found != "'x'" else "'y'"
        elif kind == "compare":
            for new in _COMPARISONS[found]:
                yield start, end, new
        elif kind == "logic":
            yield start, end, "||" if found == "&&" else "&&"
        elif kind == "binary":
            yield start, end, _BINARY[found]
        elif kind == "arrow" and found in ("++", "--"):
            yield start, end, "--" if found == "++" else "++"
        elif kind == "arrow" and found in ("+=", "-="):
            yield start, end, "-=" if found == "+=" else "+="
        elif kind == "word" and found in _WORDS:
            yield start, end, _WORDS[found]


def _enumerator_mutants(text):
    for prefix, names in _ENUMERATORS:
        for match in re.finditer(r"\b" + prefix + r"(" + "|".join(names) + r")\b", text):
            others = [n for n in names if n != match.group(1)]
            yield match.start(1), match.end(1), others[match.start() % len(others)]


def _negation_mutants(text):
    for match in re.finditer(r"(?<=[( ])!(?=[A-Za-z(*])", text):
        yield match.start(), match.end(), ""


def _precision_mutants(text):
    """A widening to double left out: single precision where double is asked for."""
    for match in re.finditer(r"\bdouble\{([^{}]+)\}", text):
        yield match.start(), match.end(), f"({match.group(1)})"


_STATEMENT = re.compile(r"^(?P<indent> +)(?P<statement>[A-Za-z_][\w.:\[\]>*-]*"
                        r"(?: [-+*/]?= [^;{}\n]+|\([^;{}\n]*\));)\n", re.M)


_CALL = re.compile(r"(?P<receiver>[\w.>\[\]*-]*(?:->|\.))?(?P<function>\w+)\((?P<arguments>.*)\);")
_ASSIGNMENT = re.compile(r"(?P<target>[\w.>\[\]*-]+) = (?P<value>.*);")


def _are_independent(first, second):
    """Whether the order of two statements in a row shows nowhere, as can be told from their form
    alone: the same call for two subjects, or two assignments that do not read one another."""
    assignments = [_ASSIGNMENT.fullmatch(statement) for statement in (first, second)]
    if all(assignments):
        (target, value), (other, other_value) = ((a["target"], a["value"]) for a in assignments)
        return target != other and target not in other_value and other not in value
    calls = [_CALL.fullmatch(statement) for statement in (first, second)]
    if not all(calls) or calls[0]["function"] != calls[1]["function"]:
        return False
    subjects = [call["receiver"] or call["arguments"] for call in calls]
    return subjects[0] != subjects[1] and bool(calls[0]["receiver"]) == bool(calls[1]["receiver"])


def _statement_mutants(text):
    """Assignments and calls of one line left out, and two in a row swapped."""
    previous = None
    for match in _STATEMENT.finditer(text):
        if re.match(r"(return|using|break|continue)\b", match.group("statement")):
            previous = None
            continue
        yield match.start("statement"), match.end("statement"), ""
        if previous and previous.end() == match.start() and \
                previous.group("indent") == match.group("indent") and \
                not _are_independent(previous.group("statement"), match.group("statement")):
            yield (previous.start("statement"), match.end("statement"),
                   f"{match.group('statement')}\n{match.group('indent')}"
                   f"{previous.group('statement')}")
        previous = match


def _row_mutants(text):
    """Two rows of a table in a row swapped."""
    lines = list(re.finditer(r"^ +(\{[^\n]*\},)[^\n]*\n", text, re.M))
    for first, second in zip(lines, lines[1:]):
        if first.end() == second.start() and first.group(1) != second.group(1):
            yield (first.start(1), second.end(1),
                   f"{second.group(1)}\n    {first.group(1)}")


# Whoever makes such a struct sets its members; what they start with shows nowhere.
_MEMBER_DEFAULT = re.compile(r"^    (?:float|double|int|bool|std::\w+|\w+) \w+ = [^;{}\n]+;", re.M)


def mutants_of(name, text):
    """All mutants of a file, each once."""
    skipped = [m.span() for m in _TOKEN.finditer(text) if m.lastgroup == "skip"]
    if name.endswith(".h"):
        skipped += [m.span() for m in _MEMBER_DEFAULT.finditer(text)]
    found = {}
    for source in (_token_mutants, _enumerator_mutants, _negation_mutants, _precision_mutants,
                   _statement_mutants, _row_mutants):
        for start, end, replacement in source(text):
            if any(a <= start < b for a, b in skipped) or text[start:end] == replacement:
                continue
            line_start = text.rfind("\n", 0, start) + 1
            line_end = text.find("\n", start)
            line = " ".join(text[line_start:line_end].split())
            column = start - line_start
            swaps = source is _statement_mutants and replacement != ""
            found[start, end, replacement] = Mutant(name, start, end, replacement,
                                                    f"{line} [{column}]", swaps)
    return list(found.values())
