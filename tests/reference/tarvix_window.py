"""Start-up, calculation modes, unit lists, pipe and bore of the reference model."""

import math
from functools import partialmethod

from tarvix_checks import RESULT_FIELDS, Calculator
from tarvix_controls import GREEN, OPTION_GREY, WINDOW_COLOUR, YELLOW
from tarvix_numbers import (
    format_number, format_result, local_decimal, read_double, read_single, single)
from tarvix_report import page_lines
from tarvix_tables import (
    DELTA_P_UNITS, DENSITY_UNITS, FLOW_UNITS, FLUID_DEFAULTS, LENGTH_UNITS, NOMINAL_SIZES,
    PIPE_SCHEDULES, PRESSURE_UNITS, TIME_UNITS)

LINE_END = "\n\r"
BETA_LIMIT = single(0.95)
USER_ENTERED = "(User Entered)"
METRIC_MARKS = {"Millimeters": "mm", "Centimeters": "cm"}


class Ended(Exception):
    """The program ended from inside a handler: "fatal" or "exit"."""


class MainWindow(Calculator):
    """Everything but the fluid and property handlers."""

    def __init__(self, locale):
        super().__init__(locale)
        self.answers = []
        self.customer = ["", "", ""]
        self.customer_typed = None  # into the customer window, when it comes
        self.printer = False

    # --- boxes -----------------------------------------------------------------------------------

    def _next_answer(self):
        return self.answers.pop(0) if self.answers else ("ok", None)

    def message_box(self, title, text, style):
        self.boxes.append({"title": title, "text": text, "style": style, "default": ""})
        return self._next_answer()[0] != "cancel"

    def input_box(self, title, text, default):
        self.boxes.append({"title": title, "text": text, "style": "input", "default": default})
        kind, answer = self._next_answer()
        if kind == "cancel":
            return ""
        return default if answer is None else answer

    def fatal_error(self, reason):
        text = ("Fatal Error Encountered: " + LINE_END * 2 + reason + LINE_END * 2
                + "This Program will now terminate.")
        self.message_box("Fatal Error", text, "critical")
        raise Ended("fatal")

    # --- start -----------------------------------------------------------------------------------

    def Form_Load(self):
        self.suspended = True
        self.fluid = "G"
        self._load_units(LENGTH_UNITS, "cboPipeIDUnit", "cboOriBoreUnit")
        self._load_units(PRESSURE_UNITS, "cboPressUnit")
        self._load_units(DELTA_P_UNITS, "cboDeltaPunit")
        self._load_units(DENSITY_UNITS, "cboDensityUnit", "cboZfDensityUnit")
        self.LoadcboNomSize()
        self.LoadcboPipeID()
        self["fraPlateThicknessWarning"].backcolor = YELLOW
        self.select_option("optCompCorrNone")
        self.select_option("optCalcBeta")

    def Form_Activate(self):
        if self.suspended:
            self.select_option("optGas")

    def _load(self, name, shown, table):
        self.fill_list(name, shown)
        self.tables[name] = table

    def _load_units(self, units, *names):
        for name in names:
            self._load(name, [text for text, _ in units], [factor for _, factor in units])
        for name in names:
            self.select_item(name, 0)

    def LoadcboFlowUnit(self):
        units = FLOW_UNITS[self.fluid]
        names = [text for text, _, _ in units]
        self._load("cboFlowUnit", names, [(kind, factor) for _, kind, factor in units])
        self.select_item("cboFlowUnit", names.index(FLUID_DEFAULTS[self.fluid][0]))

    def LoadcboTimeUnit(self):
        names = [text for text, _ in TIME_UNITS]
        self._load("cboTimeUnit", names, [factor for _, factor in TIME_UNITS])
        self.select_item("cboTimeUnit", names.index(FLUID_DEFAULTS[self.fluid][1]))

    # --- modes -----------------------------------------------------------------------------------

    def _select_mode(self, selected, former):
        for option in former:
            field = RESULT_FIELDS[option]
            if self[option].backcolor == GREEN and self.numeric(field):
                self.set_text(field, format_result(self.value(field), self.locale, grouping=False))
        for option in RESULT_FIELDS:
            self[option].backcolor = GREEN if option == selected else OPTION_GREY
        results = [RESULT_FIELDS[selected]]
        if selected == "optCalcBeta":
            results.append("txtOriBoreDia")
        for field in ("txtFlow", "txtDeltaP", "txtBeta", "txtOriBoreDia"):
            control = self[field]
            control.locked = field in results
            control.tabstop = not control.locked
            control.backcolor = GREEN if control.locked else WINDOW_COLOUR
        self.set_text(results[0], "")
        self.recalculate()

    def recalculate(self):
        if not self.suspended:
            self.DoOrificeCalculations()

    optCalcBeta_Click = partialmethod(_select_mode, "optCalcBeta", ("optCalcFR", "optCalcDP"))
    optCalcDP_Click = partialmethod(_select_mode, "optCalcDP", ("optCalcFR",))
    optCalcFR_Click = partialmethod(_select_mode, "optCalcFR", ("optCalcDP",))

    # --- unit lists ------------------------------------------------------------------------------

    def cboDeltaPunit_Click(self):
        self.recalculate()
        self.CheckPlateThicknessWarning()

    def cboDensityUnit_Click(self):
        if self.fluid == "L" and self.on("optSgCalc"):
            self.CalcSGf()
        if self.fluid == "S" and self.on("optSteamTbl") and not self.CalcSteamDensity():
            return
        self.recalculate()

    def cboFlowUnit_Click(self):
        mass = self.flow_kind() == "M"
        if self.fluid == "L":
            for name in ("txtSGb", "lblSGb1", "lblSGb2"):
                self[name].visible = not mass
        elif self.fluid == "G":
            self["fraGasSG"].visible = not (self.on("optCompDensity") and mass)
        self.recalculate()

    cboTimeUnit_Click = cboZfDensityUnit_Click = recalculate

    # --- pipe ------------------------------------------------------------------------------------

    def cboPipeIDUnit_Click(self):
        self.select_item("cboOriBoreUnit", self["cboPipeIDUnit"].index)
        self.LoadcboNomSize()

    def LoadcboNomSize(self):
        wanted = "2"
        if "cboNomSize" in self.tables and self["cboNomSize"].index >= 0:
            wanted = self.table_text("cboNomSize")
        factor = self.factor("cboPipeIDUnit")
        values = [local_decimal(value, self.locale) for _, value in NOMINAL_SIZES]
        shown = [text for text, _ in NOMINAL_SIZES]
        if factor != 1.0:
            shown = [format_number(single(read_single(value, self.locale) / factor), 1,
                                   self.locale, False) for value in values]
        self._load("cboNomSize", shown, values)
        self.select_item("cboNomSize", values.index(wanted) if wanted in values else 0)

    def cboNomSize_Click(self):
        self.LoadcboPipeID()
        self.CheckPlateThicknessWarning()

    def LoadcboPipeID(self):
        size = self.table_text("cboNomSize")
        factor = self.factor("cboPipeIDUnit")
        mark = METRIC_MARKS.get(self.list_text("cboPipeIDUnit"))
        remembered = self.table_text("cboPipeID") if self["cboPipeID"].items else None
        self.fill_list("cboPipeID", [])
        if size not in PIPE_SCHEDULES:
            self.fatal_error("No pipe schedule data for nominal pipe size.")
        shown, diameters = [], []
        for schedule, inches in PIPE_SCHEDULES[size]:
            diameter = local_decimal(inches, self.locale)
            metric = ""
            if mark:
                converted = single(read_single(diameter, self.locale) / factor)
                metric = f"({format_number(converted, 2, self.locale, False)} {mark})  "
            shown.append(f'{diameter}"  {metric}{schedule}')
            diameters.append(diameter)
        shown.append("Other (User Entered)")
        diameters.append("0")
        self._load("cboPipeID", shown, diameters)
        chosen = max((i for i, text in enumerate(diameters) if text == remembered), default=0)
        self.select_item("cboPipeID", chosen)

    def cboPipeID_Click(self):
        user_entered = USER_ENTERED in self.list_text("cboPipeID")
        self["txtMaskNomSize"].visible = user_entered
        if user_entered:
            self._ask_for_diameter()
        if self.numeric("txtOriBoreDia"):
            bore = format_number(self.value("txtOriBoreDia"), 3, self.locale, False)
            self.set_text("txtOriBoreDia", bore)
        self._beta_from_bore()
        self.recalculate()

    def _ask_for_diameter(self):
        unit = self.list_text("cboPipeIDUnit")
        answer = self.input_box("Pipe ID", f"Enter a Pipe ID in {unit}.",
                                self.table_text("cboPipeID")).strip(" ")
        value = read_double(answer, self.locale)
        if value is None or value <= 0.0:
            self.message_box("User Entered Pipe ID", "The pipe ID must be greater than 0.",
                             "information")
            return
        if unit == "Inches":
            diameter = format_number(value, 3, self.locale, False, is_double=True)
            metric = ""
        else:
            entered = format_number(value, 2, self.locale, False, is_double=True)
            inches = single(read_single(entered, self.locale) * self.factor("cboPipeIDUnit"))
            diameter = format_number(inches, 3, self.locale, False)
            metric = f"  ({entered} {METRIC_MARKS[unit]})  "
        self.tables["cboPipeID"][-1] = diameter
        self["cboPipeID"].items[-1] = f'{diameter}"{metric} {USER_ENTERED}'

    # --- bore and beta ---------------------------------------------------------------------------

    def _beta_from_bore(self):
        if not self.numeric("txtOriBoreDia"):
            self.set_text("txtBeta", "")
            return
        bore = single(self.value("txtOriBoreDia") * self.factor("cboOriBoreUnit"))
        pipe = self.pipe_diameter()
        beta = single(bore / pipe) if pipe != 0.0 else math.nan
        self.set_text("txtBeta", format_number(beta, 5, self.locale, False))

    def _bore_from_beta(self):
        bore = single(self.value("txtBeta") * self.pipe_diameter())
        bore = single(bore / self.factor("cboOriBoreUnit"))
        self.set_text("txtOriBoreDia", format_number(bore, 3, self.locale, False))

    def txtBeta_Change(self):
        if self.numeric("txtBeta"):
            if self.value("txtBeta") >= BETA_LIMIT:
                self._refuse_beta()
            elif self.focus not in ("txtOriBoreDia", "cboOriBoreUnit"):
                self._bore_from_beta()
        if not self.on("optCalcBeta"):
            self.recalculate()
        self.no_page_without("txtBeta")

    def no_page_without(self, field):
        if self.text(field) == "":
            self.enable_printing(False)

    def _refuse_beta(self):
        pipe_unit = self.list_text("cboPipeIDUnit")
        if pipe_unit == "Inches":
            pipe = format_number(self.pipe_diameter(), 3, self.locale, False)
        else:
            shown = self.list_text("cboPipeID")
            _, _, after = shown.partition("(")
            number, mark, _ = after.partition(" " + METRIC_MARKS[pipe_unit])
            value = read_single(number, self.locale) if mark else None
            pipe = "" if value is None else format_number(value, 2, self.locale, False)
        lines = [
            f"Orifice Diameter:\t{self.text('txtOriBoreDia')} {pipe_unit}",
            f"Pipe Diameter:\t{pipe} {self.list_text('cboOriBoreUnit')}",
            f"Beta Ratio:\t{self.text('txtBeta')}", "",
            "Beta is a dimensionless ratio of the",
            "Orifice Diameter divided by the Pipe Diameter.", "",
            "This ratio must be less than 0.95"]
        self.message_box("Beta Value", "".join(line + LINE_END for line in lines), "exclamation")
        self.set_text("txtOriBoreDia", "")
        self.set_text("txtBeta", "")

    def txtOriBoreDia_Change(self):
        if self.focus == "txtOriBoreDia":
            self._beta_from_bore()

    def cboOriBoreUnit_Click(self):
        self.set_text("txtOriBoreDia", "")
        if self.numeric("txtBeta") and self.value("txtBeta") <= BETA_LIMIT:
            self._bore_from_beta()

    # --- printing and the end --------------------------------------------------------------------

    def cmdPrint_Click(self):
        lines, self.customer_typed = self.customer_typed, None
        if self._next_answer()[0] == "cancel":
            return
        if lines is not None:
            self.customer = lines
        if self.printer:
            self.pages.append(page_lines(self))

    mnuPrint_Click = cmdPrint_Click

    def cmdExit_Click(self):
        if self.message_box("Program Termination", "Program Complete. EXIT PROGRAM", "critical"):
            raise Ended("exit")

    mnuExit_Click = cmdExit_Click
