"""What a run of the program by keys must lead to: the script player of this machine plays it first."""

import json
import os
import subprocess
import tempfile


class Rehearsal:
    """A run by keys. The player says where the focus goes, so that a field is found by its name, and
    what the page says in the end."""

    def __init__(self, player, locale):
        self.player = os.path.abspath(player)
        self.first = [f"locale {locale}"]
        self.keys = []

    def play(self, *more):
        lines = [*self.first, *(f"keys {key}" for key in self.keys), *more, "state"]
        with tempfile.TemporaryDirectory(prefix="rehearsal-") as folder:
            done = subprocess.run([self.player], input="\n".join(lines) + "\n", text=True,
                                  encoding="utf-8", capture_output=True, check=True, cwd=folder,
                                  env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
        answers = [json.loads(line) for line in done.stdout.splitlines()]
        assert all("controls" in answer for answer in answers), answers[:-1]
        return answers[-1]

    def press(self, name, keys):
        """The Tab key until it leads to a control, and the keys there."""
        start = len(self.keys)
        while self.play()["focus"] != name:
            self.keys.append("{Tab}")
            assert len(self.keys) < start + 40, f"no way by Tab to {name}"
        self.keys += keys

    def text(self, name):
        return self.play()["controls"][name]["text"]

    def page(self, customer):
        """The lines of the page that printing gives now."""
        lines = self.play("printer page.pdf", f"customer {'|'.join(customer)}", "answer ok",
                          "click mnuPrint")["page_lines"]
        assert len(lines) == 1, lines
        return lines[0]
