#!/usr/bin/env python3
"""Plays the same random sessions on two builds of the window script player and compares everything
that each shows after each action.

    compare_players.py [--sessions N] [--actions N] [--seed N] [--locale en_US|de_DE] ONE OTHER

Exit status 0: no difference; 1: some, each told with its session and state.
"""

import argparse
import os
import pathlib
import random
import re
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "reference"))
from random_sessions import run_player, script_of  # noqa: E402  (found by the line above)
from session_generator import Generator  # noqa: E402

# Where a frame lies follows from the font.
PLACE = {"left", "top", "width", "height"}
# The last line of a page; the month's name is the system's.
DATE = re.compile(r"^\d\d \S+ \d{4} +(?=Web site)")


def play(player, lines, folder):
    states, failure = run_player(os.path.abspath(player), lines,
                                 {**os.environ, "QT_QPA_PLATFORM": "offscreen"}, folder)
    for state in states:
        if "page_lines" in state:
            state["page_lines"] = [[DATE.sub("DATE ", line) for line in page]
                                   for page in state["page_lines"]]
    return states, failure


def differences(one, other, path=""):
    """Every place where two JSON values differ, with both."""
    if isinstance(one, dict) and isinstance(other, dict):
        for key in sorted(one.keys() | other.keys()):
            if key not in PLACE:
                yield from differences(one.get(key), other.get(key), f"{path}.{key}")
    elif one != other:
        yield f"{path}: {one!r} / {other!r}"


def main():
    parser = argparse.ArgumentParser(description="Compares two builds of the script player.")
    parser.add_argument("--sessions", type=int, default=20)
    parser.add_argument("--actions", type=int, default=200)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--locale", default="en_US")
    parser.add_argument("one")
    parser.add_argument("other")
    options = parser.parse_args()
    states = different = 0
    for seed in range(options.seed, options.seed + options.sessions):
        generator = Generator(random.Random(seed), options.locale, "page.pdf")
        lines = script_of(generator.session(options.actions))
        with tempfile.TemporaryDirectory(prefix="players-") as folder:
            one, one_failure = play(options.one, lines, folder)
            other, other_failure = play(options.other, lines, folder)
        states += len(one)
        found = []
        if (len(one), one_failure) != (len(other), other_failure):
            found.append(f"{len(one)} and {len(other)} lines, {one_failure!r}, {other_failure!r}")
        for number, (first, second) in enumerate(zip(one, other)):
            found += [f"state {number} {text}" for text in differences(first, second)]
        for text in found[:5]:
            print(f"session {seed}: {text}")
        different += bool(found)
    print(f"{options.sessions} sessions in {options.locale}, {states} states, {different} differ")
    return 1 if different or not states else 0


if __name__ == "__main__":
    sys.exit(main())
