#!/usr/bin/env python3
"""Compares what two builds of result_bits write, sheet by sheet.

    compare_bits.py [--sheets N] [--seed N] ONE OTHER

Exit status 0: the same, and enough of the sheets have results; 1: not.
"""

import argparse
import subprocess
import sys

SHOWN = 10


def lines_of(program, sheets, seed):
    done = subprocess.run([program, str(sheets), str(seed)], capture_output=True, check=False)
    if done.returncode != 0:
        sys.exit(f"{program} ends with status {done.returncode}: {done.stderr.decode()[-400:]}")
    return done.stdout.decode("utf-8").splitlines()


def main():
    parser = argparse.ArgumentParser(description="Compares the results of two builds.")
    parser.add_argument("--sheets", type=int, default=100000)
    parser.add_argument("--seed", type=int, default=20240229)
    parser.add_argument("one")
    parser.add_argument("other")
    options = parser.parse_args()
    one = lines_of(options.one, options.sheets, options.seed)
    other = lines_of(options.other, options.sheets, options.seed)
    differ = [pair for pair in zip(one, other) if pair[0] != pair[1]]
    for pair in differ[:SHOWN]:
        print(f"- {pair[0]}\n+ {pair[1]}")
    texts = sum("| text: " in line for line in one)
    # bit patterns in front of the bar: 8 working values and 4 of the equations
    values = sum(len(word) == 8 for line in one for word in line.split("|")[0].split()[2:])
    print(f"{len(one)} and {len(other)} sheets, {texts} with a result text, {values} bit patterns, "
          f"{len(differ)} sheets differ")
    enough = texts >= options.sheets // 5 and values >= 10 * options.sheets
    if not enough:
        print("too few results to say anything")
    whole = len(one) == len(other) == options.sheets
    return 0 if whole and enough and not differ else 1


if __name__ == "__main__":
    sys.exit(main())
