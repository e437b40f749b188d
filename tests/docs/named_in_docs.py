#!/usr/bin/env python3
"""What the program says and where its limits lie stands in the documents, and what the documents
say of messages and limits is the program's, so that neither changes without the other.

Messages are the texts of the calculator, of the window's handlers and of the boxes around them that
read as sentences; a message put together from pieces is looked for piece by piece, and the whole ones
that the documents list are those that the scenarios see. Limits are the named constants of the
calculator and of the printing; limit_phrases.py tells the words in which the documents name each. The
words must be there, with the program's number wherever they stand; and where the documents list
limits, no number stands beside such words. Units are compared row by row in method_tables_test.cpp.
"""

import json
import re
import struct
import sys
from pathlib import Path

from limit_phrases import LIMIT_LISTS, NO_LIMITS, PHRASES

ROOT = Path(__file__).resolve().parents[2]
FOLDERS = ("app/dispatch", "app/shared", "app/sheet", "calc", "numbers", "report/printer", "ui/handlers",
           "units")
# Of the other folders, which hold captions, what speaks in boxes and notes.
FILES = ("report/page/report_page.h", "ui/windows/frm_cust_info.cpp", "ui/windows/logo_picture.cpp")
DOCUMENTS = ("README.md", "docs/method.md", "docs/accuracy.md", "packaging/linux/tarvix.1")

# Internal errors, which no user meets, and the box that shows them.
INTERNAL = (
    "Fatal Error Encountered:", "This Program will now terminate.", "Calculation type",
    "Mass or Volumetric flow type not specified.", "No variable to calculate has been selected.",
    "Orifice flow type not specified.", "Orifice type not specified", "Temperature conversion unit",
    "Unrecognized pipe ID unit", "not recognized.", "not found.",
    "intermediate results must have the precision of their type",
)
# Names of fonts and of the program, what buttons and fields are called.
CAPTIONS = ("Brindle Tarvix 3.0", "Nimbus Mono PS", "Print to File", "Customer, second line",
            "Prints the report with these lines", "Empties the three lines",
            "Closes the window without printing")
# Schedules of pipes, which are a table; it is compared with its copy in tests/data.
SCHEDULE = re.compile(r"(Sch|STD|XS)\b")
# The line ends, tabs and numbers of the product's boxes are its own matter.
SENTENCE = re.compile(r"[A-Za-z].* .* |[a-z]\.$|^[A-Z].*:")

NUMBER = r"\d[\d,]*(?:\.\d+)?"


def sources():
    return [path for folder in FOLDERS for path in sorted((ROOT / folder).glob("*.[ch]*"))
            if path.suffix in (".cpp", ".h")] + [ROOT / file for file in FILES]


def plain(text):
    """Without marks, breaks and emphasis of documents."""
    return re.sub(r"\s+", " ", text.replace("\\-", "-").replace("\\(aq", "'").replace("*", ""))


def literals(path):
    """The texts of a source, those that stand one after the other as one."""
    code = re.sub(r"^\s*#.*$|(?<!:)//.*$", "", path.read_text(), flags=re.M)
    for match in re.finditer(r'"(?:[^"\\\n]|\\.)*"(?:\s*"(?:[^"\\\n]|\\.)*")*', code):
        text = re.sub(r'(?<!\\)"\s*"', "", match.group())[1:-1].replace('\\"', '"')
        yield from (piece.strip() for piece in re.split(r"\\[nrt]|%[1-9]", text))


def messages():
    return {(text, path.relative_to(ROOT).as_posix()) for path in sources()
            for text in literals(path)
            if SENTENCE.search(text) and not SCHEDULE.match(text)
            and text not in CAPTIONS and not any(internal in text for internal in INTERNAL)}


def message_faults(text, method):
    faults = [f"{path}: no document names the message \"{message}\""
              for message, path in sorted(messages()) if plain(message) not in text]
    listed = re.search(r"<!-- figures: messages -->\n(.*?)\n\n", method, re.S).group(1)
    rows = re.findall(r"^\| `(.*?)` \|", listed, re.M)
    seen = messages_seen()
    faults += [f"docs/method.md: no scenario sees \"{row}\"" for row in rows
               if not any(pattern_of(row).fullmatch(message) for message in seen)]
    faults += [f"docs/method.md does not list the message \"{message}\"" for message in seen
               if message not in text
               and not any(pattern_of(row).fullmatch(message) for row in rows)]
    return faults


def pattern_of(row):
    """A message of the documents; NAME, LIMIT and the like stand for what the program puts there."""
    name = r"(?!The |Fluid data)[A-Z]"
    places = {"NAME": name + "[^,]*", "NAMES": name + ".*", "gauge": "(?:gauge|absolute)",
              "LIMIT": r"-?\d[\d.,\s\u2019\u066c]*", "UNIT": "[A-Za-z][^()]*"}
    return re.compile("".join(places.get(word, re.escape(word))
                              for word in re.split(r"(\b(?:NAMES?|LIMIT|UNIT|gauge)\b)", row)))


def messages_seen():
    """What the line at the bottom says in the scenarios, which are played on the program."""
    return {json.loads(caption) for path in sorted((ROOT / "tests/scenarios").rglob("*.script"))
            for caption in re.findall(r"^#= lblMsg\.caption (\"..*\")$", path.read_text(), re.M)}


def limits():
    """The named constants: name, type, value."""
    for path in sources():
        yield from ((name, kind, float(number.replace("'", ""))) for kind, name, number in
                    re.findall(r"constexpr (float|double|int|qint64) (k\w+) = (-?[\d.']+(?:e-?\d+)?)F?;",
                               path.read_text()) if name not in NO_LIMITS)
    rows = re.findall(r"\{(\d+), [\d.]+F?\}", (ROOT / "calc/steam_table.cpp").read_text())
    yield "the steam table's last row", "int", float(rows[-1])
    yield "the steam table's rows", "int", float(len(rows))


def same(number, kind, value):
    """A single may also be written as what becomes of it, 1,000,000,000 for 999999999.0F."""
    return number == value or kind == "float" and number == struct.unpack(
        "f", struct.pack("f", value))[0]


def limit_faults(text, method):
    faults, named = [], []
    known = set()
    for name, kind, value in limits():
        known.add(name)
        for phrase in PHRASES.get(name, ()):
            parts = 100 if "# %" in phrase else 1
            found = list(re.finditer(phrase.replace("#", f"({NUMBER})(?![\\d%])"), text))
            named += [match.group() for match in found]
            if not found:
                faults.append(f"{name}: no document says \"{phrase}\"")
            faults += [f"{name} is {value:.12g}, and a document says \"{match.group()}\""
                       for match in found
                       if not same(float(match.group(1).replace(",", "")) / parts, kind, value)]
        if name not in PHRASES:
            faults.append(f"{name}, {value:.12g}: limit_phrases.py does not tell who names it")
    faults += [f"limit_phrases.py: the program has no {name}"
               for name in (PHRASES.keys() | NO_LIMITS) - known
               if name in PHRASES or not any(name in path.read_text() for path in sources())]
    for start, end in LIMIT_LISTS:
        place = plain(re.search(re.escape(start) + r"(.*?)" + end, method, re.S).group(1))
        for phrase in sorted(named, key=len, reverse=True):
            place = place.replace(phrase, "")
        faults += [f"docs/method.md, {start}: no limit of the program is {number}"
                   for number in re.findall(rf"(?<![\w.-]){NUMBER}(?!\w)", place)
                   if float(number.replace(",", "")) not in (0, 1)]
    return faults


def pairs(pattern, text):
    return {tuple(float(number) for number in pair) for pair in re.findall(pattern, text)}


def scale_faults(text):
    """The bands in which an iteration ends, and the decimals of a result by its size."""
    code = "".join(path.read_text() for path in sources())
    scale = re.search(r"kResultScale\[\] = \{(.*?)\};", code, re.S).group(1)
    compared = (
        ("bands", pairs(r"\bs\}? > (0\.9+)F? && (?:double\{)?s\}? < (1\.0+1)F?", code),
         pairs(r"(0\.9+) < s < (1\.0+1)", text)),
        ("decimals", pairs(r"\{([\d.]+)F, (\d)\}", scale),
         pairs(r"\| ([\d.]+) (?:and more|to below [\d.]+) \| (\d) \|", text)))
    return [f"the {what} of the program are {sorted(program)}, of the documents {sorted(documents)}"
            for what, program, documents in compared if program != documents]


def main():
    method = (ROOT / "docs/method.md").read_text()
    text = plain(" ".join((ROOT / name).read_text() for name in DOCUMENTS))
    faults = message_faults(text, method) + limit_faults(text, method) + scale_faults(text)
    print("\n".join(faults) or f"{len(messages())} messages and {len(list(limits()))} limits are "
          "named")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
