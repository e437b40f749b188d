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

import wine as windows

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

    def work(wine):
        good = [run_tests(wine, program) for program in options.tests]
        sys.stdout.flush()
        compared = subprocess.run([sys.executable, str(COMPARE), "--sheets", options.sheets,
                                   options.linux_bits, wine.wrapper(options.windows_bits)],
                                  check=False)
        return all(good) and compared.returncode == 0
    return windows.run_in_wine("the calculator", work)


if __name__ == "__main__":
    sys.exit(main())
