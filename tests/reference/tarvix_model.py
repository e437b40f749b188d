#!/usr/bin/env python3
"""A second implementation of the calculator window, for comparing with the program itself.

Plays the script language of the window_script player against a model that shares no code with the
program, and writes the same JSON lines: what a user would see after each action. What the product
does not fix (a colour that is never set, the focus at start) is left out of the state.

    tarvix_model.py < script
"""

import json
import re
import sys

from tarvix_numbers import number_locale
from tarvix_options import Window
from tarvix_window import Ended

KEY_NAMES = ("Backspace", "Delete", "Left", "Right", "Home", "End", "Tab", "Enter", "Esc",
             "SelectAll")
_KEYS = re.compile(r"\{(%s)\}|(.)" % "|".join(KEY_NAMES), re.DOTALL)


class Refused(Exception):
    """A user could not do that."""


class Undefined(Exception):
    """What follows depends on something that the product leaves to the toolkit."""


def split_keys(text):
    return [match.group(1) or match.group(2) for match in _KEYS.finditer(text)]


class Model:
    """The window and the script that drives it."""

    def __init__(self, locale_name="en_US"):
        self.window = Window(number_locale(locale_name))
        self.ended = None
        try:
            self.window.Form_Load()
            self.window.Form_Activate()
        except Ended as end:
            self.ended = str(end)

    # --- one command -----------------------------------------------------------------------------

    def play(self, line):
        """Plays one line; returns what is written for it (a dict) or None."""
        command = line.lstrip()
        if command.strip() == "" or command.startswith("#") or self.ended:
            return None
        word, _, rest = command.rstrip("\r\n").partition(" ")
        try:
            if word.strip() == "state":
                return self.state()
            getattr(self, "do_" + word)(rest)
        except Refused as refusal:
            return {"refused": line.strip("\r\n"), "why": str(refusal)}
        except Ended as end:
            self.ended = str(end)
            return {"ended": self.ended}
        return None

    def _usable(self, name):
        window = self.window
        if name not in window.all:
            raise Refused("no such control")
        if not window.visible(name) or not window.enabled(name):
            raise Refused("not visible or not enabled")
        return window[name]

    def _typable(self, name):
        control = self._usable(name)
        if control.kind != "field" or control.locked:
            raise Refused("nothing can be typed there")
        return control

    def _focus(self, name):
        self.window.focus = name
        self.window.select_all(name)

    def do_locale(self, name):
        self.__init__(name.strip())

    def do_click(self, rest):
        name = rest.strip()
        control = self._usable(name)
        if control.kind not in ("option", "button"):
            raise Refused("nothing to click")
        if not name.startswith("mnu"):
            self.window.focus = name
        if control.kind == "option":
            self.window.select_option(name)
        else:
            getattr(self.window, name + "_Click", lambda: None)()

    def do_focus(self, rest):
        self._usable(rest.strip())
        self._focus(rest.strip())

    def do_type(self, rest):
        name, _, text = rest.partition(" ")
        self._typable(name)
        self._focus(name)
        for key in text:
            self.window.press(key)

    def do_keys(self, text):
        focus = self.window.focus
        if focus is None:
            raise Undefined("keys while the focus is not known")
        for key in split_keys(text):
            if self.window.focus is not None and self.window[self.window.focus].kind == "field":
                self.window.press(key)

    def do_paste(self, rest):
        name, _, text = rest.partition(" ")
        self._typable(name)
        self._focus(name)
        self.window.replace_all(text)

    def do_choose(self, rest):
        name, _, text = rest.partition(" ")
        control = self._usable(name)
        if control.kind != "list":
            raise Refused("no list")
        if re.fullmatch(r"#[0-9]+", text):
            index = int(text[1:])
        else:
            index = control.items.index(text) if text in control.items else len(control.items)
        if index >= len(control.items):
            raise Refused("no such entry")
        self.window.focus = name
        self.window.select_item(name, index)

    def do_answer(self, rest):
        kind, _, text = rest.partition(" ")
        self.window.answers.append(("text", text) if kind == "text" else (kind.strip(), None))

    def do_customer(self, rest):
        self.window.customer_typed = (rest.split("|") + ["", ""])[:3]

    def do_printer(self, rest):
        self.window.printer = rest.strip() != ""

    def do_picture(self, rest):
        pass

    # --- state -----------------------------------------------------------------------------------

    def state(self):
        window = self.window
        report = self.with_state_again({
            "boxes": window.boxes, "calculations": window.calculations,
            "pages": len(window.pages)})
        if window.pages:
            report["page_lines"] = window.pages
        window.boxes, window.calculations, window.pages = [], 0, []
        return report

    def with_state_again(self, report):
        """`report` brought up to date after the focus became known."""
        controls = {name: self.window.state_of(name) for name in self.window.all}
        return {**report, "controls": controls, "focus": self.window.focus}

    def resolve_focus(self, name):
        """Takes the focus from the toolkit where the product does not say where it goes."""
        if self.window.focus is None and name in self.window.all:
            self._focus(name)


def main():
    model = Model()
    for line in sys.stdin:
        written = model.play(line)
        if written is not None:
            print(json.dumps(written, ensure_ascii=False))
        if model.ended:
            break


if __name__ == "__main__":
    main()
