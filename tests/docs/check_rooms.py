#!/usr/bin/env python3
"""Checks every include of the program against the table of rooms in docs/architecture.md.

    check_rooms.py [FOLDER]     FOLDER: the project's (default: the one that this script is in)

Exit status 0: all keep to it; 1: some do not, each named on standard error.
"""

import pathlib
import re
import sys

MARK = "<!-- figures: rooms -->\n"
CORE, WINDOW = "core half", "window half"
INCLUDE = re.compile(r'^\s*#\s*include\s+(?:"([^"]+)"|<(Q[A-Za-z/]+)>)', re.MULTILINE)


def read_rooms(document):
    """For each room of the table, what it may include: a list, "Qt" and "all" among it."""
    if document.count(MARK) != 1:
        sys.exit("check_rooms.py: not exactly one table of rooms")
    table = document.split(MARK)[1].split("\n\n")[0].splitlines()[2:]
    rooms = {}
    for line in table:
        room, _, allowed = (cell.strip() for cell in line.strip("|").split("|"))
        rooms[room.replace("`", "")] = [a.strip().replace("`", "") for a in allowed.split(",")]
    return rooms


class Project:
    def __init__(self, folder):
        self.folder = folder
        self.rooms = read_rooms((folder / "docs/architecture.md").read_text(encoding="utf-8"))
        self.folders = sorted({room.split("/")[0] for room in self.rooms})
        self.core_sources = {name: self._core_sources(name) for name in self.folders}

    def _core_sources(self, name):
        text = (self.folder / name / "CMakeLists.txt").read_text(encoding="utf-8")
        core = re.search(r"target_sources\(tarvix_core PRIVATE([^)]*)\)", text)
        return set(re.findall(r"(\w+)\.cpp", core[1])) if core else set()

    def files(self):
        for name in self.folders:
            for path in sorted((self.folder / name).glob("*.[ch]*")):
                if path.suffix in (".h", ".cpp"):
                    yield f"{name}/{path.name}"

    def is_core(self, file):
        """Listed in the folder's own CMakeLists.txt, or a header without a source and without Qt."""
        name, stem = file.split("/")[0], pathlib.PurePath(file).stem
        if stem in self.core_sources[name]:
            return True
        path = self.folder / file
        return (path.suffix == ".h" and not path.with_suffix(".cpp").exists() and
                all(not qt and self.is_core_text(quoted) for quoted, qt in self.includes(file)))

    def is_core_text(self, include):
        name = include.split("/")[0]
        return name in self.folders and self.is_core(include)

    def includes(self, file):
        return INCLUDE.findall((self.folder / file).read_text(encoding="utf-8"))

    def room_of(self, file):
        name = file.split("/")[0]
        if f"{name}/" in self.rooms:
            return f"{name}/"
        return f"{name}/, {CORE if self.is_core(file) else WINDOW}"

    def may_include(self, room, include):
        for allowed in self.rooms[room]:
            place = allowed.split(" ")[0]
            if allowed == "all" or include == place:
                return True
            if (place.endswith("/") and include.startswith(place) and
                    (not allowed.endswith(CORE) or self.is_core(include))):
                return True
        return False

    def faults(self):
        for file in self.files():
            room = self.room_of(file)
            if room not in self.rooms:
                yield f"{file}: its room ({room}) is not in the table"
                continue
            for quoted, qt in self.includes(file):
                if qt and "Qt" not in self.rooms[room]:
                    yield f"{file}: {room} may not include <{qt}>"
                elif quoted and not self.may_include(room, quoted):
                    yield f"{file}: {room} may not include {quoted}"


def main():
    here = pathlib.Path(__file__).resolve()
    project = Project(pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else here.parents[2])
    checked = len(list(project.files()))
    faults = list(project.faults())
    for fault in faults:
        print(f"check_rooms.py: {fault}", file=sys.stderr)
    print(f"{checked} files, {len(faults)} faults")
    return 1 if faults or not checked else 0


if __name__ == "__main__":
    sys.exit(main())
