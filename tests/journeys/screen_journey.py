#!/usr/bin/env python3
"""The main window on screens of several sizes, under a real window manager: whole and without scroll
bars where it fits, else scrolling, with nothing out of reach.

    screen_journey.py PROGRAM

Where the desktop can't be set up, the journey says so and ends with exit status 77: skipped.
"""

import os
import subprocess
import sys
import tempfile

import desk as desks
from desk import wait_until

SKIPPED = 77

# A desktop of which the toolkit knows where it keeps its font.
DESKTOP = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5"}
SETTINGS = "[General]\nfont=DejaVu Sans,10,-1,5,50,0,0,0,0,0\n"


def check(what, is_so):
    print(f"{'ok' if is_so else 'FAILED'}: {what}")
    if not is_so:
        raise AssertionError(what)


def window_frame(desk):
    return desk.frame_of(desk.xdotool("getactivewindow"))


def size_of(frame):
    left, top, right, bottom = frame
    return right - left, bottom - top


def scroll_bars(program):
    return [bar for bar in program.find_all("scroll bar") if bar.place.width > 0]


def fits(desk, program, width, height):
    left, top, right, bottom = window_frame(desk)
    print(f"window {left}, {top} to {right}, {bottom} on {width} x {height}")
    check("the whole window is on the screen",
          left >= 0 and top >= 0 and right <= width and bottom <= height)
    check("it is centered", abs(left + right - width) <= 2 and abs(top + bottom - height) <= 40)
    check("there are no scroll bars", scroll_bars(program) == [])
    icon = desk.ask("xprop", "-id", desk.xdotool("getactivewindow"), "_NET_WM_ICON")
    check("the window has an icon for title bars", "Icon (48 x 48)" in icon)
    message = max(program.find_all("alert"), key=lambda alert: alert.place.y).place
    check("the message line, which is the last, is on the screen",
          message.y + message.height <= bottom)
    keeps_a_size(desk, program)


def keeps_a_size(desk, program):
    """No button to maximize is asked for; where the window manager maximizes all the same, that changes
    nothing. Made as small as can be, the window still shows a frame and the message line."""
    window = desk.xdotool("getactivewindow")
    whole = window_frame(desk)
    hints = desk.ask("xprop", "-id", window, "-notype", "_MOTIF_WM_HINTS").split("=")[1]
    _, functions, decorations, *_ = (int(word, 16) for word in hints.split(","))
    check("it asks for a button to minimize and for none to maximize",
          functions & 0x18 == 0x08 and decorations & 0x60 == 0x20)
    left, top, right, _ = whole
    desk.xdotool("mousemove", (left + right) // 2, top + 8, "click", "--repeat", 2, 1)

    def has_moved():
        desk.xdotool("windowmove", window, left + 10, top + 10)
        return window_frame(desk)[:2] != whole[:2]
    # A window manager moves the window after it has looked at the double click, and none that it has
    # maximized.
    wait_until("the window is moved", has_moved)
    wait_until("after a double click the window is as large as it was, and not maximized",
               lambda: size_of(window_frame(desk)) == size_of(whole) and (
                   "MAXIMIZED" not in desk.ask("xprop", "-id", window, "_NET_WM_STATE")))
    desk.xdotool("windowsize", window, 1, 1)
    wait_until("the window is smaller",
               lambda: size_of(window_frame(desk)) != size_of(whole))
    wait_until("it scrolls", lambda: len(scroll_bars(program)) == 2)
    left, top, right, bottom = window_frame(desk)
    print(f"smallest: {right - left} x {bottom - top}")

    def is_inside(control):
        place = control.place
        return (left <= place.x and place.x + place.width <= right
                and top <= place.y and place.y + place.height <= bottom)
    check("the message line is in the smallest window",
          is_inside(max(program.find_all("alert"), key=lambda alert: alert.place.y)))
    check("and a whole frame", any(
        panel.name and is_inside(panel) for panel in program.find_all("panel")))


def scrolls(desk, program, width, height):
    left, top, right, bottom = window_frame(desk)
    print(f"window {left}, {top} to {right}, {bottom} on {width} x {height}")
    check("the window is on the screen",
          left >= 0 and top >= 0 and right <= width and bottom <= height)
    check("there is one scroll bar", len(scroll_bars(program)) == 1)
    field = program.field("Beta Ratio")
    check("the last field is out of sight", field.place.y > bottom)
    focused = program.focused()
    for _ in range(30):
        if focused.name == "Exit":
            break
        desk.press("Tab")

        def other(former=focused.name):
            control = program.focused()
            return control if control and control.name != former else None
        focused = wait_until(f"the focus leaves {focused.name}", other)
        place = focused.place
        check(f"{focused.name} is seen when it has the focus",
              top <= place.y and place.y + place.height <= bottom and left <= place.x
              and place.x + place.width <= right)
    check("the Tab key has led through the whole window", focused.name == "Exit")


def main():
    if len(sys.argv) not in (2, 4):
        print(__doc__, file=sys.stderr)
        return 2
    file = os.path.abspath(sys.argv[1])
    if len(sys.argv) == 2:
        # The accessibility bus is found once in a process, so each screen gets one.
        for screen, look in (("1024x768", "fits"), ("1280x1024", "fits"), ("1024x600", "scrolls")):
            result = subprocess.run([sys.executable, __file__, file, screen, look], check=False)
            if result.returncode != 0:
                return result.returncode
        return 0
    width, height = (int(part) for part in sys.argv[2].split("x"))
    with tempfile.TemporaryDirectory(prefix="screen-") as folder:
        try:
            desk = desks.Desk(folder, f"{width}x{height}x24")
        except desks.CannotRun as reason:
            print(f"SKIPPED: the screen journey: {reason}")
            return SKIPPED
        os.environ.update(desk.environment)
        try:
            import program as programs  # pylint: disable=import-outside-toplevel
            settings = desk.folder / "home" / ".config"
            settings.mkdir()
            (settings / "kdeglobals").write_text(SETTINGS)
            program = programs.Program(desk, file, **DESKTOP)
            program.wait_for_main_window()
            {"fits": fits, "scrolls": scrolls}[sys.argv[3]](desk, program, width, height)
        except AssertionError as fault:
            print(f"FAILED: {fault}")
            return 1
        finally:
            desk.stop()
    return 0


if __name__ == "__main__":
    sys.exit(main())
