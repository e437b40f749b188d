#!/usr/bin/env python3
"""Checks that a folder includes the folders that its link line names and no other, and that the
folders stand on each other without a circle.

    check_rooms.py [FOLDER]     FOLDER: the project's (default: the one that this script is in)

Exit status 0: all keep to it; 1: some do not, each named on standard error.
"""

import graphlib
import pathlib
import re
import sys

ROOMS = ("numbers", "calc", "units", "app", "report", "ui")
PROJECT = (*ROOMS, "bench", "tests")
LINK_LINE = re.compile(r"target_link_libraries\((tarvix\w*)([^)]*)\)")
INCLUDE = re.compile(r'^\s*#\s*include\s+["<]([^">]+)/[^">/]+[">]', re.MULTILINE)


def links_of(project):
    """For each folder with a target, the folders that its link line names."""
    lines = {}
    for lists in sorted(project.glob("*/**/CMakeLists.txt")):
        folder = lists.parent.relative_to(project).as_posix()
        if folder.split("/")[0] in ROOMS:
            target, names = LINK_LINE.search(lists.read_text(encoding="utf-8")).groups()
            lines[target] = (folder, re.findall(r"tarvix_\w+", names))
    return {folder: {lines[name][0] for name in names if name in lines}
            for folder, names in lines.values()}


def faults(project, links):
    for folder, linked in links.items():
        unused = set(linked)
        for file in sorted((project / folder).glob("*.[ch]*")):
            for included in INCLUDE.findall(file.read_text(encoding="utf-8")):
                unused.discard(included)
                if included.split("/")[0] in PROJECT and included != folder and included not in linked:
                    yield f"{folder}/{file.name} includes {included}/, which {folder} does not link"
        for name in sorted(unused):
            yield f"{folder} links {name}/, of which it includes nothing"
    try:
        graphlib.TopologicalSorter(links).prepare()
    except graphlib.CycleError as circle:
        yield "a circle: " + " - ".join(circle.args[1])


def main():
    here = pathlib.Path(__file__).resolve()
    project = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else here.parents[2]
    links = links_of(project)
    found = list(faults(project, links))
    for fault in found:
        print(f"check_rooms.py: {fault}", file=sys.stderr)
    print(f"{len(links)} folders, {len(found)} faults")
    return 1 if found or len(links) < 10 else 0


if __name__ == "__main__":
    sys.exit(main())
