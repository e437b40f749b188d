#!/usr/bin/env python3
"""The reference model against worked examples; what it is compared with must itself be right."""

import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from tarvix_model import Model  # noqa: E402

RANGE_WARNING = "Warning: Beta value exceeds standard range (0.15 to 0.67)."
LIQUID = ("click optLiquid", "click optCalcFR", "type txtSGf 1", "type txtSGb 1",
          "choose cboNomSize 4", "type txtDeltaP 100", "type txtBeta 0.5")
GAS = ("type txtTf 60", "type txtPf 100", "type txtGasSGb 0.6", "type txtDeltaP 100")


class Session:
    """A model and the states that its script wrote."""

    def __init__(self, *lines, locale="en_US"):
        self.model = Model(locale)
        self.written = []
        self.run(*lines)

    def run(self, *lines):
        for line in lines:
            written = self.model.play(line)
            if written is not None:
                self.written.append(written)
        return self

    def state(self):
        return self.model.state()

    def __getattr__(self, name):
        return self.model.window.state_of(name)

    @property
    def message(self):
        return self.lblMsg["caption"], self.lblMsg["backcolor"]


class Start(unittest.TestCase):
    def test_first_state(self):
        session = Session()
        state = session.state()
        self.assertEqual(state["calculations"], 1)
        self.assertEqual(session.message, (
            "Incomplete fluid data (Op. Temperature, Op. Pressure, Base Specific Gravity).",
            "0x00FFFF"))
        self.assertEqual(session.optCalcBeta["backcolor"], "0x00FF00")
        self.assertTrue(session.txtBeta["locked"] and session.txtOriBoreDia["locked"])
        self.assertEqual(session.cboNomSize["text"], "2")
        self.assertEqual(session.cboPipeID["text"], '2.067"  Sch 40, STD, Sch 40S')
        self.assertEqual(session.cboTimeUnit["text"], "Day")
        self.assertFalse(session.txtZf["visible"])
        self.assertFalse(session.cmdPrint["enabled"])


class Liquid(unittest.TestCase):
    def test_there_and_back(self):
        session = Session(*LIQUID)
        self.assertEqual(session.txtFlow["text"], "142.3")
        self.assertTrue(session.mnuPrint["enabled"])
        session.run("click optCalcBeta")
        self.assertEqual(session.txtBeta["text"], "0.50002")  # from the flow as shown
        session.run("click optCalcDP")
        self.assertEqual(session.txtBeta["text"], "0.50002")

    def test_grouping_is_lost(self):
        session = Session(*LIQUID, "choose cboTimeUnit Hour")
        self.assertEqual(session.txtFlow["text"], "8,537")
        session.state()
        session.run("click optCalcBeta")
        self.assertEqual(session.txtFlow["text"], "8537")
        self.assertEqual(session.state()["calculations"], 2)

    def test_lists_of_names(self):
        session = Session("click optLiquid")
        self.assertEqual(session.message[0], "Incomplete fluid data (Flowing Specific Gravity, "
                                             "Base Specific Gravity).")
        session.run("click optSgCalc")
        self.assertEqual(session.message[0],
                         "Incomplete fluid data (Base Specific Gravity, Operating Density).")
        session.run("paste txtDensity x")
        self.assertEqual(session.message[0], "Non-Numeric Operating Density")
        session.run("type txtDensity 0")
        self.assertEqual(session.message[0], "Operating Density must be greater than 0.")
        session.run("type txtDensity 62.366")
        self.assertEqual(session.txtSGf["text"], "1.0000")
        session.run("type txtSGb 1", "type txtFlow 0", "focus txtSGb", "choose cboTimeUnit Hour")
        self.assertEqual(session.message[0],
                         "Incomplete or Non-Numeric fluid data (Differential Pressure).")
        session.run("type txtDeltaP 1", "choose cboTimeUnit Hour")
        self.assertEqual(session.message[0], "Fluid data (Flow Rate) must be greater than 0.")

    def test_beta_limits(self):
        session = Session(*LIQUID, "type txtBeta 0.7")
        self.assertEqual(session.message, (RANGE_WARNING, "0x00FFFF"))
        self.assertTrue(session.cmdPrint["enabled"])
        session.state()
        session.run("type txtBeta 0.95")
        state = session.state()
        self.assertEqual([box["title"] for box in state["boxes"]], ["Beta Value"])
        self.assertIn("Orifice Diameter:\t3.623 Inches\n\rPipe Diameter:\t4.026 Inches\n\r"
                      "Beta Ratio:\t0.95\n\r\n\rBeta is a", state["boxes"][0]["text"])
        self.assertEqual(session.txtBeta["text"] + session.txtOriBoreDia["text"], "")
        session.run("type txtBeta 0.9499")
        self.assertEqual(session.txtBeta["text"], "0.9499")
        session.run("click optCalcBeta", "type txtFlow 100000")
        self.assertEqual(session.message, ("Flow rate is out of range (beta > 0.95). "
                                           "Flow rate too high for pipe size.", "0x0000FF"))
        self.assertFalse(session.cmdPrint["enabled"])

    def test_mass_units_hide_the_base_gravity(self):
        session = Session(*LIQUID, "choose cboFlowUnit Kilograms")
        self.assertFalse(session.txtSGb["visible"] or session.lblSGb1["visible"])
        session.run("choose cboFlowUnit Cubic Meters ")
        self.assertTrue(session.txtSGb["visible"])

    def test_dp_limit(self):
        lines = ("click optLiquid", "click optCalcDP", "type txtSGf 1", "type txtSGb 1",
                 "type txtBeta 0.5", "type txtFlow 100")
        session = Session(*lines)
        self.assertEqual(session.txtDeltaP["text"], "710.9")
        session.run("type txtFlow 100000")
        self.assertEqual(session.txtDeltaP["text"], "")
        self.assertEqual(session.message[0], "")


class Gas(unittest.TestCase):
    def test_modes_agree(self):
        session = Session("click optCalcFR", *GAS, "type txtBeta 0.5")
        flow = session.txtFlow["text"]
        self.assertNotEqual(flow, "")
        session.run("click optCalcDP", "click optCalcDP")
        dp = float(session.txtDeltaP["text"].replace(",", ""))
        self.assertAlmostEqual(dp, 100.0, delta=0.1)
        session.run("click optCalcFR", "click optCalcBeta")
        self.assertEqual(session.txtBeta["text"], "0.50000")

    def test_pressure_limit(self):
        session = Session(*GAS, "paste txtPf -15")
        self.assertEqual(session.message[0], "Op. Pressure must be greater than -14.7000 PSI.")
        session.run("click optPabsolute")
        self.assertEqual(session.message[0], "Op. Pressure must be greater than 0.")
        session.run("paste txtPf 0")
        self.assertEqual(session.message[0], "Op. Pressure must be greater than 0")
        session.run("paste txtPf 1", "paste txtTf -20")
        self.assertEqual(session.message[0],
                         "Incomplete or Non-Numeric fluid data (Flow Rate).")

    def test_compressibility_warning(self):
        session = Session("paste txtPf 200")
        self.assertFalse(session.fraZfCompWarning["visible"])
        session.run("paste txtPf 400")
        self.assertEqual(session.fraZfCompWarning["backcolor"], "0x00FFFF")
        session.run("click optPabsolute", "paste txtPf 414.7")
        self.assertEqual(session.fraZfCompWarning["backcolor"], "0x00FFFF")
        session.run("paste txtPf 414.8")
        self.assertEqual(session.fraZfCompWarning["backcolor"], "0x0000FF")
        self.assertEqual(session.lbl2ZfCompWarning["caption"],
                         "will result in erroneous computations.")
        session.run("click optCompZf")
        self.assertFalse(session.fraZfCompWarning["visible"])

    def test_gravity_frame(self):
        session = Session("click optCompDensity", "choose cboFlowUnit Pounds")
        self.assertFalse(session.txtGasSGb["visible"])
        session.run("click optCompZf")
        self.assertTrue(session.txtGasSGb["visible"])
        session.run("paste txtZf 0.9", "click optLiquid", "click optGas")
        self.assertEqual(session.txtZf["text"], "0.9")

    def test_too_high(self):
        session = Session(*GAS, "paste txtPf 1", "paste txtDeltaP 5000", "paste txtFlow 1e6")
        self.assertEqual(session.message, (
            "Unable to calculate beta for conditions (Flow rate too high).", "0x0000FF"))


class Steam(unittest.TestCase):
    def test_table(self):
        session = Session("click optSteam", "click optSteamTbl", "type txtPf 0")
        self.assertEqual(session.txtDensity["text"], "0.03738")
        session.run("click optPabsolute", "type txtPf 14.6")
        self.assertEqual(session.message, (
            "The Op. Pressure is below the steam table mimimum: 14.70 PSI (absolute)", "0x00FFFF"))
        session.run("type txtPf 14.7")
        self.assertEqual(session.txtDensity["text"], "0.03738")
        session.run("click optPgauge", "paste txtPf 3001")
        self.assertEqual(session.message[0],
                         "The Op. Pressure exceeds the steam table maximum: 3,000 PSI (gauge)")
        session.run("type txtFlow 1")
        self.assertEqual(session.message[0], "The Operating Density [from Op. Pressure] must not "
                                             "exceed steam table limits.")
        session.run("click optSuperheated")
        self.assertFalse(session.optSteamTbl["enabled"])
        self.assertEqual(session.model.window.focus, "txtDensity")

    def test_beta_leaves_its_range_silently(self):
        session = Session("click optSteam", "type txtDensity 1", "type txtPf 100",
                          "type txtDeltaP 1", "paste txtFlow 1e9")
        self.assertEqual((session.txtBeta["text"], session.message[0]), ("", ""))


class PipeAndBore(unittest.TestCase):
    def test_unit_follows(self):
        session = Session(*LIQUID, "choose cboNomSize 2", "choose cboPipeIDUnit Millimeters")
        self.assertEqual(session.cboNomSize["items"][:5], ["12.7", "19.1", "25.4", "38.1", "50.8"])
        self.assertEqual(session.cboPipeID["text"], '2.067"  (52.50 mm)  Sch 40, STD, Sch 40S')
        self.assertEqual(session.cboOriBoreUnit["text"], "Millimeters")
        session.run("choose cboOriBoreUnit Inches", "type txtBeta 0.5",
                    "choose cboOriBoreUnit Millimeters")
        self.assertEqual(session.txtOriBoreDia["text"], "26.251")

    def test_reselection_by_diameter(self):
        session = Session("choose cboNomSize 8", "choose cboPipeID #1", "choose cboNomSize 10")
        self.assertEqual(session.cboPipeID["index"], 0)
        session.run("choose cboNomSize 20", "choose cboPipeID #1",
                    "choose cboPipeIDUnit Centimeters")
        self.assertEqual(session.cboPipeID["text"], '19.250"  (48.90 cm)  Sch 20')

    def test_typed_bore(self):
        session = Session(*LIQUID, "choose cboNomSize 2", "type txtOriBoreDia 1.000")
        self.assertEqual(session.txtBeta["text"], "0.48379")
        self.assertEqual(session.txtOriBoreDia["text"], "1.000")
        session.run("choose cboNomSize 4")
        self.assertEqual(session.txtBeta["text"], "0.24839")
        session.run("keys 5", "type txtOriBoreDia ", "keys {Backspace}")
        self.assertEqual(session.txtBeta["text"], "")

    def test_user_entered(self):
        session = Session(*LIQUID, "answer text  3 ", "choose cboPipeID Other (User Entered)")
        self.assertEqual(session.cboPipeID["text"], '3.000" (User Entered)')
        self.assertTrue(session.txtMaskNomSize["visible"])
        session.state()
        session.run("answer text abc", "choose cboPipeID #7")
        boxes = session.state()["boxes"]
        self.assertEqual([(box["title"], box["default"]) for box in boxes],
                         [("Pipe ID", "3.000"), ("User Entered Pipe ID", "")])
        self.assertEqual(session.cboPipeID["text"], '3.000" (User Entered)')
        session.run("choose cboPipeIDUnit Millimeters", "answer text 52.505",
                    "choose cboPipeID Other (User Entered)")
        self.assertEqual(session.cboPipeID["text"], '2.067"  (52.51 mm)   (User Entered)')

    def test_no_diameter_yet(self):
        session = Session("answer cancel", "choose cboPipeID Other (User Entered)",
                          "click optCalcFR", "type txtOriBoreDia 1")
        self.assertEqual(session.txtBeta["text"], "")
        session.state()
        session.run("choose cboNomSize 42")
        self.assertEqual(session.state()["boxes"][0]["style"], "input")
        self.assertEqual(session.cboPipeID["text"], "Other (User Entered)")

    def test_plate_warning(self):
        session = Session("choose cboNomSize 8", "type txtDeltaP 150")
        self.assertTrue(session.fraPlateThicknessWarning["visible"])
        session.run("type txtDeltaP 149.9")
        self.assertFalse(session.fraPlateThicknessWarning["visible"])
        session.run("choose cboDeltaPunit Pa")
        self.assertTrue(session.fraPlateThicknessWarning["visible"])
        session.run("choose cboNomSize 6")
        self.assertFalse(session.fraPlateThicknessWarning["visible"])

    def test_comma_has_no_half_inch(self):
        session = Session("choose cboNomSize 1/2", locale="de_DE")
        self.assertEqual(session.written, [{"ended": "fatal"}])
        self.assertEqual(session.model.window.boxes[0]["text"],
                         "Fatal Error Encountered: \n\r\n\rNo pipe schedule data for nominal pipe "
                         "size.\n\r\n\rThis Program will now terminate.")


class Keys(unittest.TestCase):
    def test_filter(self):
        session = Session("type txtPf 1a.5.-,e 0")
        self.assertEqual(session.txtPf["text"], "1.50")
        session.run("focus txtPf", "keys .")
        self.assertEqual(session.txtPf["text"], ".")
        session.run("type txtPf -5", "keys {Home}+{End}-{Left}{Backspace}")
        self.assertEqual(session.txtPf["text"], "+5")
        german = Session("type txtPf 1.5,5", locale="de_DE")
        self.assertEqual(german.txtPf["text"], "15,5")

    def test_the_same_text_is_no_change(self):
        session = Session("type txtTf 5")
        session.state()
        session.run("type txtTf 5", "paste txtTf 5")
        self.assertEqual(session.state()["calculations"], 0)

    def test_refusals(self):
        session = Session("type txtBeta 1", "paste txtSGf 1", "choose cboNomSize 28",
                          "choose cboPressUnit #8", "click cmdPrint", "focus txtDensity")
        self.assertEqual(len(session.written), 6)
        self.assertEqual(session.written[0]["refused"], "type txtBeta 1")


class PrintAndExit(unittest.TestCase):
    def test_pages(self):
        session = Session(*LIQUID, "click cmdPrint", "answer cancel", "click mnuPrint")
        self.assertEqual(session.state()["pages"], 1)
        session.run("type txtDeltaP ")
        session.run("keys {Delete}")
        self.assertFalse(session.cmdPrint["enabled"])

    def test_exit(self):
        session = Session("answer cancel", "click cmdExit")
        self.assertEqual(session.written, [])
        session.run("click mnuExit")
        self.assertEqual(session.written, [{"ended": "exit"}])


if __name__ == "__main__":
    unittest.main()
