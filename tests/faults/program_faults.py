#!/usr/bin/python3
"""What goes wrong around the program, and what its user then sees: the real program on a desktop of
its own.

program_faults.py TARVIX [unittest arguments]     TARVIX: the program, with its logos beside it
Exit status 77: the desktop can't be set up here.
"""

import contextlib
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "journeys"))
import desk  # noqa: E402  (found by the line above)

SKIPPED = 77
TARVIX = None
LOGOS = ("BrindleLogo.jpg", "VeltraneLogo.jpg")
TITLE = "Brindle Tarvix"
SPLASH = "_NET_WM_WINDOW_TYPE_SPLASH"


class ProgramCase(unittest.TestCase):
    """A copy of the program in a folder of its own, on a desktop of the tests of its class."""

    screen = "1280x1024x24"

    @classmethod
    def set_up_desk(cls, clean_up):
        folder = tempfile.TemporaryDirectory(prefix="tarvix-faults-")
        clean_up(folder.cleanup)
        cls.desk = desk.Desk(folder.name, cls.screen)
        clean_up(cls.desk.stop)
        # No printer of this machine, and no theme that needs a file.
        cls.desk.environment["CUPS_SERVER"] = "127.0.0.1:1"

    @classmethod
    def setUpClass(cls):
        cls.set_up_desk(cls.addClassCleanup)

    def setUp(self):
        self.programs = pathlib.Path(tempfile.mkdtemp(dir=self.desk.folder))
        for name in (pathlib.Path(TARVIX).name, *LOGOS):
            shutil.copy(pathlib.Path(TARVIX).parent / name, self.programs / name)

    def start(self):
        process = self.desk.spawn(str(self.programs / pathlib.Path(TARVIX).name))
        self.end_after_test(process)
        return process

    def end_after_test(self, process):
        """A program that a failed test has left must not be taken for that of the next."""
        def end():
            process.kill()
            process.wait(desk.PATIENCE)
        self.addCleanup(end)

    def windows(self, title=TITLE):
        return self.desk.search(f"^{title}$")

    def properties(self, *arguments):
        return self.desk.ask("xprop", *arguments)

    def main_windows(self):
        """The main windows that are there; the splash has the same title."""
        managed = self.properties("-root", "_NET_CLIENT_LIST").split()
        clients = [int(word.strip(","), 16) for word in managed if word.startswith("0x")]
        return [window for window in self.windows() if int(window) in clients and
                not self.is_splash(window)]

    def is_splash(self, window):
        return SPLASH in self.properties("-id", window, "_NET_WM_WINDOW_TYPE")

    def wait_for_main_window(self, count=1):
        return desk.wait_until(f"{count} main windows",
                               lambda: len(self.main_windows()) == count and self.main_windows())

    def end_by_closing(self, process, window):
        """Closes the window as its title bar does and returns the program's exit status. A key that
        comes while the window manager is still busy with the window is lost, and pressed again."""
        def has_ended():
            if window in self.main_windows():
                self.desk.activate(window)
                self.desk.press("alt+F4")
            with contextlib.suppress(subprocess.TimeoutExpired):
                process.wait(5)
            return process.returncode is not None
        desk.wait_until("the program ends", has_ended)
        return process.returncode

    def ask_to_exit(self, window):
        """Chooses Exit in the menu, which asks whether it shall be."""
        self.desk.activate(window)
        self.desk.press("alt+f")
        self.desk.press("x")
        self.desk.wait_for_keyboard(self.desk.wait_for_window("^Program Termination$"))

    def ended(self, process):
        return process.wait(desk.PATIENCE)


class LogoFault(ProgramCase):
    """A logo that can't be loaded is named in a box, and the program ends with status 1."""

    def start(self):
        os.environ.update(self.desk.environment)
        import program as programs  # pylint: disable=import-outside-toplevel  (needs the environment)
        program = programs.Program(self.desk, str(self.programs / pathlib.Path(TARVIX).name))
        self.end_after_test(program.process)
        return program

    def expect_end_without(self, logo, program):
        """A box with the program's name says it."""
        program.application = desk.wait_until("the program on the accessibility bus",
                                              program.look_for_it)
        box = program.wait_for("alert", TITLE)
        texts = [label.name for label in program.find_all("label", top=box.accessible)]
        path = str(self.programs / logo)
        self.assertEqual([text for text in texts if text],
                         [f"Run-time error: File not found: {path}"])
        program.wait_for_keyboard("push button", "OK")
        self.desk.press("Return")
        self.assertEqual(program.wait_for_end(), 1)
        self.assertEqual(self.windows(), [])

    def test_missing(self):
        for logo in LOGOS:
            with self.subTest(logo):
                kept = (self.programs / logo).read_bytes()
                (self.programs / logo).unlink()
                self.expect_end_without(logo, self.start())
                (self.programs / logo).write_bytes(kept)

    def test_unreadable(self):
        # A folder in its place can't be read by anyone, the superuser included.
        (self.programs / LOGOS[0]).unlink()
        (self.programs / LOGOS[0]).mkdir()
        self.expect_end_without(LOGOS[0], self.start())

    def test_link_to_nothing(self):
        (self.programs / LOGOS[1]).unlink()
        (self.programs / LOGOS[1]).symlink_to("nowhere.jpg")
        self.expect_end_without(LOGOS[1], self.start())

    def test_no_jpeg(self):
        for content in (b"", b"This is no picture.\n", b"\xff\xd8\xff\xe0\x00\x10JFIF\x00"):
            with self.subTest(content):
                (self.programs / LOGOS[0]).write_bytes(content)
                self.expect_end_without(LOGOS[0], self.start())

    def test_vanishes_during_the_splash(self):
        program = self.start()
        # Both logos are on the splash by the time it is there; the main window loads one again.
        desk.wait_until("the splash", self.windows)
        desk.wait_until("the logos are read", lambda: self.has_been_read(program.process))
        (self.programs / LOGOS[0]).unlink()
        self.expect_end_without(LOGOS[0], program)

    def has_been_read(self, process):
        """True once the splash waits: it sleeps between two looks at the clock."""
        state = pathlib.Path(f"/proc/{process.pid}/wchan").read_text(encoding="ascii")
        return "nanosleep" in state


class WindowTypes(ProgramCase):
    """Window managers know the splash for a splash, which gets no entry in a task bar, and the main
    window for one that has nothing to be maximized."""

    def test_splash_and_main_window(self):
        self.start()
        desk.wait_until("the splash", self.windows)
        self.assertTrue(self.is_splash(self.windows()[0]))
        window = self.wait_for_main_window()[0]
        types = self.properties("-id", window, "_NET_WM_WINDOW_TYPE")
        self.assertIn("_NET_WM_WINDOW_TYPE_NORMAL", types)
        # Of decorations: a border, handles, the title, the menu and the minimize button.
        hints = self.properties("-id", window, "_MOTIF_WM_HINTS").split("=")[1].split(",")
        maximize_function, maximize_button = 1 << 4, 1 << 6
        self.assertEqual(int(hints[1], 0) & maximize_function, 0, hints)
        self.assertEqual(int(hints[2], 0) & maximize_button, 0, hints)


class FontFault(ProgramCase):
    """A system without the wished fonts gets the program in those that it has."""

    def run_without_fonts(self, folder_of_fonts):
        config = self.programs / "fonts.conf"
        config.write_text(f"""<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig><dir>{folder_of_fonts}</dir><cachedir>{self.programs}/cache</cachedir></fontconfig>
""", encoding="ascii")
        self.desk.environment["FONTCONFIG_FILE"] = str(config)
        process = self.start()
        window = self.wait_for_main_window()[0]
        self.assertIsNone(process.poll())
        width, height = self.desk.place_of(window)[2:]
        self.assertGreater(width, 300)
        self.assertGreater(height, 300)
        self.assertEqual(self.end_by_closing(process, window), 0)

    def test_only_other_fonts(self):
        fonts = self.programs / "fonts"
        fonts.mkdir()
        found = subprocess.run(["fc-match", "-f", "%{file}", "DejaVu Sans"], text=True,
                               capture_output=True, check=True).stdout
        shutil.copy(found, fonts)
        self.run_without_fonts(fonts)

    def test_no_font_at_all(self):
        self.run_without_fonts("/nonexistent")


class SmallScreen(ProgramCase):
    """On a screen smaller than the window, the window fits the screen and scrolls."""

    screen = "640x480x24"

    def test_window_fits_and_can_be_left(self):
        process = self.start()
        window = self.wait_for_main_window()[0]
        left, top, width, height = desk.wait_until(
            "the window has its place", lambda: self.inside(window, 640, 480))
        # At the top edge below its title bar; its border may lie outside the screen.
        border = 4
        self.assertLess(top, 40)
        self.assertGreaterEqual(left, 0)
        self.assertLessEqual(left + width, 640 + border)
        self.assertLessEqual(top + height, 480 + border)
        # The box of the exit can be reached and answered.
        self.ask_to_exit(window)
        self.desk.press("Return")
        self.assertEqual(self.ended(process), 0)

    def inside(self, window, width, height):
        place = self.desk.place_of(window)
        return place if place[2] <= width and place[3] <= height else None


class DisplayGone(ProgramCase):
    """A display that goes away ends the program; it neither hangs nor crashes. Each test has its own
    to lose."""

    @classmethod
    def setUpClass(cls):
        """The desks come with the tests."""

    def setUp(self):
        self.set_up_desk(self.addCleanup)
        super().setUp()

    def kill_display(self, process):
        screen = next(p for p in self.desk.processes if p.args[0] == "Xvfb")
        os.kill(screen.pid, signal.SIGKILL)
        screen.wait(desk.PATIENCE)
        status = self.ended(process)
        self.assertGreaterEqual(status, 0, f"ended by signal {-status}")

    def test_while_the_window_waits(self):
        process = self.start()
        self.wait_for_main_window()
        self.kill_display(process)

    def test_during_the_splash(self):
        process = self.start()
        desk.wait_until("the splash", self.windows)
        self.kill_display(process)

    def test_while_a_question_is_open(self):
        process = self.start()
        window = self.wait_for_main_window()[0]
        self.ask_to_exit(window)
        self.kill_display(process)

    def test_no_display_to_begin_with(self):
        self.desk.environment["DISPLAY"] = ":99999"
        # The toolkit's own message and end; no window, no hang.
        self.assertNotEqual(self.ended(self.start()), 0)


class SecondStart(ProgramCase):
    """A second start is a second window; the two know nothing of each other."""

    def test_two_beside_each_other(self):
        first = self.start()
        [first_window] = self.wait_for_main_window()
        second = self.start()
        windows = self.wait_for_main_window(2)
        second_window = next(window for window in windows if window != first_window)

        self.assertEqual(self.end_by_closing(first, first_window), 0)
        self.assertEqual(self.main_windows(), [second_window])
        self.assertIsNone(second.poll())
        self.assertEqual(self.end_by_closing(second, second_window), 0)


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    TARVIX = sys.argv.pop(1)
    try:
        with tempfile.TemporaryDirectory(prefix="tarvix-faults-") as scratch:
            desk.Desk(scratch).stop()
    except desk.CannotRun as reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)
