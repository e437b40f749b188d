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


class Invariants(unittest.TestCase):
    def step(self, *lines):
        """The step that the last line makes."""
        model = Model()
        for line in (*RUN, *lines[:-1]):
            model.play(line)
        before = model.state()
        model.play(lines[-1])
        return invariants.Step([lines[-1]], before, model.state(), number_locale("en_US"))

    def assert_breaks(self, name, step, *spoiled):
        self.assertIsNone(invariants.broken(step))
        worse = invariants.Step(step.lines, step.before, copy.deepcopy(step.now), step.locale)
        for control, key, value in spoiled:
            self.assertNotEqual(worse[control][key], value)
            worse[control][key] = value
        found = invariants.broken(worse)
        self.assertIsNotNone(found)
        self.assertEqual(found[0], name)

    def test_result_field(self):
        for key, value in (("locked", False), ("tabstop", True), ("backcolor", "window")):
            self.assert_breaks("locked_is_green", self.step("click optCalcBeta"),
                               ("txtOriBoreDia", key, value))
        self.assert_breaks("locked_is_green", self.step("click optCalcDP"),
                           ("optCalcBeta", "backcolor", "0x00FF00"))

    def test_hidden_fields(self):
        step = self.step("type txtSGb 0", "choose cboFlowUnit Pounds")
        self.assert_breaks("hidden_never_blocks", step,
                           ("lblMsg", "caption", "Incomplete fluid data (Base Specific Gravity)."))

    def test_numbers(self):
        for text in ("inf", "nan", "1e5x"):
            self.assert_breaks("no_infinity", self.step("type txtDeltaP 50"),
                               ("txtFlow", "text", text))
        step = self.step("choose cboPipeIDUnit Millimeters")
        self.assert_breaks("no_infinity", step,
                           ("cboNomSize", "items", ["inf"] + step["cboNomSize"]["items"][1:]))

    def test_solving_back(self):
        self.assert_breaks("solving_back_gives_the_inputs", self.step("click optCalcDP"),
                           ("txtDeltaP", "text", "103.0"))
        self.assert_breaks("solving_back_gives_the_inputs", self.step("click optCalcBeta"),
                           ("txtBeta", "text", "0.51000"))

    def test_refusal(self):
        step = self.step("click cboPressUnit")
        self.assertEqual(invariants.refused_changes_nothing(step.before, step.now), "")
        self.assertNotEqual(invariants.refused_changes_nothing(
            step.before, {**step.now, "focus": "txtPf"}), "")


if __name__ == "__main__":
    unittest.main()
