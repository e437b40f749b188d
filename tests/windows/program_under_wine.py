#!/usr/bin/python3
"""The Windows program as it is handed on, under Wine on a real X server: started, driven by keys
through a run of each fluid, printed through Windows' print system; and what goes wrong around it.

    program_under_wine.py PROGRAM_FOLDER PLAYER PROGRAM PICTURES

PLAYER is this machine's script player, which rehearses every run and says what the page must say; the
results beside the runs are worked out by hand. PROGRAM is this machine's program, whose page of the
same run, from the same printer, must look the same. Pictures of the window and the pages are left in
the folder PICTURES. Exit status 77: the desktop can't be set up here.
"""

import contextlib
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

import same_page
import windows_desk
from rehearsal import Rehearsal
from windows_desk import TITLE

LOGOS = ("BrindleLogo.jpg", "VeltraneLogo.jpg")
CUSTOMER = ("Northfield", "Unit 4", "FE-4102")
# A folder as a user may have it: blanks, letters that no single code page has.
AWKWARD_FOLDER = "Meßblende Ω 測定 (2)"
DATE = re.compile(r"^\d\d \S+ \d{4}\b")

program_folder = pathlib.Path()
player = ""
program_here = pathlib.Path()
pictures = pathlib.Path()


def in_locale(text, locale):
    """A text with numbers as they are written in the United States, in the locale."""
    return text if locale == "en_US" else text.translate(str.maketrans(",.", ".,"))


def words(line):
    return " ".join(line.split())


LEFT, RIGHT = ["{Left}"], ["{Right}"]
# Each run: the line of the page that is worked out by hand, and to which control the Tab key leads for
# which keys.
RUNS = {
    # Water in a 2 inch pipe: E = 0.6 / sqrt(1 - 0.5^4) = 0.619677,
    # Q = 5.66646 E 0.25 x 2.067^2 sqrt(100) = 37.506 gallons a minute
    "liquid": ("Flow Rate 37.51 Gallons/Minute",
               ("optGas", LEFT), ("txtSGf", "1"), ("optCalcBeta", LEFT), ("txtSGb", "1"),
               ("txtDeltaP", "100"), ("txtBeta", "0.5")),
    # Air at 60 Deg F and 100 psi gauge in a 2 inch pipe: E = 0.619677,
    # Y = 1 - (0.41 + 0.35 x 0.0625) (100 / (27.707 x 114.7)) / 1.3 = 0.989546,
    # Q = 218.468 E Y 0.25 x 2.067^2 (519.67 / 14.7) sqrt(100 x 114.7 / 519.67) an hour, 24 of
    # which are 570361.
    "gas": ("Flow Rate 570,361.00 Standard Cubic Feet/Day",
            ("optCalcBeta", LEFT), ("txtTf", "60"), ("txtPf", "100"), ("txtGasSGb", "1"),
            ("txtDeltaP", "100"), ("txtBeta", "0.5")),
    # Saturated at 100 psi gauge: 0.25704 lb per cubic foot in the table.
    # Q = 358.927 x 0.619677 x 0.989546 x 0.25 x 2.067^2 sqrt(100 x 0.25704) = 1191.87 an hour
    "steam": ("Flow Rate 1,192.00 Pounds/Hour",
              ("optGas", RIGHT), ("optSteamUser", LEFT), ("txtPf", "100"), ("optCalcBeta", LEFT),
              ("txtDeltaP", "100"), ("txtBeta", "0.5")),
}


def rehearsed(fluid, locale):
    """The run, played on this machine's player."""
    run = Rehearsal(player, locale)
    for name, keys in RUNS[fluid][1:]:
        run.press(name, in_locale(keys, locale) if isinstance(keys, str) else keys)
    return run


class WindowsCase(unittest.TestCase):
    printers = True

    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory(prefix="tarvix-windows-")
        cls.addClassCleanup(cls.scratch.cleanup)
        cls.place = pathlib.Path(cls.scratch.name)
        try:
            cls.desk = windows_desk.WindowsDesk(cls.place, printers=cls.printers)
        except windows_desk.CANNOT_RUN as reason:
            raise unittest.SkipTest(str(reason)) from reason
        cls.addClassCleanup(cls.desk.stop)

    def setUp(self):
        self.addCleanup(self.desk.end_program)

    def start(self, folder=None):
        self.desk.start_windows_program((folder or program_folder) / "tarvix.exe")

    def start_here(self, locale):
        """This machine's program, on the same desk with the same printer."""
        self.desk.start([program_here], self.desk.environment_here(locale))

    def start_to_main_window(self, folder=None):
        self.start(folder)
        return self.desk.wait_for_window()

    @contextlib.contextmanager
    def picture_of_failure(self, name):
        try:
            yield
        except AssertionError:
            self.picture(f"{name}-failed")
            raise

    def visible_windows(self):
        return self.desk.desk.search(".")

    def picture(self, name):
        self.desk.desk.take_picture(pictures / f"{name}.png")

    def leave(self):
        """By the menu, with the question answered."""
        def is_asked():
            self.desk.desk.press("alt+f")
            self.desk.desk.press("x")
            return self.desk.comes_soon(lambda: self.desk.window_in_front("Program Termination"))
        self.desk.wait_until("the question whether to leave", is_asked)
        self.desk.desk.press("Return")
        self.assertEqual(self.desk.program_ends(), 0)


class Journey(WindowsCase):
    def print_page(self, main_window):
        self.desk.printer.pages.clear()
        self.desk.desk.press("ctrl+p")
        customer_window = self.desk.wait_for_window(other_than=main_window)
        for number, line in enumerate(CUSTOMER):
            if number:
                self.desk.desk.press("Tab")
            self.enter(line)
        self.desk.desk.press("Return")
        self.desk.wait_until("the customer window closes",
                             lambda: customer_window not in self.visible_windows())
        return self.desk.next_page()

    def enter(self, text):
        """Types into the field that has the focus; again, where the window had no ear for it yet."""
        def stands_there():
            self.desk.desk.press("ctrl+a")
            self.desk.desk.write(text)
            self.desk.desk.press("ctrl+a")
            self.desk.forget_copied()
            return self.desk.comes_soon(lambda: self.desk.copied() == text)
        self.desk.wait_until(f"{text} in its field", stands_there)

    def go_through(self, rehearsal, name):
        """The run by keys in a program that has been started, to its end; the page's file."""
        main_window = self.desk.wait_for_window()
        self.desk.press_all(rehearsal.keys)
        result = rehearsal.text("txtFlow")
        self.desk.wait_until(f"the result {result}", lambda: self.desk.copy() == result)
        self.picture(name)
        file = pictures / f"{name}.pdf"
        shutil.copy(self.print_page(main_window), file)
        self.leave()
        return file

    def check_lines(self, file, expected):
        text = subprocess.run(["pdftotext", "-layout", str(file), "-"], capture_output=True,
                              encoding="utf-8", check=True).stdout
        printed = [words(line) for line in
                   same_page.without_soft_hyphens(text).replace("\f", "").splitlines() if line.strip()]
        # The month's name is the system's own.
        self.assertEqual([DATE.sub("DATE", line) for line in printed],
                         [DATE.sub("DATE", line) for line in expected])

    def run_through(self, fluid, locale):
        rehearsal = rehearsed(fluid, locale)
        by_hand = in_locale(RUNS[fluid][0], locale)
        expected = [words(line) for line in rehearsal.page(CUSTOMER) if line.strip()]
        self.assertIn(by_hand, expected)

        self.desk.wine.set_locale(locale)
        self.start()
        windows_page = self.go_through(rehearsal, f"{fluid}-{locale}")
        self.check_lines(windows_page, expected)
        self.start_here(locale)
        page_here = self.go_through(rehearsal, f"{fluid}-{locale}-here")
        self.check_lines(page_here, expected)
        self.assertEqual(same_page.differences(windows_page, page_here), [])

    def test_runs(self):
        for locale in ("en_US", "de_DE"):
            for fluid in RUNS:
                with (self.subTest(fluid=fluid, locale=locale),
                      self.picture_of_failure(f"{fluid}-{locale}")):
                    self.run_through(fluid, locale)
                self.desk.end_program()


class Surroundings(WindowsCase):
    """What goes wrong around the program: the same boxes as on Linux."""

    printers = False

    def copy_of_program(self, name):
        folder = self.place / name
        shutil.copytree(program_folder, folder)
        return folder

    def expect_box(self, text):
        self.desk.wait_for_window()
        copied = self.desk.copy()
        self.assertEqual([line for line in copied.splitlines() if line.strip("- ")][:2],
                         [TITLE, text])

    def test_missing_logo(self):
        folder = self.copy_of_program("no logo")
        for logo in LOGOS:
            with self.subTest(logo), self.picture_of_failure(logo):
                (folder / logo).rename(folder / "elsewhere")
                self.start(folder)
                path = "Z:" + str(folder / logo).replace("/", "\\")
                self.expect_box(f"Run-time error: File not found: {path}")
                self.picture(f"missing-{logo}")
                self.desk.desk.press("Return")
                self.assertEqual(self.desk.program_ends(), 1)
                (folder / "elsewhere").rename(folder / logo)

    def test_awkward_folder_that_is_read_only(self):
        folder = self.copy_of_program(AWKWARD_FOLDER)
        before = sorted(path.name for path in folder.rglob("*"))
        for path in (*folder.rglob("*"), folder):
            path.chmod(path.stat().st_mode & ~0o222)
        self.start_to_main_window(folder)
        self.leave()
        self.assertEqual(sorted(path.name for path in folder.rglob("*")), before)
        folder.chmod(0o755)

    def test_no_printer(self):
        with self.picture_of_failure("no-printer"):
            self.print_without_printer()

    def print_without_printer(self):
        main_window = self.start_to_main_window()
        self.desk.press_all(rehearsed("liquid", "en_US").keys)
        self.desk.desk.press("ctrl+p")
        customer_window = self.desk.wait_for_window(other_than=main_window)
        self.desk.desk.press("Return")
        # Some window asks where to print; cancelled, nothing is printed and the program goes on.
        self.desk.wait_until("a dialog", lambda: self.desk.desk.xdotool("getactivewindow") not in
                             (main_window, customer_window, ""))
        self.picture("no-printer")
        # By its title bar: Wine's dialog hears no Escape.
        self.desk.desk.press("alt+F4")
        self.desk.wait_until("the main window alone", lambda: self.visible_windows() == [main_window])
        self.desk.desk.xdotool("windowactivate", "--sync", main_window)
        self.leave()


def main():
    global program_folder, player, program_here, pictures
    if len(sys.argv) < 5:
        print(__doc__, file=sys.stderr)
        return 2
    program_folder, player, program_here, pictures = (pathlib.Path(argument).absolute()
                                                      for argument in sys.argv[1:5])
    pictures.mkdir(parents=True, exist_ok=True)
    return windows_desk.run_tests("the program under Wine", sys.argv[5:])


if __name__ == "__main__":
    sys.exit(main())
