#!/usr/bin/env python3
"""Plays scenario scripts on the window script player and checks what the user would see.

Usage: run_scenarios.py [--platform NAME] [--timeout SECONDS] PLAYER FILE_OR_FOLDER...

A scenario is a script of player commands; its expectations are comments to the player. README.md
in this folder describes the notation. Prints one line for each expectation that does not hold, as
file:line, with what was expected and what was found. Exit status 0: all hold; 1: at least one does
not; 2: nothing to play.
"""

import argparse
import json
import os
import re
import subprocess
import sys
import tempfile
from itertools import zip_longest
from pathlib import Path

COUNTS = ("calculations", "pages")
BOX_KEYS = ("title", "text", "style", "default")
ENDINGS = ("fatal", "exit")
PROPERTY_PATH = re.compile(r"([A-Za-z]\w*)\.([a-z]+)")


class NotationError(Exception):
    """A line of the scenario that says nothing this runner understands."""


class Expectation:
    """One `#=` line: what the state before it must show."""

    def __init__(self, line, path, value):
        self.line = line
        self.path = path
        self.value = value
        self.lines = []  # of a page

    def problem(self, state):
        """None when the expectation holds in this state, else what is wrong."""
        if self.path == "boxes":
            return self._boxes_problem(state)
        if self.path == "page":
            return self._page_problem(state)
        if self.path in COUNTS or self.path == "focus":
            if self.path not in state:
                return f"the state has no {self.path}"
            found = state[self.path]
        else:
            name, key = self.path.split(".")
            control = state.get("controls", {}).get(name)
            if control is None:
                return f"there is no control {name}"
            if key not in control:
                return f"{name} has no {key}; it has {', '.join(sorted(control))}"
            found = control[key]
        # 1 and true are equal in Python, not here.
        if found == self.value and isinstance(found, bool) == isinstance(self.value, bool):
            return None
        return f"{self.path}: expected {show(self.value)}, found {show(found)}"

    def _page_problem(self, state):
        """The lines stand on the page one right after the other."""
        pages = state.get("page_lines", [])
        if self.value > len(pages):
            return f"page {self.value}: there are {len(pages)} pages"
        page = pages[self.value - 1]
        most = 0
        for start in range(len(page)):
            same = 0
            while same < len(self.lines) and page[start + same:start + same + 1] == \
                    self.lines[same:same + 1]:
                same += 1
            if same == len(self.lines):
                return None
            if same >= most:
                most, place = same, start + same
        found = show(page[place]) if most and place < len(page) else "no such line"
        return f"page {self.value}: expected {show(self.lines[most])}, found {found}"

    def _boxes_problem(self, state):
        if "boxes" not in state:
            return "the state has no boxes"
        found = state["boxes"]
        if len(found) != len(self.value):
            return f"boxes: expected {len(self.value)}, found {len(found)}: {show(found)}"
        for number, (wanted, box) in enumerate(zip(self.value, found), 1):
            for key, value in wanted.items():
                if box.get(key) != value:
                    return (f"boxes: {key} of box {number}: expected {show(value)}, "
                            f"found {show(box.get(key))}")
        return None


class Answer:
    """One output line that the script asks for: of a state, a refusal or the program's end."""

    def __init__(self, line, kind, value=None):
        self.line = line
        self.kind = kind
        self.value = value  # refusal: the command; end: "fatal" or "exit"
        self.expectations = []

    def __str__(self):
        return {"state": "a state", "refused": f"a refusal of: {self.value}",
                "ended": f"the program's end ({self.value})"}[self.kind]

    def fits(self, found):
        kind = kind_of(found)
        return kind == self.kind and (kind == "state" or found[kind].strip() == self.value)


def show(value):
    return json.dumps(value, ensure_ascii=False)


def parse_value(path, text):
    try:
        value = json.loads(text)
    except ValueError as error:
        raise NotationError(f"not a JSON value: {text}") from error
    if path == "boxes":
        if not isinstance(value, list) or not all(isinstance(box, dict) for box in value):
            raise NotationError("boxes needs a list of objects")
        for box in value:
            unknown = sorted(set(box) - set(BOX_KEYS))
            if unknown:
                raise NotationError(f"a box has no {', '.join(unknown)}")
    elif path in COUNTS or path == "page":
        if isinstance(value, bool) or not isinstance(value, int):
            raise NotationError(f"{path} needs a whole number")
    elif path in ("focus", "line"):
        if not isinstance(value, str):
            raise NotationError(f"{path} needs a text")
    elif not PROPERTY_PATH.fullmatch(path):
        raise NotationError(f"neither NAME.PROPERTY nor a part of the state: {path}")
    return value


def parse_script(text):
    """The output lines that the script asks for, in order, with their expectations."""
    answers = []
    command = None  # (line number, text) of the last command
    last = None  # the answer that the last command has, if any
    ended = False
    for number, raw in enumerate(text.split("\n"), 1):
        line = raw.strip()
        try:
            if not line or line == "#" or line.startswith("# "):
                continue
            if not line.startswith("#"):
                if ended:
                    raise NotationError("a command after the program's end")
                command = (number, line)
                last = None
                if line == "state":
                    last = Answer(number, "state")
                    answers.append(last)
            elif line.startswith("#= "):
                if last is None or last.kind != "state":
                    raise NotationError("an expectation must follow a state command")
                parts = line[3:].split(None, 1)
                if len(parts) != 2:
                    raise NotationError("an expectation is a path and a JSON value")
                value = parse_value(parts[0], parts[1])
                last.expectations.append(Expectation(number, parts[0], value))
            elif line.startswith("#| "):
                if last is None or not last.expectations or last.expectations[-1].path != "page":
                    raise NotationError("a page's line must follow #= page N")
                last.expectations[-1].lines.append(parse_value("line", line[3:]))
            elif line == "#! refused" or line in [f"#! ended {how}" for how in ENDINGS]:
                if command is None or last is not None:
                    raise NotationError(f"{line} must follow the command that it is about")
                if line == "#! refused":
                    last = Answer(number, "refused", command[1])
                else:
                    last = Answer(number, "ended", line.split()[-1])
                    ended = True
                answers.append(last)
            else:
                raise NotationError(f"unknown notation: {line}")
        except NotationError as error:
            raise NotationError(f"{number}: {error}") from error
    for expectation in [e for answer in answers for e in answer.expectations]:
        if expectation.path == "page" and (expectation.value < 1 or not expectation.lines):
            raise NotationError(f"{expectation.line}: page needs a number from 1 and lines")
    if not any(answer.expectations or answer.kind != "state" for answer in answers):
        raise NotationError("1: a scenario without any expectation")
    return answers


def kind_of(found):
    for kind, key in (("state", "controls"), ("refused", "refused"), ("ended", "ended")):
        if isinstance(found, dict) and key in found:
            return kind
    return "nothing" if found is None else "unknown"


def check_output(answers, output):
    """Problems as (line number, text): the player's output against what the script asks for."""
    problems = []
    found_lines = []
    for text in output.splitlines():
        try:
            found_lines.append(json.loads(text))
        except ValueError:
            return [(1, f"the player wrote a line that is no JSON: {text}")]
    for answer, found in zip_longest(answers, found_lines):
        what = {"state": "a state", "nothing": "the end of the output"}.get(
            kind_of(found), show(found))
        if answer is None:
            problems.append((answers[-1].line, f"expected nothing more, found {what}"))
        elif not answer.fits(found):
            problems.append((answer.line, f"expected {answer}, found {what}"))
            return problems  # what follows no longer belongs together
        else:
            judged = ((each.line, each.problem(found)) for each in answer.expectations)
            problems += [(line, problem) for line, problem in judged if problem]
    return problems


def play(player, script, platform, timeout):
    """Plays one scenario; the problems as (line number, text), none when everything holds."""
    try:
        text = script.read_bytes().decode("utf-8")
        answers = parse_script(text)
    except UnicodeDecodeError:
        return [(1, "not UTF-8")]
    except NotationError as error:
        number, _, what = str(error).partition(": ")
        return [(int(number), what)]
    environment = dict(os.environ)
    if platform != "keep":
        environment["QT_QPA_PLATFORM"] = platform
    # Files that a scenario names (a printed page, a picture) land in a folder of its own.
    with tempfile.TemporaryDirectory(prefix="scenario-") as folder:
        try:
            run = subprocess.run([player], input=text.encode("utf-8"), capture_output=True,
                                 cwd=folder, env=environment, timeout=timeout, check=False)
        except subprocess.TimeoutExpired:
            return [(1, f"the player did not end within {timeout:g} seconds")]
        except OSError as error:
            return [(1, f"the player can't be started: {error}")]
    problems = check_output(answers, run.stdout.decode("utf-8", "replace"))
    if run.returncode != 0:
        message = run.stderr.decode("utf-8", "replace").strip()
        problems.append((1, f"the player ended with exit status {run.returncode}: {message}"))
    return problems


def scripts_of(places):
    for place in map(Path, places):
        if place.is_dir():
            yield from sorted(place.rglob("*.script"))
        else:
            yield place


def main(arguments=None):
    parser = argparse.ArgumentParser(description="Plays scenario scripts and checks the window.")
    parser.add_argument("--platform", default="offscreen",
                        help="Qt platform to play on; 'keep' leaves the environment's choice")
    parser.add_argument("--timeout", type=float, default=120, help="seconds for one scenario")
    parser.add_argument("--fail-fast", action="store_true", help="stop at the first that fails")
    parser.add_argument("player", help="the window script player")
    parser.add_argument("places", nargs="+", metavar="FILE_OR_FOLDER")
    options = parser.parse_args(arguments)

    player = os.path.abspath(options.player)
    played = failed = 0
    for script in scripts_of(options.places):
        played += 1
        try:
            problems = play(player, script, options.platform, options.timeout)
        except OSError as error:
            problems = [(1, f"can't be read: {error.strerror}")]
        for line, text in sorted(problems, key=lambda problem: problem[0]):
            print(f"{script}:{line}: {text}")
        failed += bool(problems)
        if failed and options.fail_fast:
            break
    if not played:
        print("no scenarios found", file=sys.stderr)
        return 2
    print(f"{played} scenarios played, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
