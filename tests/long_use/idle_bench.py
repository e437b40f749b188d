#!/usr/bin/python3
"""What the program does while nobody uses it: processor time and context switches of 20 seconds, as it
opens, and with the caret blinking in a field.

idle_bench.py TARVIX [SECONDS]     prints the figures; a bench, so it judges nothing
"""

import os
import pathlib
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "journeys"))
import desk  # noqa: E402  (found by the line above)


def usage(process):
    """Of every thread: processor seconds, voluntary and involuntary context switches so far."""
    threads = {}
    for task in pathlib.Path(f"/proc/{process.pid}/task").iterdir():
        fields = (task / "stat").read_text(encoding="ascii").rsplit(")", 1)[1].split()
        seconds = (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")
        status = (task / "status").read_text(encoding="ascii").splitlines()
        counts = dict(line.split(":") for line in status if "ctxt_switches" in line)
        threads[task.name] = (seconds, int(counts["voluntary_ctxt_switches"]),
                              int(counts["nonvoluntary_ctxt_switches"]))
    return threads


def rises(process, seconds):
    """By how much the three have risen after so many seconds, of all threads together."""
    before = usage(process)
    time.sleep(seconds)
    # A thread that has ended meanwhile has had its last.
    each = [[b - a for a, b in zip(before.get(thread, (0, 0, 0)), after)]
            for thread, after in usage(process).items()]
    return [sum(column) for column in zip(*each)]


def measure(what, process, seconds):
    processor, switches, forced = rises(process, seconds)
    print(f"{what:26} {seconds} s: {processor * 1000:.0f} ms of processor time, {switches} waits "
          f"({switches / seconds:.1f} a second), {forced} interruptions")


def main(tarvix, seconds):
    with tempfile.TemporaryDirectory(prefix="tarvix-idle-") as folder:
        desktop = desk.Desk(folder)
        try:
            # Nobody reads the window aloud, so that nothing but the program itself is measured.
            desktop.environment.pop("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", None)
            process = desktop.spawn(tarvix)
            time.sleep(8)  # the splash, and what the desktop does with a new window
            measure("as it opens", process, seconds)
            # The caret shows itself: on the way through the controls, it is in the first that blinks.
            for _ in range(20):
                desktop.press("Tab")
                time.sleep(0.5)
                if rises(process, 3)[1] > 0:
                    break
            measure("with the caret in a field", process, seconds)
        finally:
            desktop.stop()


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    main(sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else 20)
