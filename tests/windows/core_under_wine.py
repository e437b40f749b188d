#!/usr/bin/env python3
"""The calculator's Windows build under Wine: its tests, and its results beside those of this machine.

    core_under_wine.py [--sheets N] LINUX_BITS WINDOWS_BITS WINDOWS_TESTS...

LINUX_BITS and WINDOWS_BITS are the two builds of result_bits. Exit status 77: Wine can't be set up.
"""

import argparse
import pathlib
import re
import subprocess
import sys
import tempfile

import wine as windows

SKIPPED = 77
COMPARE = pathlib.Path(__file__).resolve().parent.parent / "bits/compare_bits.py"


def run_tests(wine, program):
    done = wine.run(program, "--gtest_brief=1")
    output = done.stdout.decode("utf-8", "replace").replace("\r", "")
    passed = re.search(r"\[ +PASSED +\] (\d+) tests?", output)
    good = done.returncode == 0 and passed is not None and int(passed[1]) > 0
    if not good:
        print(output[-8000:], done.stderr.decode(errors="replace")[-2000:], sep="\n")
    print(f"{pathlib.Path(program).name}: {passed[1] if passed else 'no'} tests passed, exit status "
          f"{done.returncode}")
    return good


def main():
    parser = argparse.ArgumentParser(description="The calculator's Windows build under Wine.")
    parser.add_argument("--sheets", default="100000")
    parser.add_argument("linux_bits")
    parser.add_argument("windows_bits")
    parser.add_argument("tests", nargs="+")
    options = parser.parse_args()
    good = True
    with tempfile.TemporaryDirectory(prefix="tarvix-wine-") as folder:
        try:
            wine = windows.Wine(folder)
        except windows.CannotRun as reason:
            print(f"SKIPPED: the calculator under Wine: {reason}")
            return SKIPPED
        try:
            for program in options.tests:
                good = run_tests(wine, program) and good
            sys.stdout.flush()
            good = subprocess.run([sys.executable, str(COMPARE), "--sheets", options.sheets,
                                   options.linux_bits, wine.wrapper(options.windows_bits)],
                                  check=False).returncode == 0 and good
        finally:
            wine.stop()
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
