#!/usr/bin/env python3
"""Makes the figures of the documents from the output of document_data.

    make-figures.py PROGRAM            writes the documents and the plots
    make-figures.py PROGRAM --check    changes nothing; fails when one is not what it would make
    make-figures.py PROGRAM --runs N   with N random runs for each fluid and mode, to the screen

PROGRAM is the built document_data (target document_data, in bin of the build folder). Between the
marks "<!-- made: NAME -->" and "<!-- end -->" (in the manual page, comments of its own kind) stands
what is made here; the rest of a document is written by hand and may not hold a percentage.
"""

import argparse
import pathlib
import sys

sys.dont_write_bytecode = True

from figures import accuracy, costs, plots, text, validation  # noqa: E402
from figures.data import Data  # noqa: E402

PROJECT = pathlib.Path(__file__).resolve().parent.parent
DOCS = PROJECT / "docs"


def make(data):
    """The wanted text of each file."""
    documents = {
        DOCS / "accuracy.md": accuracy.blocks(data),
        DOCS / "validation.md": validation.blocks(data),
        DOCS / "method.md": costs.method_blocks(data),
        PROJECT / "README.md": costs.readme_blocks(data),
        PROJECT / "packaging/linux/tarvix.1": costs.manual_blocks(data),
    }
    wanted = {path: text.fill(path, blocks) for path, blocks in documents.items()}
    wanted[DOCS / "accuracy.svg"] = plots.accuracy(data)
    wanted[DOCS / "steam.svg"] = plots.steam(data)
    wanted[DOCS / "convergence.svg"] = plots.convergence(data)
    return wanted


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program", help="the built document_data")
    parser.add_argument("--check", action="store_true", help="compare only, change nothing")
    parser.add_argument("--runs", type=int, help="print the random runs, that many, and end")
    arguments = parser.parse_args()

    data = Data(arguments.program, arguments.runs)
    if arguments.runs:
        print(validation.random_runs(data))
        return 0
    wanted = make(data)
    stale = [path for path, content in wanted.items()
             if not path.exists() or path.read_text(encoding="utf-8") != content]
    if not arguments.check:
        for path in stale:
            path.write_text(wanted[path], encoding="utf-8")
            print(f"wrote {path.relative_to(PROJECT)}")
    else:
        for path in stale:
            print(f"{path.relative_to(PROJECT)} is not what make-figures.py makes; run it and "
                  "commit the result", file=sys.stderr)
    faults = []
    for path in wanted:
        if path.suffix == ".md" and path.parent == DOCS:
            faults += text.typed_percentages(path.name, wanted[path])
            faults += text.untrue_quotes(path.name, wanted[path], PROJECT.glob("ui/**/about_box.cpp"))
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults or (stale and arguments.check) else 0


if __name__ == "__main__":
    sys.exit(main())
