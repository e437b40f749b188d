#!/usr/bin/env python3
"""The main window under several window managers, on screens of several sizes, at several scales and
sizes of fonts: whole, centered and without scroll bars where there is room; else scrolling, with the
message line, the control that has the focus and the caption of its frame in sight.

    screen_matrix.py WINDOW_ON_SCREEN [--full] [--pictures FOLDER]

Without --full a part of the matrix, in which each value of it meets most others. Where a desktop
can't be set up, the journey says so and ends with exit status 77: skipped.
"""

import argparse
import itertools
import json
import pathlib
import re
import subprocess
import sys
import tempfile

import desk as desks

SKIPPED = 77

WINDOW_MANAGERS = ("openbox", "xfwm4", None)
SCREENS = ((800, 600), (1024, 768), (1366, 768), (1920, 1080), (2560, 1800))
SCALES = (1, 1.25, 1.5, 1.75, 2, 2.5)
FONT_DPIS = (96, 120, 144, 168)

# A liquid's flow rate, up to a result.
RUN = ("click optLiquid", "click optCalcFR", "type txtSGf 1", "type txtSGb 1",
       "choose cboNomSize 4", "type txtDeltaP 100", "type txtBeta 0.5")


class Places:
    """What the X server tells about the places of windows, from now on."""

    EVENT = re.compile(r"(Configure|Map)Notify event.*?event 0x\w+, window (0x\w+)"
                       r"(?:, \((-?\d+),(-?\d+)\), width (\d+), height (\d+))?", re.S)

    def __init__(self, desk):
        self.log = pathlib.Path(desk.folder) / "places.log"
        with open(self.log, "wb") as output:
            self.process = subprocess.Popen(
                ["stdbuf", "-oL", "xev", "-root", "-event", "substructure", "-event", "property"],
                env=desk.environment, stdin=subprocess.DEVNULL, stdout=output,
                stderr=subprocess.DEVNULL)
        desks.wait_until("the events of the X server", lambda: self.hears(desk))

    def hears(self, desk):
        subprocess.run(["xprop", "-root", "-f", "_HEARD", "8s", "-set", "_HEARD", "yes"],
                       env=desk.environment, check=True)
        return "PropertyNotify" in self.log.read_text()

    def jumps(self):
        """The places that a window took when it could be seen already."""
        self.process.terminate()
        self.process.wait(desks.PATIENCE)
        places, seen, jumps = {}, set(), []
        for kind, window, *place in self.EVENT.findall(self.log.read_text()):
            if kind == "Map":
                seen.add(window)
            elif place != places.get(window):
                if window in seen:
                    jumps.append(f"{places.get(window)} to {place}")
                places[window] = place
        return jumps if seen else ["no window was seen"]


class Window:
    """The window of window_on_screen, which runs."""

    def __init__(self, file, environment):
        self.process = subprocess.Popen([file], env=environment, stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                        text=True)

    def ask(self, line):
        self.process.stdin.write(line + "\n")
        self.process.stdin.flush()
        answer = self.process.stdout.readline()
        assert answer, f"the window ended after '{line}'"
        return json.loads(answer)

    def close(self):
        """Ends the window; its exit status."""
        self.process.stdin.close()
        status = self.process.wait(desks.PATIENCE)
        self.process.stdout.close()
        return status


def faults_of(measured, frame, screen, scale):
    """What is wrong with the window as it has opened."""
    left, top, right, bottom = frame
    width, height = screen
    framing = (right - left - measured["window"][0] * scale,
               bottom - top - measured["window"][1] * scale)
    fits = [measured["whole"][i] * scale + framing[i] + scale <= screen[i] for i in (0, 1)]
    # A scroll bar for one direction takes room in the other.
    bar = 20 * scale
    bars_fit = [fits[i] and (fits[1 - i] or
                             measured["whole"][i] * scale + framing[i] + bar <= screen[i])
                for i in (0, 1)]
    faults = []
    # Two pixels of the form on the screen: what is rounded in the toolkit and by window managers.
    tolerance = 2 * scale + 1
    if fits[0] and abs(left + right - width) > 2 * tolerance:
        faults.append(f"not centered across: {left} to {right}")
    if fits[1] and abs(top + bottom - height) > 2 * tolerance:
        faults.append(f"not centered: {top} to {bottom}")
    if left < -tolerance or top < -tolerance or right > width + tolerance or (
            bottom > height + tolerance):
        faults.append(f"not on the screen: {frame}")
    if fits[0] and fits[1] and not measured["last"]:
        faults.append("the last controls are cut")
    if bars_fit[0] and measured["across"] or bars_fit[1] and measured["down"]:
        faults.append("a needless scroll bar")
    if not measured["message"]:
        faults.append("the message line is cut")
    return faults


def check(desk, file, screen, scale, dpi, picture):
    """The faults of one window."""
    places = Places(desk)
    window = Window(file, {**desk.environment, "QT_QPA_PLATFORM": "xcb",
                           "QT_SCALE_FACTOR": str(scale), "QT_FONT_DPI": str(dpi)})
    try:
        window.ask("measure")  # answered when it is on the screen
        frame = desk.frame_of(desk.wait_for_window("^Brindle Tarvix$"))
        measured = window.ask("measure")
        faults = faults_of(measured, frame, screen, scale)
        faults += [f"jumps: {jump}" for jump in places.jumps()]
        tour = window.ask("tour")
        if tour["visited"] < 15:
            faults.append(f"the tour met {tour['visited']} controls")
        if tour["unseen"]:
            faults.append("with the focus not seen: " + ", ".join(tour["unseen"]))
        for line in RUN:
            if not window.ask(line)["played"]:
                faults.append(f"not played: {line}")
        if not window.ask("measure")["message"]:
            faults.append("the message line is cut after a run")
        if picture:
            desk.take_picture(picture)
        scrolls = "".join(letter for letter, name in (("-", "across"), ("|", "down"))
                          if measured[name])
        return faults, f"{frame} {scrolls}"
    finally:
        window.close()


def sample():
    """A part of the matrix: every window manager on every screen, with scales and fonts in turn."""
    for index, (manager, screen) in enumerate(itertools.product(WINDOW_MANAGERS, SCREENS)):
        if manager is None and screen != SCREENS[3]:
            continue
        yield manager, screen, [(SCALES[(index + 2) % 6], FONT_DPIS[0]),
                                (SCALES[(index + 5) % 6], FONT_DPIS[index % 4])]


def whole():
    for manager, screen in itertools.product(WINDOW_MANAGERS, SCREENS):
        yield manager, screen, list(itertools.product(SCALES, FONT_DPIS))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("window_on_screen")
    parser.add_argument("--full", action="store_true")
    parser.add_argument("--pictures", type=pathlib.Path)
    options = parser.parse_args()
    if options.pictures:
        options.pictures.mkdir(parents=True, exist_ok=True)
    count = bad = 0
    for manager, screen, cases in whole() if options.full else sample():
        name = f"{manager or 'none'}-{screen[0]}x{screen[1]}"
        with tempfile.TemporaryDirectory(prefix="matrix-") as folder:
            try:
                desk = desks.Desk(folder, f"{screen[0]}x{screen[1]}x24", manager)
            except desks.CannotRun as reason:
                print(f"SKIPPED: the matrix of screens: {reason}")
                return SKIPPED
            try:
                for scale, dpi in cases:
                    picture = options.pictures and (
                        options.pictures / f"{name}-scale{scale}-dpi{dpi}.png")
                    faults, seen = check(desk, options.window_on_screen, screen, scale, dpi,
                                         picture)
                    count += 1
                    bad += bool(faults)
                    print(f"{'FAILED' if faults else 'ok'}: {name} scale {scale} font {dpi}: {seen}"
                          + "".join(f"\n    {fault}" for fault in faults), flush=True)
            finally:
                desk.stop()
    print(f"{count} windows, {bad} with faults")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
