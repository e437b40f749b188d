#!/usr/bin/env python3
"""The script player for Windows under Wine: the scenarios, the system's locale, and random sessions
beside this machine's player.

    window_under_wine.py [--every N] [--sessions N] [--actions N]
                         LINUX_PLAYER WINDOWS_PLAYER WINDOWS_LOCALE_TESTS

Exit status 77: Wine can't be set up here.
"""

import argparse
import pathlib
import subprocess
import sys

import wine as windows

TESTS = pathlib.Path(__file__).resolve().parent.parent
# What Windows says of these locales: the decimal separator, a grouped number, its separator.
SYSTEM_LOCALES = {"en_US": (".", "1_234_567", "2C"), "de_DE": (",", "1_234_567", "2E")}


def play_scenarios(wine, player, every):
    """With what Windows draws itself; every n-th scenario, or all."""
    scripts = sorted((TESTS / "scenarios").rglob("*.script"))[::every]
    return subprocess.run([sys.executable, str(TESTS / "scenarios/run_scenarios.py"),
                           "--timeout", "300", wine.wrapper(player), *map(str, scripts)],
                          check=False).returncode == 0


def compare_sessions(wine, options):
    good = True
    for locale in windows.LOCALES:
        good = subprocess.run([sys.executable, str(TESTS / "windows/compare_players.py"),
                               "--locale", locale, "--sessions", options.sessions,
                               "--actions", options.actions, options.linux_player,
                               wine.wrapper(options.windows_player, locale)],
                              check=False).returncode == 0 and good
    return good


def ask_for_system_locale(wine, program):
    good = True
    for locale, (decimal, million, group) in SYSTEM_LOCALES.items():
        wine.set_locale(locale)
        wine.environment |= {"TARVIX_EXPECT_DECIMAL": decimal, "TARVIX_EXPECT_MILLION": million,
                             "TARVIX_EXPECT_GROUP": group}
        done = wine.run(program, "--gtest_brief=1")
        output = done.stdout.decode("utf-8", "replace")
        passed = done.returncode == 0 and "PASSED" in output
        print(f"the numbers of Windows in {locale}: {'as expected' if passed else output}")
        good = good and passed
    return good


def main():
    parser = argparse.ArgumentParser(description="The script player for Windows under Wine.")
    parser.add_argument("--every", type=int, default=1)
    parser.add_argument("--sessions", default="30")
    parser.add_argument("--actions", default="200")
    parser.add_argument("linux_player")
    parser.add_argument("windows_player")
    parser.add_argument("locale_tests")
    options = parser.parse_args()

    def work(wine):
        good = ask_for_system_locale(wine, options.locale_tests)
        sys.stdout.flush()
        good = play_scenarios(wine, options.windows_player, options.every) and good
        return compare_sessions(wine, options) and good
    return windows.run_in_wine("the window", work)


if __name__ == "__main__":
    sys.exit(main())
