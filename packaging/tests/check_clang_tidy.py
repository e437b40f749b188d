#!/usr/bin/env python3
"""Runs clang-tidy over the sources that have changed since they were last found clean.

Usage: check_clang_tidy.py [--jobs N] [--everything] BUILD_FOLDER

A source is read again when anything that its finding depends on has another content: the source, a
header that it includes (the system's, too), its compile command, .clang-tidy, or clang-tidy itself.
What was found clean is noted in the user's cache folder, so a first run on a machine reads all.
BUILD_FOLDER is configured without precompiled headers. Exit status 1 when there are findings.
"""

import argparse
import concurrent.futures
import functools
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
FOLDERS = ("app", "bench", "calc", "numbers", "report", "tests", "ui", "units")
CACHE = Path(os.environ.get("XDG_CACHE_HOME") or Path.home() / ".cache") / "tarvix" / "clang-tidy"


@functools.lru_cache(maxsize=None)
def content(path):
    """The hash of a file, empty where there is none."""
    try:
        return hashlib.sha256(Path(path).read_bytes()).hexdigest()
    except OSError:
        return ""


def portable(path):
    """A path below the project is noted relative to it, so that another checkout knows it."""
    path = os.path.normpath(path)
    return os.path.relpath(path, ROOT) if path.startswith(f"{ROOT}{os.sep}") else path


class Source:
    def __init__(self, entry, build, tool):
        self.path = os.path.normpath(os.path.join(entry["directory"], entry["file"]))
        self.folder = entry["directory"]
        self.command = shlex.split(entry["command"])
        command = entry["command"].replace(str(build), "BUILD").replace(str(ROOT), "ROOT")
        key = "\n".join((portable(self.path), command, tool))
        self.note = CACHE / (hashlib.sha256(key.encode()).hexdigest() + ".json")

    def is_known_clean(self):
        try:
            noted = json.loads(self.note.read_text(encoding="utf-8"))
        except (OSError, ValueError):
            return False
        return all(content(os.path.join(ROOT, path)) == found for path, found in noted.items())

    def included(self):
        """Every file that the source is made of, as clang reads it."""
        command = list(self.command)
        at = command.index("-o")
        del command[at:at + 2]
        command = [part for part in command if part != "-c"]
        run = subprocess.run(["clang++", *command[1:], "-M", "-MT", "x", "-w"], cwd=self.folder,
                             capture_output=True, text=True, check=True)
        paths = run.stdout.replace("\\\n", " ").split()[1:]
        return {os.path.normpath(os.path.join(self.folder, path)) for path in paths}

    def check(self, build):
        """The findings, empty when the source is clean, which is then noted."""
        # Before the reading, so that a change while it goes on is not noted as clean.
        state = {portable(path): content(path) for path in self.included()}
        run = subprocess.run(["clang-tidy", "--quiet", "-p", str(build), self.path], cwd=ROOT,
                             capture_output=True, text=True, check=False)
        if run.returncode != 0:
            return run.stdout + run.stderr
        self.note.parent.mkdir(parents=True, exist_ok=True)
        new = self.note.with_suffix(f".{os.getpid()}")
        new.write_text(json.dumps(state), encoding="utf-8")
        new.replace(self.note)
        return ""


def sources_of(build):
    version = subprocess.run(["clang-tidy", "--version"], capture_output=True, text=True, check=True)
    tool = version.stdout + content(ROOT / ".clang-tidy")
    wanted = re.compile(rf"({'|'.join(FOLDERS)})/")
    entries = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    sources = {}
    for entry in entries:
        if "/Unity/" in entry["file"]:
            sys.exit(f"{build} compiles several sources at once, so they can't be read one by one")
        source = Source(entry, build, tool)
        if wanted.match(portable(source.path)):
            sources.setdefault(source.path, source)
    return list(sources.values())


def main():
    parser = argparse.ArgumentParser(description="clang-tidy over what has changed")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--everything", action="store_true", help="whatever is noted as clean")
    parser.add_argument("build", type=Path)
    options = parser.parse_args()
    build = options.build.resolve()

    sources = sources_of(build)
    if not sources:
        sys.exit(f"{build} compiles none of the project's sources")
    waiting = [one for one in sources if options.everything or not one.is_known_clean()]
    print(f"clang-tidy: {len(waiting)} of {len(sources)} sources to read", flush=True)
    bad = 0
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        for findings in pool.map(lambda one: one.check(build), waiting):
            if findings:
                bad += 1
                print(findings, flush=True)
    print(f"clang-tidy: {bad} sources with findings")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
