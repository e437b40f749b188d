"""A desktop of the journeys' own: an X server without a screen, a window manager, the message buses
of the session and of its helpers for the disabled, and the program on it.

Nothing on it reaches the display, the printers or the settings of whoever runs the journeys.
"""

import contextlib
import importlib.util
import os
import pathlib
import re
import select
import shutil
import signal
import subprocess
import time

PATIENCE = 60  # seconds for anything that the program does by itself

# Where this is set, the window manager is slow: whatever a test does before it sees that it can be done
# is found by that.
SLOW = "TARVIX_SLOW_DESK"

TOOLS = ("Xvfb", "openbox", "xdotool", "xprop", "xwininfo", "import", "dbus-daemon")
BUS_LAUNCHER = "/usr/libexec/at-spi-bus-launcher"


class CannotRun(Exception):
    """The desktop can't be set up on this machine."""


def need(*tools):
    missing = [tool for tool in tools if shutil.which(tool) is None]
    if missing:
        raise CannotRun("not installed: " + ", ".join(missing))


def wait_until(what, condition):
    """Waits for a condition and returns its result; fails with `what` after PATIENCE."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        result = condition()
        if result:
            return result
        time.sleep(0.02)
    raise AssertionError(f"waited {PATIENCE} s in vain: {what}")


def comes_soon(condition, seconds=5):
    """Whether a condition comes true in a little while; what has not by then, is to be done again."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if condition():
            return True
        time.sleep(0.02)
    return False


def works(group):
    """Whether a process of the group runs; one that has ended, and was not asked how, does not."""
    for stat in pathlib.Path("/proc").glob("[0-9]*/stat"):
        with contextlib.suppress(OSError):
            state, _, its_group = stat.read_text().rpartition(")")[2].split()[:3]
            if int(its_group) == group and state != "Z":
                return True
    return False


class Desk:
    """The desktop. `environment` is what a program needs to run on it."""

    def __init__(self, folder, screen="1280x1024x24", window_manager="openbox"):
        """Without a window manager where that is None."""
        self.window_manager = window_manager
        need(*TOOLS, BUS_LAUNCHER, window_manager or "Xvfb")
        if importlib.util.find_spec("pyatspi") is None:
            raise CannotRun("not installed: pyatspi")
        self.folder = pathlib.Path(folder)
        self.processes = []
        for name in ("home", "runtime"):
            (self.folder / name).mkdir(mode=0o700)
        self.environment = {
            **{name: value for name, value in os.environ.items()
               if name not in ("WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "AT_SPI_BUS_ADDRESS")
               and not name.startswith("XDG_")},
            "HOME": str(self.folder / "home"),
            "XDG_RUNTIME_DIR": str(self.folder / "runtime"),
            "LC_ALL": "C.UTF-8",
            # The program tells helpers what it shows as soon as it starts.
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "GSETTINGS_BACKEND": "memory",
            # The sanitizer's search at the end of a program breaks off at times, where threads of a
            # bus are ending, too; the programs of tests are searched for leaks.
            "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0",
        }
        try:
            self.start_screen(screen)
            self.start_buses()
            self.start_window_manager()
        except BaseException:
            self.stop()
            raise

    def start_screen(self, screen):
        # It starts anew when its last client leaves, and turns away who comes just then; not this one.
        display = self.spawn_and_read("Xvfb", "-displayfd", "{}", "-screen", "0", screen,
                                      "-nolisten", "tcp", "-noreset")
        self.environment["DISPLAY"] = f":{display}"

    def start_window_manager(self):
        if self.window_manager is None:
            return
        if self.window_manager != "openbox":
            self.spawn(self.window_manager)
            wait_until(f"{self.window_manager} is ready", lambda: "window id" in self.ask(
                "xprop", "-root", "_NET_SUPPORTING_WM_CHECK"))
            return
        # What the window manager starts when it is ready inherits no pipe, so that has a name.
        ready = self.folder / "ready"
        os.mkfifo(ready)
        reading = os.open(ready, os.O_RDONLY | os.O_NONBLOCK)
        manager = self.spawn("openbox", "--sm-disable", "--startup", f"sh -c 'echo ready >{ready}'")
        with os.fdopen(reading):
            if not select.select([reading], [], [], PATIENCE)[0]:
                raise CannotRun(f"openbox does not start: {self.log()}")
        if SLOW in os.environ:
            self.slow_down(manager)

    def slow_down(self, process):
        """Lets a process work in short spells only, as on a machine that is busy with others."""
        stop, go_on = f"kill -STOP {process.pid}", f"kill -CONT {process.pid}"
        self.spawn("sh", "-c", f"trap '{go_on}; exit' TERM; "
                               f"while {stop}; do sleep 0.4; {go_on}; sleep 0.1; done")

    def start_buses(self):
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.spawn_and_read(
            "dbus-daemon", "--session", "--nofork", "--print-address={}")
        self.spawn(BUS_LAUNCHER, "--launch-immediately")

    def spawn(self, *command, **options):
        """Starts a process of the desktop, in a group of its own."""
        with open(self.folder / "desk.log", "ab") as log:
            process = subprocess.Popen(command, env=self.environment, stdin=subprocess.DEVNULL,
                                       stdout=log, stderr=log, start_new_session=True, **options)
        self.processes.append(process)
        return process

    def spawn_and_read(self, *command):
        """Starts a process that writes a line to the file descriptor in place of {}."""
        reading, writing = os.pipe()
        self.spawn(*(argument.replace("{}", str(writing)) for argument in command),
                   pass_fds=(writing,))
        os.close(writing)
        with os.fdopen(reading) as pipe:
            line = pipe.readline().strip()
        if not line:
            raise CannotRun(f"{command[0]} does not start: {self.log()}")
        return line

    def stop(self):
        """Ends every process of the desktop, the last started first, and what it has started: that
        would still write its settings into a folder that is being removed."""
        for process in reversed(self.processes):
            with contextlib.suppress(ProcessLookupError):
                os.killpg(process.pid, signal.SIGTERM)
            try:
                process.wait(PATIENCE)
                wait_until("the end of what a process has started",
                           lambda group=process.pid: not works(group))
            except (subprocess.TimeoutExpired, AssertionError):
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()
        self.processes.clear()

    def log(self):
        return (self.folder / "desk.log").read_text(errors="replace")[-2000:]

    # The hands: keys and mouse, from outside the program.

    def xdotool(self, *arguments):
        return self.ask("xdotool", *map(str, arguments)).strip()

    def press(self, *keys):
        """Presses keys one after the other; each by its X name, as in ctrl+p."""
        self.xdotool("key", "--clearmodifiers", *keys)

    def write(self, text):
        self.xdotool("type", "--clearmodifiers", text)

    def click(self, x, y):
        self.xdotool("mousemove", x, y, "click", 1)

    # The eyes.

    def wait_for_window(self, title):
        """The one window on the screen whose title matches."""
        def look():
            windows = self.search(title)
            return windows[0] if len(windows) == 1 else None
        return wait_until(f"one window {title}", look)

    def wait_for_keyboard(self, window):
        """Waits until keys go to a window: a busy window manager gives it the keyboard long after it
        can be seen, and keys pressed before that are lost."""
        wait_until(f"the window {window} has the keyboard",
                   lambda: self.xdotool("getwindowfocus", "-f") == window)

    def activate(self, window):
        """Brings a window to the front, with the keyboard."""
        self.xdotool("windowactivate", window)
        self.wait_for_keyboard(window)

    def search(self, title):
        """The windows on the screen whose titles match. The search breaks off without an answer where
        a window goes away while it looks, be it the clipboard's; then it looks again."""
        def look():
            found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title],
                                   env=self.environment, text=True, capture_output=True,
                                   timeout=PATIENCE, check=False)
            return None if "X Error" in found.stderr else (found.stdout.split(),)
        return wait_until("a search for windows", look)[0]

    def ask(self, *command):
        """What a command that looks at the screen says."""
        return subprocess.run(command, env=self.environment, text=True, capture_output=True,
                              timeout=PATIENCE, check=False).stdout

    def place_of(self, window):
        """Left, top, width and height of a window without its frame."""
        info = self.ask("xwininfo", "-id", window)
        return [int(re.search(rf"{what}: +(-?\d+)", info).group(1)) for what in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]

    def frame_of(self, window):
        """Left, top, right and bottom of a window with what the window manager adds to it."""
        left, top, width, height = self.place_of(window)
        west = east = north = south = 0
        if self.window_manager:
            extents = self.ask("xprop", "-id", window, "-notype", "_NET_FRAME_EXTENTS")
            west, east, north, south = (int(side) for side in extents.split("=")[1].split(","))
        return left - west, top - north, left + width + east, top + height + south

    def take_picture(self, file):
        subprocess.run(["import", "-window", "root", str(file)], env=self.environment,
                       timeout=PATIENCE, check=True)
