"""A Windows desktop of the tests' own: an X server with a window manager, a print system, and Wine on
them. Programs are driven by keys and seen from outside: their windows, the clipboard, the pages that
reach the printer."""

import pathlib
import re
import subprocess
import sys
import unittest

TESTS = pathlib.Path(__file__).resolve().parent.parent
sys.path[:0] = [str(TESTS / "journeys"), str(TESTS / "report")]
import desk as desks  # noqa: E402  (found by the line above)
import print_journey  # noqa: E402
import printing  # noqa: E402
import wine as windows  # noqa: E402

TITLE = "Brindle Tarvix"
# In seconds: what has not come by then has not been heard, and is asked for again.
SOON = 10
# What the script player calls keys, and what X calls them.
KEYS = {"{Tab}": "Tab", "{Left}": "Left", "{Right}": "Right", "{Enter}": "Return",
        ",": "comma", ".": "period"}

CANNOT_RUN = (desks.CannotRun, print_journey.CannotRun, windows.CannotRun)


def run_tests(what, names):
    """Runs the tests of the program, or those named; the exit status, 77 where one was skipped."""
    result = unittest.main(argv=[sys.argv[0], *names], exit=False, verbosity=2,
                           warnings="ignore").result
    if result.skipped:
        print(f"SKIPPED: {what}: {result.skipped[0][1]}")
        return windows.SKIPPED
    return 0 if result.wasSuccessful() else 1


class WindowsDesk:
    """`printers`: with a default printer, or without any."""

    def __init__(self, folder, printers=True):
        folder = pathlib.Path(folder)
        self.system = self.printer = self.wine = self.program = None
        (folder / "desk").mkdir()
        (folder / "windows").mkdir()
        (folder / "print").mkdir()
        folder.chmod(0o755)
        self.desk = desks.Desk(folder / "desk")
        try:
            self.printing = {}
            if printers:
                self.system = print_journey.PrintSystem(folder / "print")
                self.printer = print_journey.NetworkPrinter()
                self.system.add_printer(self.printer.port)
                self.printing = {name: self.system.environment[name]
                                 for name in printing.PRINT_SETTINGS}
            self.wine = windows.Wine(folder / "windows", self.printing |
                                     {"DISPLAY": self.desk.environment["DISPLAY"]})
        except BaseException:
            self.stop()
            raise
        self.pages = folder / "print"

    def environment_here(self, locale):
        """What a program of this machine needs to run on the same desk with the same printer."""
        return {**self.desk.environment, **self.printing, "LC_ALL": f"{locale}.UTF-8",
                "LOCPATH": self.wine.environment["LOCPATH"]}

    def stop(self):
        self.end_program()
        for part in (self.wine, self.desk, self.system):
            if part is not None:
                part.stop()
        if self.printer is not None:
            self.printer.close()

    # A program on the desk.

    def start(self, command, environment):
        """Starts the program that the hands and eyes are for."""
        self.program = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def start_windows_program(self, file):
        self.start([self.wine.tool("wine"), str(file)], self.wine.environment)

    def program_ends(self):
        """Waits until the program ends by itself; its exit status."""
        status = self.program.wait(desks.PATIENCE)
        self.program = None
        return status

    def end_program(self):
        """Ends the program, where it has not ended by itself."""
        if self.program is not None:
            self.program.kill()
            self.program.wait()
            self.program = None

    def wait_until(self, what, condition):
        """Waits for something that the program does; not any longer once it has ended."""
        def look():
            result = condition()
            assert result or self.program is None or self.program.poll() is None, (
                f"the program ended with exit status {self.program.returncode} before {what}")
            return result
        return desks.wait_until(what, look)

    def comes_soon(self, condition):
        """Whether something that the program does comes in a little while."""
        return desks.comes_soon(condition, SOON)

    # Windows, seen from outside.

    def windows(self, title=TITLE):
        return self.desk.search(f"^{re.escape(title)}$")

    def has_frame(self, window):
        extents = self.desk.ask("xprop", "-id", window, "_NET_FRAME_EXTENTS")
        return any(number != "0" for number in re.findall(r"\d+", extents))

    def wait_for_window(self, title=TITLE, other_than=None):
        """The window of this title that has a frame (the splash has none) and the keyboard."""
        return self.wait_until(f"a window '{title}'",
                               lambda: self.window_in_front(title, other_than))

    def window_in_front(self, title=TITLE, other_than=None):
        active = self.desk.xdotool("getactivewindow")
        if active == other_than or active not in self.windows(title):
            return None
        return active if self.has_frame(active) else None

    # Hands.

    def press_all(self, keys):
        """Presses keys in the script player's notation, one after the other."""
        self.desk.press(*[KEYS.get(key, key) for key in keys])

    def copy(self):
        """What the program copies: of a message box its texts, of a field what is selected."""
        self.forget_copied()
        return self.wait_until("the program copies", self.copied)

    def forget_copied(self):
        subprocess.run(["xclip", "-selection", "clipboard"], env=self.desk.environment,
                       input=b"nothing copied", timeout=desks.PATIENCE, check=True)

    def copied(self):
        """What the keys to copy, pressed now, have copied so far; None for nothing."""
        self.desk.press("ctrl+c")
        found = subprocess.run(
            ["xclip", "-selection", "clipboard", "-o", "-t", "UTF8_STRING"], timeout=20,
            env=self.desk.environment, capture_output=True, check=False).stdout.decode()
        return found.replace("\r", "") if found != "nothing copied" else None

    # Pages.

    def next_page(self):
        """The file of the page that comes next to the printer."""
        self.wait_until(f"a page at the printer; the server's log ends:\n{self.system.log()}",
                        lambda: self.printer.pages)
        data = self.printer.pages.pop(0)
        file = self.pages / "page.pdf"
        file.write_bytes(data[data.index(b"%PDF"):])
        return file
