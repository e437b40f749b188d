#!/usr/bin/env python3
"""The main window on a Wayland desktop: it starts, a run is typed, and what the compositor shows on
its screen is the window with the result.

    wayland_journey.py WINDOW_ON_SCREEN TARVIX

Where the compositor can't be started, the journey says so and ends with exit status 77: skipped.
"""

import os
import pathlib
import subprocess
import sys
import tempfile

from desk import PATIENCE, CannotRun, need, wait_until
from screen_matrix import RUN, SKIPPED, Window


class Compositor:
    """Weston without a screen, of which pictures can be taken."""

    def __init__(self, folder):
        need("weston", "weston-screenshooter", "convert")
        self.folder = pathlib.Path(folder)
        self.folder.chmod(0o700)
        self.environment = {
            **{name: value for name, value in os.environ.items() if name != "DISPLAY"},
            "HOME": str(folder), "XDG_RUNTIME_DIR": str(folder), "LC_ALL": "C.UTF-8",
            "WAYLAND_DISPLAY": "wayland-tarvix", "QT_QPA_PLATFORM": "wayland",
            # This compositor has no keyboard, on which the toolkit's own input method relies.
            "QT_IM_MODULE": "compose",
            # The toolkit's plugin leaves queues of the Wayland library behind, and is unloaded before
            # they are looked for: nothing by which to tell its leaks from others.
            "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0"}
        log = self.folder / "weston.log"
        with open(log, "wb") as output:
            # Debugging allows to take pictures.
            self.process = subprocess.Popen(
                ["weston", "--backend=headless-backend.so", "--use-pixman", "--no-config",
                 "--width=1280", "--height=1024", "--idle-time=0", "--debug",
                 "--socket=wayland-tarvix"],
                env=self.environment, stdin=subprocess.DEVNULL, stdout=output, stderr=output)
        wait_until("the compositor", lambda: self.is_ready(log))

    def is_ready(self, log):
        if self.process.poll() is not None:
            raise CannotRun(f"weston does not start: {log.read_text(errors='replace')[-1000:]}")
        return (self.folder / "wayland-tarvix").is_socket()

    def picture(self):
        """The screen: its width, and its pixels as bytes of red, green and blue."""
        subprocess.run(["weston-screenshooter"], env=self.environment, cwd=self.folder, check=True,
                       timeout=PATIENCE, capture_output=True)
        [file] = self.folder.glob("wayland-screenshot*.png")
        pixels = pixels_of(file)
        file.unlink()
        return pixels

    def stop(self):
        self.process.terminate()
        self.process.wait(PATIENCE)


def pixels_of(file):
    return subprocess.run(["convert", str(file), "-depth", "8", "rgb:-"], check=True,
                          capture_output=True, timeout=PATIENCE).stdout


def rows_of(file):
    size = subprocess.run(["identify", "-format", "%w", str(file)], check=True, text=True,
                          capture_output=True, timeout=PATIENCE).stdout
    row = 3 * int(size)
    pixels = pixels_of(file)
    return [pixels[start:start + row] for start in range(0, len(pixels), row)]


def check(what, is_so):
    print(f"{'ok' if is_so else 'FAILED'}: {what}")
    if not is_so:
        raise AssertionError(what)


def play(compositor, file):
    window = Window(file, compositor.environment)
    measured = window.ask("measure")
    check("the window is whole and without scroll bars",
          measured["message"] and not measured["across"] and not measured["down"])
    for line in (*RUN, "focus optCalcFR"):
        check(line, window.ask(line)["played"])
    flow = window.ask("state")["controls"]["txtFlow"]["text"]
    window.process.stdout.readline()
    check(f"the flow rate is 142.3: {flow}", flow == "142.3")
    own = compositor.folder / "window.png"
    window.ask(f"picture {own}")
    rows = rows_of(own)
    # Each row of the window, without the rounded ends, stands on the screen.
    margin = 3 * 8

    def shown():
        screen = compositor.picture()
        return sum(row[margin:-margin] in screen for row in rows)
    wait_until(f"the {len(rows)} rows of the window on the screen",
               lambda: shown() >= 0.98 * len(rows))
    print("ok: the screen shows the window with its result")
    check("the window ends", window.close() == 0)


def start_and_end(compositor, program):
    """The program itself: the splash, then the main window, which stays."""
    before = compositor.picture()
    with subprocess.Popen([program], env=compositor.environment, stdin=subprocess.DEVNULL) as run:
        green = bytes((0, 255, 0)) * 100
        wait_until("the green bars of the main window", lambda: green in compositor.picture())
        check("they were not there before", green not in before)
        check("the program runs", run.poll() is None)
        run.terminate()


def main():
    if len(sys.argv) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    with tempfile.TemporaryDirectory(prefix="wayland-") as folder:
        try:
            compositor = Compositor(folder)
        except CannotRun as reason:
            print(f"SKIPPED: the Wayland journey: {reason}")
            return SKIPPED
        try:
            start_and_end(compositor, os.path.abspath(sys.argv[2]))
            play(compositor, os.path.abspath(sys.argv[1]))
        except AssertionError as fault:
            print(f"FAILED: {fault}")
            return 1
        finally:
            compositor.stop()
    return 0


if __name__ == "__main__":
    sys.exit(main())
