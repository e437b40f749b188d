#!/usr/bin/env python3
"""Plays random sessions on the program and on the reference model and compares them; what needs no
model is held against the program's states alone (invariants.py).

    random_sessions.py --player build/tests/window_script/window_script
                       [--seed N] [--sessions N] [--actions N] [--locale en_US|de_DE] [--jobs N]

Each session is a script of its own with a `state` after every action. At the first difference the
session is cut down to the actions that still show it, and the seed, the script, the control and
both values are written. The exit status is then 1.
"""

import argparse
import json
import os
import random
import subprocess
import sys
import tempfile
from bisect import bisect_left
from concurrent.futures import ThreadPoolExecutor
from itertools import accumulate, zip_longest
from typing import Any, NamedTuple

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from invariants import Step, broken  # noqa: E402
from session_generator import Generator  # noqa: E402
from tarvix_model import Model, Undefined  # noqa: E402
from walks import walks  # noqa: E402

PLAYER_SECONDS = 300


class Difference(NamedTuple):
    where: int  # number of the script line
    what: str
    program: Any
    model: Any


def script_of(actions):
    return [line for action in actions for line in action + ["state"]]


def run_player(player, lines, environment, folder=None):
    """The JSON lines that the player wrote, run in the folder, and a word on how it failed or ""."""
    try:
        done = subprocess.run([player], input="\n".join(lines) + "\n", capture_output=True,
                              text=True, encoding="utf-8", env=environment, cwd=folder,
                              timeout=PLAYER_SECONDS, check=False)
    except subprocess.TimeoutExpired:
        return [], f"does not end within {PLAYER_SECONDS} s"
    written = []
    for line in done.stdout.splitlines():
        try:
            written.append(json.loads(line))
        except ValueError:
            return written, "writes a line that is no JSON: " + line[:200]
    failure = f"ends with status {done.returncode}: {done.stderr[-400:]}" if done.returncode else ""
    return written, failure


def compare_states(number, program, model):
    for name, expected in model["controls"].items():
        shown = program["controls"].get(name)
        if shown is None:
            return Difference(number, name, "no such control", "there")
        for key, value in expected.items():
            if shown.get(key) != value:
                return Difference(number, f"{name}.{key}", shown.get(key), value)
    for key in ("boxes", "calculations", "pages"):
        if program[key] != model[key]:
            return Difference(number, key, program[key], model[key])
    for shown, expected in zip(program.get("page_lines", []), model.get("page_lines", [])):
        if shown[-1].endswith(expected[-1]):  # the program's begins with the date
            shown[-1] = expected[-1]
        for lines in zip_longest(shown, expected):
            if lines[0] != lines[1]:
                return Difference(number, "page line", *lines)
    if model["focus"] is not None and program["focus"] != model["focus"]:
        return Difference(number, "focus", program["focus"], model["focus"])
    return None


def resolve_focus(number, model, name):
    """Takes over where the Tab key went: to something that it may go to."""
    model.resolve_focus(name)
    window = model.window
    if name in window.all and not (window.visible(name) and window.enabled(name)
                                   and window[name].tabstop):
        return Difference(number, "focus", name, "a control that can be reached with Tab")
    return None


def kind_of(written):
    if written is None:
        return "nothing"
    return "state" if "controls" in written else next(iter(written))


def compare(lines, written, failure):
    """Plays the script on a model along what the program wrote; the first difference or None."""
    model = Model()
    answers = iter(written)
    before, action = None, []
    for number, line in enumerate(lines, 1):
        if line != "state":
            action.append(line)
        try:
            expected = model.play(line)
        except Undefined:
            return None  # only in a shortened session: nothing can be said of it
        if expected is None:
            continue
        shown = next(answers, None)
        if kind_of(shown) != kind_of(expected):
            return Difference(number, f"answer to '{line}'", failure or json.dumps(shown)[:300],
                              json.dumps(expected)[:300])
        if kind_of(shown) == "state":
            if model.window.focus is None:
                difference = resolve_focus(number, model, shown["focus"])
                if difference:
                    return difference
                expected = model.with_state_again(expected)
            difference = compare_states(number, shown, expected)
            if difference:
                return difference
            found = broken(Step(action, before, shown, model.window.locale))
            if found:
                return Difference(number, *found, "it holds")
            before, action = shown, []
        elif kind_of(shown) == "refused":
            if shown["refused"].split()[:2] != expected["refused"].split()[:2]:
                return Difference(number, "refused", shown["refused"], expected["refused"])
        elif shown != expected:
            return Difference(number, "ended", shown, expected)
        if model.ended:
            break
    if failure:
        return Difference(len(lines), "the player", failure, "")
    return None


class Comparer:
    def __init__(self, options, folder):
        self.options = options
        self.folder = folder
        self.environment = dict(os.environ)
        if "DISPLAY" not in os.environ or not options.display:
            self.environment["QT_QPA_PLATFORM"] = "offscreen"

    def actions_of(self, seed):
        if self.options.walks:
            return self.walks()[seed]
        page = os.path.join(self.folder, f"page-{seed}.pdf")
        return Generator(random.Random(seed), self.options.locale, page).session(
            self.options.actions)

    def walks(self):
        return walks(self.options.locale, os.path.join(self.folder, "page.pdf"))

    def difference_of(self, actions):
        lines = script_of(actions)
        written, failure = run_player(self.options.player, lines, self.environment)
        return compare(lines, written, failure)

    def check(self, seed):
        actions = self.actions_of(seed)
        return seed, actions, self.difference_of(actions)

    def minimised(self, actions, found):
        """Delta debugging: the fewest actions that still differ in the same thing."""
        head, body = actions[:1], actions[1:]
        executed = list(accumulate(len(action) + 1 for action in body))
        body = body[:bisect_left(executed, found.where) + 2]  # what comes later does not matter
        size = max(len(body) // 2, 1)
        while True:
            shrunk, start = False, 0
            while start < len(body):
                candidate = body[:start] + body[start + size:]
                difference = self.difference_of(head + candidate)
                if difference and difference.what == found.what:
                    body, shrunk = candidate, True
                else:
                    start += size
            if size == 1 and not shrunk:
                break
            size = max(size // 2, 1)
        return head + body


def report(comparer, seed, actions, difference):
    small = comparer.minimised(actions, difference)
    again = comparer.difference_of(small) or difference
    print(f"difference: seed {seed}, locale {comparer.options.locale}")
    print("script:")
    print(*("    " + line for action in small for line in action), "    state", sep="\n")
    print(f"differs:  {again.what}")
    print(f"program:  {again.program!r}")
    print(f"model:    {again.model!r}", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--player", required=True)
    parser.add_argument("--seed", type=int, default=1, help="0: a fresh one")
    parser.add_argument("--walks", action="store_true",
                        help="not at random: every entry, option and limit (walks.py)")
    parser.add_argument("--sessions", type=int, default=20)
    parser.add_argument("--actions", type=int, default=200)
    parser.add_argument("--locale", default="en_US")
    parser.add_argument("--jobs", type=int, default=1)
    parser.add_argument("--keep-going", action="store_true",
                        help="report every session that differs")
    parser.add_argument("--display", action="store_true", help="use the display, not `offscreen`")
    options = parser.parse_args()
    if options.seed == 0:
        options.seed = random.SystemRandom().randrange(1, 10 ** 9)
        print(f"--seed {options.seed} --locale {options.locale}", flush=True)
    differing = played = 0
    with tempfile.TemporaryDirectory() as folder, ThreadPoolExecutor(options.jobs) as pool:
        comparer = Comparer(options, folder)
        seeds = range(options.seed, options.seed + options.sessions)
        if options.walks:
            seeds = range(len(comparer.walks()))
            options.sessions = len(seeds)
        for seed, actions, difference in pool.map(comparer.check, seeds):
            played += len(actions)
            if difference:
                differing += 1
                report(comparer, seed, actions, difference)
                if not options.keep_going:
                    pool.shutdown(cancel_futures=True)
                    break
    print(f"{options.sessions if options.keep_going or not differing else 'some'} sessions, "
          f"{played} actions, locale {options.locale}: "
          + (f"{differing} differ" if differing else "no difference"))
    return 1 if differing else 0


if __name__ == "__main__":
    sys.exit(main())
