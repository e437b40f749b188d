#!/usr/bin/env python3
"""What the program says and where its limits lie stands in the documents, and the messages that the
documents list are the program's: a new message or limit that nobody describes is a fault.

Messages are the texts of the calculator and of the window's handlers that read as sentences; a
message put together from pieces is looked for piece by piece. Limits are named constants of the
calculator. Units are compared row by row in method_tables_test.cpp.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
MESSAGE_FOLDERS = ("app/dispatch", "app/shared", "app/sheet", "calc", "ui/handlers", "units")
LIMIT_FOLDERS = ("app/sheet", "calc")
DOCUMENTS = ("README.md", "docs/method.md", "docs/accuracy.md", "packaging/linux/tarvix.1")

# Internal errors, which no user meets, and the box that shows them.
INTERNAL = (
    "Fatal Error Encountered:", "This Program will now terminate.", "Calculation type",
    "Mass or Volumetric flow type not specified.", "No variable to calculate has been selected.",
    "Orifice flow type not specified.", "Orifice type not specified", "Temperature conversion unit",
    "Unrecognized pipe ID unit", "not recognized.", "not found.",
)
# Schedules of pipes, which are a table; it is compared with its copy in tests/data.
SCHEDULE = re.compile(r"(Sch|STD|XS)\b")
# The line ends, tabs and numbers of the product's boxes are its own matter.
SENTENCE = re.compile(r"[A-Za-z].* .* |[a-z]\.$|^[A-Z].*:")


def sources(folders):
    return [path for folder in folders for path in sorted((ROOT / folder).glob("*.[ch]*"))
            if path.suffix in (".cpp", ".h")]


def plain(text):
    """Without marks, breaks and emphasis of documents."""
    return re.sub(r"\s+", " ", text.replace("\\-", "-").replace("\\(aq", "'").replace("*", ""))


def literals(path):
    """The texts of a source, those that stand one after the other as one."""
    code = re.sub(r"^\s*#.*$|(?<!:)//.*$", "", path.read_text(), flags=re.M)
    for match in re.finditer(r'"(?:[^"\\\n]|\\.)*"(?:\s*"(?:[^"\\\n]|\\.)*")*', code):
        text = re.sub(r'"\s*"', "", match.group())[1:-1]
        yield from (piece.strip() for piece in re.split(r"\\[nrt]", text))


def messages():
    return {(text, path.relative_to(ROOT).as_posix()) for path in sources(MESSAGE_FOLDERS)
            for text in literals(path)
            if SENTENCE.search(text) and not SCHEDULE.match(text)
            and not any(internal in text for internal in INTERNAL)}


def limits():
    """Named constants: the number as documents write it, the name, the file."""
    for path in sources(LIMIT_FOLDERS):
        for name, number in re.findall(
                r"constexpr (?:float|double|int) (k\w+) = (-?[\d.']+(?:e-?\d+)?)F?;",
                path.read_text()):
            yield name, number.replace("'", ""), path.relative_to(ROOT).as_posix()


def main():
    text = plain(" ".join((ROOT / name).read_text() for name in DOCUMENTS))
    numbers = {float(number.replace(",", "")) for number in
               re.findall(r"(?<![\w.])-?\d[\d,]*(?:\.\d+)?(?!\w)", text)}
    faults = [f"{path}: no document names the message \"{message}\""
              for message, path in sorted(messages()) if plain(message) not in text]
    faults += [f"{path}: no document names the limit {name}, {number}"
               for name, number, path in limits()
               if not name.startswith(("kMessage", "kData")) and float(number) not in numbers]
    said = " ".join(text for path in sources(MESSAGE_FOLDERS) for text in literals(path))
    listed = re.search(r"<!-- figures: messages -->\n(.*?)\n\n",
                       (ROOT / "docs/method.md").read_text(), re.S).group(1)
    for message in re.findall(r"^\| `(.*?)` \|", listed, re.M):
        # NAME, LIMIT and the like stand for what the program puts there.
        for piece in re.split(r"\b[A-Z]{4,}\b|The Operating Density \[.*?\]", message):
            if len(piece.strip()) > 3 and piece.strip() not in said:
                faults.append(f"docs/method.md: the program does not say \"{piece.strip()}\"")
    print("\n".join(faults) or f"{len(messages())} messages and {len(list(limits()))} limits are "
          "named")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
