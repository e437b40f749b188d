#!/usr/bin/env python3
"""Tests of the scenario runner against a small fake player: what it must pass, and that it goes red.

The fake player prints what the test prepared, whatever the script says, and ends as the test says.
"""

import contextlib
import io
import json
import os
import stat
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import run_scenarios  # noqa: E402

STATE = {
    "controls": {
        "txtFlow": {"visible": True, "enabled": True, "text": "142.3", "selstart": 1},
        "lblMsg": {"visible": True, "enabled": True, "caption": "", "backcolor": "0xE0E0E0"},
        "cboTimeUnit": {"text": "Minute", "index": 0, "items": ["Minute", "Hour"]},
    },
    "boxes": [{"title": "Pipe ID", "text": "Enter a Pipe ID in Inches.", "style": "input",
               "default": "0"}],
    "calculations": 3,
    "pages": 0,
    "page_lines": [["", "Title", "", "Tag: "], ["Tag: ", "Beta"]],
    "focus": "txtFlow",
}

# On a player that shows that state: the script, and what is said of it.
RED = (
    # The state is another.
    ('state\n#= txtFlow.text "142.4"\n',
     'topic.script:2: txtFlow.text: expected "142.4", found "142.3"'),
    ("state\n#= txtFlow.selstart true\n", "expected true, found 1"),
    ("state\n#= txtFlow.visible 1\n", "expected 1, found true"),
    ("state\n#= txtFlow.text 142.3\n", "expected 142.3"),
    ('state\n#= cboTimeUnit.items ["Minute"]\n', "cboTimeUnit.items"),
    ('state\n#= txtFlaw.text "142.3"\n', "there is no control txtFlaw"),
    ('state\n#= txtFlow.texd "142.3"\n', "txtFlow has no texd"),
    ("state\n#= boxes []\n", "expected 0, found 1"),
    ('state\n#= boxes [{"title": "Pipe ID"}, {}]\n', "expected 2, found 1"),
    ('state\n#= boxes [{"title": "Pipe"}]\n', "title of box 1"),
    ('state\n#= boxes [{"text": "Enter a Pipe ID"}]\n', "text of box 1"),
    ('state\n#= boxes [{"titel": "Pipe ID"}]\n', "a box has no titel"),
    ('state\n#= page 1\n#| "Title"\n#| "Tag: "\n', 'page 1: expected "Tag: ", found ""'),
    ('state\n#= page 1\n#| "Tag:"\n', 'expected "Tag:", found no such line'),
    ('state\n#= page 2\n#| "Beta"\n#| ""\n', 'expected "", found no such'),
    ('state\n#= page 3\n#| "Beta"\n', "there are 2 pages"),
    # The notation is another.
    ('state\n#= page 1\n', "from 1 and lines"),
    ('state\n#= page 0\n#| "Beta"\n', "from 1 and lines"),
    ('state\n#| "Beta"\n', "must follow #= page N"),
    ('state\n#= page 1\n#| Beta\n', "not a JSON value"),
    *((f"state\n#= calculations 3\n{line}\n", "unknown notation") for line in (
        "#=txtFlow.text 1", "#? txtFlow.text 1", "#! Refused", "#! ended", "#! ended happily",
        "#comment")),
    ("state\n#= txtFlow 1\n", "neither NAME.PROPERTY nor"),
    ("state\n#= txtFlow.text\n", "a path and a JSON value"),
    ("state\n#= txtFlow.text 142.3 gpm\n", "not a JSON value"),
    ('state\n#= calculations "3"\n', "needs a whole number"),
    ("state\n#= pages true\n", "needs a whole number"),
    ("state\n#= focus 1\n", "needs a text"),
    ('state\n#= boxes {"title": "x"}\n', "needs a list of objects"),
    ("#= calculations 3\nstate\n", "must follow a state command"),
    ("state\nclick optGas\n#= calculations 3\n", "must follow a state command"),
    ("#! refused\nstate\n", "must follow the command"),
    ("state\n#! refused\n", "must follow the command"),
    ("click cmdExit\n#! ended exit\nstate\n", "after the program's end"),
    ("click optGas\nstate\n", "without any expectation"),
    ("", "without any expectation"),
    (b"# \xff\nstate\n#= pages 0\n", "not UTF-8"),
)
REFUSED = {"refused": "click optGas", "why": "hidden"}
# The script, what is said of it, and what the player writes.
WRONG_OUTPUT = (
    ("click optGas\nstate\n#= calculations 3\n", "expected a state, found", [REFUSED, STATE]),
    ("click optGas\n#! refused\nstate\n#= calculations 3\n",
     "topic.script:2: expected a refusal of: click optGas, found a state", [STATE]),
    ("click optSteam\n#! refused\n", "expected a refusal of: click optSteam", [REFUSED]),
    ("state\n#= calculations 3\nclick cmdExit\n", "expected nothing more",
     [STATE, {"ended": "exit"}]),
    ("click cmdExit\n#! ended exit\n", "expected the program's end (exit)", [{"ended": "fatal"}]),
    ("state\n#= calculations 3\nstate\n#= calculations 0\n", "found the end of the output", [STATE]),
    ("state\n#= calculations 3\n", "no JSON", ["QWidget: warning"]),
)


class RunnerTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def run_script(self, script, outputs=(STATE,), status=0, extra=()):
        """Exit status and printed text of a run of `script` on a player that writes `outputs`."""
        root = Path(self.folder.name)
        (root / "area").mkdir(exist_ok=True)
        lines = [text if isinstance(text, str) else json.dumps(text) for text in outputs]
        player = root / "player"
        player.write_text(f"#!{sys.executable}\n"
                          "import os, sys\n"
                          "script = sys.stdin.buffer.read()\n"
                          f"open({str(root / 'read')!r}, 'wb').write(script)\n"
                          f"open({str(root / 'env')!r}, 'w').write("
                          "os.environ.get('QT_QPA_PLATFORM', 'none'))\n"
                          "open('left behind', 'w').close()\n"
                          f"sys.stdout.write({''.join(line + chr(10) for line in lines)!r})\n"
                          f"sys.exit({status})\n", encoding="utf-8")
        player.chmod(player.stat().st_mode | stat.S_IXUSR)
        path = root / "area" / "topic.script"
        path.write_bytes(script if isinstance(script, bytes) else script.encode("utf-8"))
        return self.run_main(*extra, str(player), str(root / "area"))

    def run_main(self, *arguments):
        """Exit status and printed text of the runner."""
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed), contextlib.redirect_stderr(printed):
            result = run_scenarios.main(list(arguments))
        return result, printed.getvalue()

    def assert_green(self, script, outputs=(STATE,), **more):
        result, printed = self.run_script(script, outputs, **more)
        self.assertEqual(result, 0, printed)

    def assert_red(self, script, message, outputs=(STATE,), **more):
        result, printed = self.run_script(script, outputs, **more)
        self.assertEqual(result, 1, printed)
        self.assertIn(message, printed)

    # What must pass.

    def test_every_kind_of_expectation_that_holds(self):
        self.assert_green("# A comment.\n\nclick optLiquid\nstate\n"
                          '#= txtFlow.text "142.3"\n'
                          "#= txtFlow.visible true\n"
                          "#= txtFlow.selstart 1\n"
                          '#= cboTimeUnit.items ["Minute", "Hour"]\n'
                          '#= boxes [{"title": "Pipe ID", "style": "input"}]\n'
                          "#= calculations 3\n"
                          "#= pages 0\n"
                          '#= focus "txtFlow"\n')

    def test_pages_refusal_and_end(self):
        self.assert_green('state\n#= page 1\n#| "Title"\n#| ""\n#| "Tag: "\n'
                          '#= page 2\n#| "Beta"\n')
        self.assert_green("type txtBeta 0.5\n#! refused\nclick cmdExit\n#! ended exit\n",
                          [{"refused": "type txtBeta 0.5", "why": "locked"}, {"ended": "exit"}])

    def test_player_gets_the_script_unchanged_on_offscreen_in_a_folder_of_its_own(self):
        script = "paste txtFlow  5 \nstate\n#= calculations 3\n"
        self.assert_green(script)
        root = Path(self.folder.name)
        self.assertEqual((root / "read").read_text(encoding="utf-8"), script)
        self.assertEqual((root / "env").read_text(encoding="utf-8"), "offscreen")
        self.assertFalse(Path("left behind").exists())

    def test_platform_can_be_chosen(self):
        self.assert_green("state\n#= calculations 3\n", extra=("--platform", "xcb"))
        self.assertEqual((Path(self.folder.name) / "env").read_text(encoding="utf-8"), "xcb")

    # What must fail, with its line.

    def test_every_wrong_value_is_reported(self):
        script = 'state\n#= txtFlow.text "1"\n#= calculations 4\n#= focus "txtBeta"\n'
        _, printed = self.run_script(script)
        for line in (2, 3, 4):
            self.assertIn(f"topic.script:{line}: ", printed)

    def test_what_does_not_hold_or_says_nothing(self):
        for script, message in RED:
            with self.subTest(script):
                self.assert_red(script, message)

    def test_output_that_is_not_the_expected(self):
        for script, message, outputs in WRONG_OUTPUT:
            with self.subTest(message):
                self.assert_red(script, message, outputs)
        self.assert_red("state\n#= calculations 3\n", "exit status 2", status=2)

    def test_what_cannot_be_played(self):
        root = Path(self.folder.name)
        (root / "a.script").write_text("state\n#= pages 0\n")
        (root / "empty").mkdir()
        hanging = root / "player"
        hanging.write_text(f"#!{sys.executable}\nimport threading\nthreading.Event().wait()\n")
        hanging.chmod(0o755)
        for status, message, *arguments in (
                (1, "can't be started", root / "none", root),
                (1, "did not end within 0.5 seconds", "--timeout", 0.5, hanging, root),
                (1, "can't be read", "/bin/true", root / "none.script"),
                (2, "no scenarios found", "/bin/true", root / "empty")):
            result, printed = self.run_main(*map(str, arguments))
            self.assertEqual(result, status, message)
            self.assertIn(message, printed)


if __name__ == "__main__":
    unittest.main()
