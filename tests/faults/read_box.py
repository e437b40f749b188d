#!/usr/bin/python3
"""Prints the title and the texts of the message box that is shown, as a screen reader reads them."""

import sys
import time

import pyatspi

BOXES = ("alert", "dialog")
PATIENCE = 60


def texts_of(accessible):
    for child in accessible:
        if child is None:
            continue
        if child.getRoleName() == "label" and child.name:
            yield child.name
        yield from texts_of(child)


def shown_box():
    for application in pyatspi.Registry.getDesktop(0):
        for window in application or ():
            if window is not None and window.getRoleName() in BOXES:
                return window
    return None


def main():
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        box = shown_box()
        if box is not None:
            print(box.name)
            for text in texts_of(box):
                print(text)
            return 0
        time.sleep(0.05)
    print("no box is shown", file=sys.stderr)
    return 1


sys.exit(main())
