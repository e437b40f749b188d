"""A Windows of the tests' own: Wine with a folder for its drive and registry, in a locale.

Nothing of it reaches the settings, the display or the printers of whoever runs the tests.
"""

import os
import pathlib
import shutil
import subprocess
import tempfile

PATIENCE = 300  # seconds for one program
SKIPPED = 77
LOCALES = ("en_US", "de_DE")

# What the program asks Windows for, and what the machine has in its place.
FONTS = {"Segoe UI": "DejaVu Sans", "Tahoma": "DejaVu Sans", "MS Shell Dlg": "DejaVu Sans",
         "MS Shell Dlg 2": "DejaVu Sans", "MS Sans Serif": "DejaVu Sans",
         "Microsoft Sans Serif": "DejaVu Sans", "Courier New": "Liberation Mono"}


class CannotRun(Exception):
    """Wine can't be set up on this machine."""


def run_in_wine(what, work):
    """Calls `work` with a Wine, and returns the exit status: 0 where it returns that all is good."""
    with tempfile.TemporaryDirectory(prefix="tarvix-wine-") as folder:
        try:
            wine = Wine(folder)
        except CannotRun as reason:
            print(f"SKIPPED: {what} under Wine: {reason}")
            return SKIPPED
        try:
            return 0 if work(wine) else 1
        finally:
            wine.stop()


class Wine:
    """`environment` is what a Windows program needs to run; `home` is the Windows user's folder."""

    def __init__(self, folder, extra=None):
        missing = [tool for tool in ("wine", "wineserver", "localedef") if self.tool(tool) is None]
        if missing:
            raise CannotRun("not installed: " + ", ".join(missing))
        self.folder = pathlib.Path(folder)
        self.prefix = self.folder / "wine"
        for name in ("wine-home", "locale"):
            (self.folder / name).mkdir()
        self.environment = {
            **{name: value for name, value in os.environ.items()
               if name not in ("DISPLAY", "WAYLAND_DISPLAY", "LANG", "LANGUAGE", "QT_QPA_PLATFORM")
               and not name.startswith(("LC_", "WINE", "XDG_"))},
            "HOME": str(self.folder / "wine-home"),
            "WINEPREFIX": str(self.prefix),
            "WINEDEBUG": "-all",
            # Neither .NET nor a browser, whose setup would ask for them.
            "WINEDLLOVERRIDES": "mscoree,mshtml=",
            "LOCPATH": str(self.folder / "locale"),
            # No printer of this machine.
            "CUPS_SERVER": "127.0.0.1:1",
            **(extra or {}),
        }
        for locale in LOCALES:
            subprocess.run([self.tool("localedef"), "-i", locale, "-f", "UTF-8",
                            str(self.folder / "locale" / f"{locale}.UTF-8")],
                           capture_output=True, timeout=PATIENCE, check=False)
            if not (self.folder / "locale" / f"{locale}.UTF-8").is_dir():
                raise CannotRun(f"localedef does not make {locale} (package locales)")
        self.set_locale("en_US")
        self.wine("wineboot", "-i")
        self.write_registry()
        self.first_program = self.keep_running()

    @staticmethod
    def tool(name):
        # Debian keeps the server beside Wine's other parts.
        return shutil.which(name, path=os.environ["PATH"] + ":/usr/lib/wine:/usr/sbin")

    def set_locale(self, locale):
        self.environment["LC_ALL"] = f"{locale}.UTF-8"

    def write_registry(self):
        lines = ["Windows Registry Editor Version 5.00", "", r"[HKEY_CURRENT_USER\Software\Wine]",
                 '"Version"="win10"', "", r"[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]",
                 *(f'"{name}"="{here}"' for name, here in FONTS.items()), ""]
        file = self.folder / "settings.reg"
        file.write_text("\r\n".join(lines), encoding="utf-16")
        self.wine("regedit", "/S", str(file))

    def keep_running(self):
        """Windows shuts down when its last program ends, and a program that starts meanwhile fails. So
        one program is always there: an interpreter that waits for a command."""
        interpreter = subprocess.Popen(
            [self.tool("wine"), "cmd", "/q"], env=self.environment, stdin=subprocess.PIPE,
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        interpreter.stdin.write(b"echo is ready\r\n")
        interpreter.stdin.flush()
        for line in interpreter.stdout:
            if b"is ready" in line:
                return interpreter
        raise CannotRun("wine cmd does not start")

    @property
    def home(self):
        return next(user for user in (self.prefix / "drive_c/users").iterdir()
                    if user.name != "Public")

    def run(self, program, *arguments, **options):
        """Runs a program to its end and returns what it wrote and its exit status."""
        return subprocess.run([self.tool("wine"), str(program), *map(str, arguments)],
                              env=self.environment, capture_output=True, timeout=PATIENCE,
                              check=False, **options)

    def wine(self, *command):
        done = self.run(*command)
        if done.returncode != 0:
            raise CannotRun(f"wine {' '.join(command)} ends with {done.returncode}: "
                            f"{done.stderr.decode(errors='replace')[-1000:]}")

    def wrapper(self, program, locale="en_US"):
        """A program of this machine that runs the Windows program."""
        settings = {**self.environment, "LC_ALL": f"{locale}.UTF-8"}
        names = ("HOME", "WINEPREFIX", "WINEDEBUG", "WINEDLLOVERRIDES", "LOCPATH", "CUPS_SERVER",
                 "LC_ALL")
        file = self.folder / f"{pathlib.Path(program).stem}-{locale}"
        exports = "\n".join(f"export {name}='{settings[name]}'" for name in names)
        # Wine keeps the variables of this machine's Qt from Windows programs, unless it is told so.
        file.write_text(f"#!/bin/sh\n{exports}\nunset DISPLAY\n"
                        'export WINEQT_QPA_PLATFORM="$QT_QPA_PLATFORM"\n'
                        f"exec '{self.tool('wine')}' '{os.path.abspath(program)}' \"$@\"\n")
        file.chmod(0o755)
        return str(file)

    def registry(self, key):
        """What stands below a key of the user's registry; "" where there is no such key."""
        done = self.run("reg", "query", key, "/s")
        return done.stdout.decode(errors="replace") if done.returncode == 0 else ""

    def stop(self):
        for argument in ("-k", "-w"):
            subprocess.run([self.tool("wineserver"), argument], env=self.environment,
                           capture_output=True, timeout=PATIENCE, check=False)
        self.first_program.communicate(timeout=PATIENCE)
