#!/usr/bin/python3
"""The installer under Wine, as a user without an administrator would meet it: installed silently, the
program started from there, taken away without leftovers.

    installer_under_wine.py SETUP PROGRAM_FOLDER

PROGRAM_FOLDER: what has to be installed. Exit status 77: the desktop can't be set up here.
"""

import pathlib
import sys
import tempfile
import unittest

import windows_desk

wait_until = windows_desk.desks.wait_until
UNINSTALL = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall"

setup = program_folder = pathlib.Path()


def files_in(folder):
    return {str(path.relative_to(folder)): path.read_bytes()
            for path in sorted(folder.rglob("*")) if path.is_file()}


class Installer(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory(prefix="tarvix-installer-")
        self.addCleanup(scratch.cleanup)
        try:
            self.desk = windows_desk.WindowsDesk(scratch.name, printers=False)
        except windows_desk.CANNOT_RUN as reason:
            self.skipTest(str(reason))
        self.addCleanup(self.desk.stop)
        self.wine = self.desk.wine
        self.installed = self.wine.home / "AppData/Local/Programs/Tarvix"
        self.shortcut = (self.wine.home /
                         "AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Tarvix.lnk")

    def everything(self):
        """Every file and folder of the drive. What Windows itself keeps for its own is left out."""
        drive = self.wine.prefix / "drive_c"
        return {str(path.relative_to(drive)) for path in drive.rglob("*")}

    def install(self, *arguments):
        done = self.wine.run(setup, "/S", *arguments)
        self.assertEqual(done.returncode, 0, done.stderr)

    def uninstall(self):
        done = self.wine.run(self.installed / "uninstall.exe", "/S")
        self.assertEqual(done.returncode, 0, done.stderr)
        # It goes on as a copy of itself, so that it can take itself away.
        wait_until("the uninstaller has ended", lambda: not self.installed.exists())

    def test_installed_started_removed(self):
        before = self.everything()
        self.install()
        there = files_in(self.installed)
        self.assertIn("uninstall.exe", there)
        del there["uninstall.exe"]
        self.assertEqual(there, files_in(program_folder))
        self.assertTrue(self.shortcut.is_file())
        entry = self.wine.registry(UNINSTALL + r"\Tarvix")
        for name in ("DisplayName", "DisplayVersion", "UninstallString", "QuietUninstallString"):
            self.assertIn(name, entry)

        self.desk.start_windows_program(self.installed / "tarvix.exe")
        self.desk.wait_for_window()
        # While it runs it is neither replaced nor removed.
        self.assertEqual(self.wine.run(setup, "/S").returncode, 2)
        self.desk.desk.press("alt+F4")
        self.assertEqual(self.desk.program_ends(), 0)
        # Once more over itself, as an update does.
        self.install()

        # What is the user's own stays.
        own = self.installed / "my notes.txt"
        own.write_text("mine")
        done = self.wine.run(self.installed / "uninstall.exe", "/S")
        self.assertEqual(done.returncode, 0)
        wait_until("the program is gone", lambda: sorted(self.installed.rglob("*")) == [own])
        own.unlink()
        self.installed.rmdir()
        self.assertNotIn("Tarvix", self.wine.registry(UNINSTALL))

        self.install()
        self.uninstall()
        self.assertFalse(self.shortcut.exists())
        self.assertNotIn("Tarvix", self.wine.registry(UNINSTALL))
        left = self.everything() - before
        self.assertEqual({path for path in left if "arvix" in path}, set())
        self.assertEqual({path for path in left if not path.startswith("users/")}, set())


def main():
    global setup, program_folder
    if len(sys.argv) < 3:
        print(__doc__, file=sys.stderr)
        return 2
    setup, program_folder = (pathlib.Path(argument).absolute() for argument in sys.argv[1:3])
    return windows_desk.run_tests("the installer under Wine", sys.argv[3:])


if __name__ == "__main__":
    sys.exit(main())
