"""Fluid and property options, numeric fields and keys of the reference model."""

from tarvix_checks import ATMOSPHERE
from tarvix_controls import FIELD_GREY, GREEN, OPTION_GREY, RED, WINDOW_COLOUR, YELLOW
from tarvix_numbers import local_decimal, read_single, single
from tarvix_window import MainWindow

STEAM_OPTIONS = ("optSaturated", "optSuperheated", "optSteamUser", "optSteamTbl", "lblSteamTbl")
FLUID_OPTIONS = {"optLiquid": "L", "optGas": "G", "optSteam": "S"}


class Window(MainWindow):
    """The whole window."""

    # --- fluids ----------------------------------------------------------------------------------

    def _start_fluid(self, option, shown):
        self.suspended = True
        self.fluid = FLUID_OPTIONS[option]
        for other in FLUID_OPTIONS:
            self[other].backcolor = GREEN if other == option else OPTION_GREY
        if option == "optSteam":
            self["lblMsg"].caption = ""
            self["lblMsg"].backcolor = FIELD_GREY
        for frame in ("fraSG", "fraTemp", "fraGasSG", "fraPress", "fraDensity",
                      "fraCompCorrection"):
            self[frame].visible = frame in shown

    def _finish_fluid(self, focus=None):
        self.suspended = False
        self.DoOrificeCalculations()
        if focus:
            self.set_focus(focus)

    def _load_flow_lists(self):
        self.LoadcboFlowUnit()
        self.LoadcboTimeUnit()

    def optLiquid_Click(self):
        self._start_fluid("optLiquid", ("fraSG", "fraDensity"))
        self["fraDensity"].top = 1320
        self["fraDensity"].enabled = False
        self["lblSteamTbl"].visible = False
        self._enable(STEAM_OPTIONS, False)
        self.DenEnableOff()
        self._load_flow_lists()
        self.select_option("optSgUser")
        self._finish_fluid("txtSGf")

    def optGas_Click(self):
        self._start_fluid("optGas", ("fraTemp", "fraGasSG", "fraPress", "fraCompCorrection"))
        self["fraPress"].width = 6555
        self._enable(("fraTemp", "lblTf", "optDegF", "optDegC"), True)
        self._open("txtTf", True)
        self._open_pressure()
        self.CheckZfCompWarning()
        self._load_flow_lists()
        self._finish_fluid()

    def optSteam_Click(self):
        self._start_fluid("optSteam", ("fraPress", "fraDensity"))
        self["fraDensity"].top = 360
        self["fraPress"].width = 9015
        self["fraDensity"].enabled = True
        self["lblSteamTbl"].visible = True
        self.DenEnableOn()
        self._enable(STEAM_OPTIONS, True)
        self.select_option("optSaturated")
        self.select_option("optSteamUser")
        self._load_flow_lists()
        self._open_pressure()
        self._finish_fluid("txtDensity")

    def _enable(self, names, enabled):
        for name in names:
            self[name].enabled = enabled

    def _open(self, field, opened):
        """Whether something can be entered, and the colour that says so."""
        self[field].enabled = opened
        self[field].backcolor = WINDOW_COLOUR if opened else FIELD_GREY

    def _open_pressure(self):
        self["fraPress"].visible = True
        self._enable(("fraPress", "cboPressUnit"), True)

    def DenEnableOn(self):
        self._enable(("lblDensity", "cboDensityUnit"), True)
        self["txtDensity"].backcolor = WINDOW_COLOUR

    def DenEnableOff(self):
        self.set_text("txtDensity", "")
        self._enable(("lblDensity", "cboDensityUnit"), False)
        self["txtDensity"].backcolor = FIELD_GREY

    # --- specific gravity, steam density, steam state --------------------------------------------

    def optSgCalc_Click(self):
        self._open("txtSGf", False)
        self._enable(("fraDensity", "txtDensity"), True)
        self.DenEnableOn()
        self.set_text("txtSGf", "")
        self.CalcSGf()
        self.set_focus("txtDensity")
        self.recalculate()

    def optSgUser_Click(self):
        self._open("txtSGf", True)
        self["fraDensity"].enabled = False
        self.DenEnableOff()
        self.set_text("txtSGf", "")
        self.set_focus("txtSGf")
        self.recalculate()

    def optSteamTbl_Click(self):
        self._open("txtDensity", False)
        if self.CalcSteamDensity():
            self.recalculate()
        self.set_focus("txtPf")

    def optSteamUser_Click(self):
        self._open("txtDensity", True)
        self.set_text("txtDensity", "")
        self.set_focus("txtDensity")
        self.recalculate()

    def optSaturated_Click(self):
        self.select_option("optSteamUser")
        self._enable(("optSteamTbl", "lblSteamTbl"), True)

    def optSuperheated_Click(self):
        self.select_option("optSteamUser")
        self._enable(("optSteamTbl", "lblSteamTbl"), False)
        self.set_focus("txtDensity")

    # --- compressibility, temperature scale ------------------------------------------------------

    def optCompCorrNone_Click(self):
        for name in ("cboZfDensityUnit", "lblCompCorr", "txtZf"):
            self[name].visible = False
        self.CheckZfCompWarning()
        self["fraGasSG"].visible = True
        self.recalculate()

    def optCompDensity_Click(self):
        self._ask_correction(True, "Operating Density")
        self["fraGasSG"].visible = self.flow_kind() != "M"
        self.recalculate()

    def optCompZf_Click(self):
        self._ask_correction(False, "Compressibility at Flowing Conditions (Zf)")
        self["fraGasSG"].visible = True
        self.recalculate()

    def _ask_correction(self, with_unit, caption):
        self["cboZfDensityUnit"].visible = with_unit
        self["lblCompCorr"].caption = caption
        self["lblCompCorr"].visible = True
        self["txtZf"].visible = True
        self.set_text("txtZf", "")
        self.CheckZfCompWarning()

    optDegF_Click = optDegC_Click = MainWindow.recalculate

    # --- warnings --------------------------------------------------------------------------------

    def CheckZfCompWarning(self):
        warning = self["fraZfCompWarning"]
        if not self.on("optCompCorrNone") or not self.numeric("txtPf"):
            warning.visible = False
            return
        pressure = self.in_unit("txtPf", "cboPressUnit")
        if self.on("optPabsolute"):
            pressure = single(pressure - ATMOSPHERE)
        warning.visible = pressure > 200.0
        if pressure > 200.0:
            strong = pressure > 400.0
            warning.backcolor = RED if strong else YELLOW
            self["lbl2ZfCompWarning"].caption = (
                ("will" if strong else "may") + " result in erroneous computations.")

    def CheckPlateThicknessWarning(self):
        pressure = 0.0
        size = read_single(local_decimal(self.table_text("cboNomSize"), self.locale), self.locale)
        if size >= 8.0 and self.numeric("txtDeltaP"):
            pressure = self.in_unit("txtDeltaP", "cboDeltaPunit")
        self["fraPlateThicknessWarning"].visible = pressure >= 150.0

    # --- numeric fields --------------------------------------------------------------------------

    txtTf_Change = txtSGb_Change = txtGasSGb_Change = txtZf_Change = MainWindow.recalculate

    def txtFlow_Change(self):
        if not self.on("optCalcFR"):
            self.recalculate()
        self.no_page_without("txtFlow")

    def txtDeltaP_Change(self):
        if not self.on("optCalcDP"):
            self.recalculate()
        self.CheckPlateThicknessWarning()
        self.no_page_without("txtDeltaP")

    def txtSGf_Change(self):
        if self.enabled("txtSGf"):
            self.recalculate()

    def txtDensity_Change(self):
        if self.suspended or not self.enabled("txtDensity"):
            return
        self.message = ""
        self.cboDensityUnit_Click()

    def txtPf_Change(self):
        if self.fluid == "S" and self.on("optSteamTbl") and not self.CalcSteamDensity():
            return
        if self.fluid == "G":
            self.CheckZfCompWarning()
        self.recalculate()

    optPgauge_Click = optPabsolute_Click = cboPressUnit_Click = txtPf_Change

    # --- keys ------------------------------------------------------------------------------------

    def key_is_kept(self, key):
        """The key filter of the numeric fields, for the field that has the focus."""
        control = self[self.focus]
        start, end = control.selection()
        searched = control.text[end:] if end > start else control.text
        if key in "0123456789":
            return True
        if key in "+-":
            return start == 0
        if key in ".,":
            return key == self.locale.decimal and key not in searched
        return False

    def _edit(self, text, cursor):
        """The user's own edit of the focused field."""
        control = self[self.focus]
        changed = control.text != text
        control.text = text
        control.cursor = control.anchor = cursor
        if changed:
            self._raise(self.focus, "Change")

    def press(self, key):
        """One key: a character, or the name of a key."""
        control = self[self.focus]
        start, end = control.selection()
        text = control.text
        if len(key) == 1:
            if not control.locked and self.key_is_kept(key):
                self._edit(text[:start] + key + text[end:], start + 1)
        elif key in ("Backspace", "Delete"):
            if control.locked:
                return
            if start == end:
                start, end = ((max(start - 1, 0), end) if key == "Backspace"
                              else (start, min(end + 1, len(text))))
            if start != end:
                self._edit(text[:start] + text[end:], start)
        elif key in ("Left", "Right", "Home", "End"):
            places = {"Left": max(control.cursor - 1, 0),
                      "Right": min(control.cursor + 1, len(text)), "Home": 0, "End": len(text)}
            control.cursor = control.anchor = places[key]
        elif key == "SelectAll":
            self.select_all(self.focus)
        elif key == "Tab":
            self.focus = None

    def replace_all(self, text):
        self._edit(text, len(text))
