#!/usr/bin/env python3
"""Each invariant holds on a window as it is, here the model's, and breaks on a spoiled one."""

import copy
import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import invariants  # noqa: E402
from tarvix_model import Model  # noqa: E402
from tarvix_numbers import number_locale  # noqa: E402

RUN = ("click optLiquid", "click optCalcFR", "type txtSGf 1", "type txtSGb 1",
       "choose cboNomSize 4", "type txtDeltaP 100", "type txtBeta 0.5")

# Which invariant breaks, after which further lines, where this property of a control is this.
SPOILED = (
    ("locked_is_green", ["click optCalcBeta"], "txtOriBoreDia", "locked", False),
    ("locked_is_green", ["click optCalcBeta"], "txtOriBoreDia", "tabstop", True),
    ("locked_is_green", ["click optCalcBeta"], "txtOriBoreDia", "backcolor", "window"),
    ("locked_is_green", ["click optCalcDP"], "optCalcBeta", "backcolor", "0x00FF00"),
    ("hidden_never_blocks", ["type txtSGb 0", "choose cboFlowUnit Pounds"], "lblMsg", "caption",
     "Incomplete fluid data (Base Specific Gravity)."),
    ("no_infinity", ["type txtDeltaP 50"], "txtFlow", "text", "inf"),
    ("no_infinity", ["type txtDeltaP 50"], "txtFlow", "text", "nan"),
    ("no_infinity", ["type txtDeltaP 50"], "txtFlow", "text", "1e5x"),
    ("no_infinity", ["choose cboPipeIDUnit Millimeters"], "cboNomSize", "items", ["inf"]),
    ("solving_back_gives_the_inputs", ["click optCalcDP"], "txtDeltaP", "text", "103.0"),
    ("solving_back_gives_the_inputs", ["click optCalcBeta"], "txtBeta", "text", "0.51000"),
)


class Invariants(unittest.TestCase):
    def step(self, *lines):
        """The step that the last line makes."""
        model = Model()
        for line in (*RUN, *lines[:-1]):
            model.play(line)
        before = model.state()
        model.play(lines[-1])
        return invariants.Step([lines[-1]], before, model.state(), number_locale("en_US"))

    def test_each_breaks_on_a_spoiled_window(self):
        for name, lines, control, key, value in SPOILED:
            with self.subTest(name, lines=lines, value=value):
                step = self.step(*lines)
                self.assertIsNone(invariants.broken(step))
                worse = copy.deepcopy(step)
                self.assertNotEqual(worse[control][key], value)
                worse[control][key] = value
                self.assertEqual((invariants.broken(worse) or [""])[0], name)


if __name__ == "__main__":
    unittest.main()
