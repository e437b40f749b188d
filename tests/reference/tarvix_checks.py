"""Validation and DoOrificeCalculations of the reference model."""

from tarvix_controls import FIELD_GREY, RED, YELLOW, Controls
from tarvix_equations import Meter, gas_state, solve_gas, solve_liquid, solve_steam, steam_density
from tarvix_numbers import (
    format_limit, format_number, format_result, is_numeric, local_decimal, quotient, read_double,
    read_single, single)

ATMOSPHERE = single(14.7)

RESULT_FIELDS = {"optCalcFR": "txtFlow", "optCalcDP": "txtDeltaP", "optCalcBeta": "txtBeta"}
MODES = {"optCalcFR": "FR", "optCalcDP": "DP", "optCalcBeta": "BETA"}


class Calculator(Controls):
    """The controls with the checks and calculations over them."""

    def __init__(self, locale):
        super().__init__()
        self.locale = locale
        self.fluid = ""
        self.suspended = False
        self.message = ""
        self.tables = {}  # list name -> its unit table: factor texts, or (kind, factor text)
        self.base_sg = 0.0
        self.boxes = []
        self.calculations = 0
        self.pages = []

    # --- reading ---------------------------------------------------------------------------------

    def text(self, name):
        return self.all[name].text

    def numeric(self, name):
        return is_numeric(self.text(name), self.locale)

    def value(self, name):
        """The field's number as a single, 0 when it is none."""
        number = read_single(self.text(name), self.locale)
        return 0.0 if number is None else number

    def on(self, option):
        return self.all[option].value

    def table_text(self, name):
        return self.tables[name][self.all[name].index]

    def factor(self, name):
        return read_single(local_decimal(self.table_text(name), self.locale), self.locale)

    def in_unit(self, field, unit_list):
        return single(self.value(field) * self.factor(unit_list))

    def flow_kind(self):
        return self.table_text("cboFlowUnit")[0]

    def flow_factor(self):
        flow = single(float(self.table_text("cboFlowUnit")[1]))
        factor = single(flow / self.factor("cboTimeUnit"))
        return factor if self.fluid == "L" else single(factor * 60.0)

    def pipe_diameter(self):
        return read_single(self.table_text("cboPipeID"), self.locale)

    def result_option(self):
        return next(option for option in RESULT_FIELDS if self.on(option))

    # --- messages and printing -------------------------------------------------------------------

    def show_message(self, colour):
        self["lblMsg"].caption = self.message
        self["lblMsg"].backcolor = colour

    def enable_printing(self, enabled):
        self["cmdPrint"].enabled = enabled
        self["mnuPrint"].enabled = enabled

    # --- checks ----------------------------------------------------------------------------------

    def _judge_edited(self, fields, rules, non_numeric, not_positive):
        """The field that has the focus. `rules` holds the fields with a test of their own."""
        field, name = next((pair for pair in fields if pair[0] == self.focus), ("", ""))
        if not field or self.text(field) == "":
            return ""
        if not self.numeric(field):
            return non_numeric(name)
        if field in rules:
            return rules[field](name, True)
        return "" if self.value(field) > 0.0 else not_positive(name)

    def _fluid_check(self, fields, required, rules):
        """The three stages over (field, name) pairs; the message or ""."""
        message = self._judge_edited(
            fields, rules, lambda name: "Non-Numeric " + name,
            lambda name: name + " must be greater than 0.")
        if message:
            return message
        asked = [(field, name) for field, name in fields if field in required]
        empty = [name for field, name in asked if self.text(field) == ""]
        if empty:
            return "Incomplete fluid data (" + ", ".join(empty) + ")."
        wrong = [name for field, name in asked if not self.numeric(field)]
        if wrong:
            return "Non-Numeric fluid data (" + ", ".join(wrong) + ")."
        for message in (rules[field](name, False) for field, name in asked if field in rules):
            if message:
                return message
        low = [name for field, name in asked if field not in rules and self.value(field) <= 0.0]
        return ", ".join(low) + " must be greater than 0." if low else ""

    def _pressure_limit(self, name, edited):
        factor = self.factor("cboPressUnit")
        pressure = single(self.value("txtPf") * factor)
        if self.on("optPabsolute"):
            if pressure > 0.0:
                return ""
            return name + " must be greater than 0" + ("" if edited else ".")
        if pressure > -ATMOSPHERE:
            return ""
        limit = format_limit(single(-ATMOSPHERE / factor), self.locale)
        return f"{name} must be greater than {limit} {self.list_text('cboPressUnit')}."

    def check_liquid(self):
        calculated = self.on("optSgCalc")
        fields = [
            ("txtSGf", "Flowing Specific Gravity" + (" [from Density]" if calculated else "")),
            ("txtSGb", "Base Specific Gravity"),
            ("txtDensity", "Operating Density")]
        required = {"txtDensity" if calculated else "txtSGf"}
        if self.visible("txtSGb"):
            required.add("txtSGb")
        self.message = self._fluid_check(fields, required, {})
        if self.message:
            return False
        self.flowing_sg = self.value("txtSGf")
        if self.visible("txtSGb"):
            self.base_sg = self.value("txtSGb")
        return True

    def check_steam(self):
        from_table = self.on("optSteamTbl")
        density = "Operating Density" + (" [from Op. Pressure]" if from_table else "")
        fields = [("txtDensity", density), ("txtPf", "Operating Pressure")]
        required = {"txtPf"} if from_table else {"txtDensity", "txtPf"}
        self.message = self._fluid_check(fields, required, {"txtPf": self._pressure_limit})
        if not self.message and from_table and self.text("txtDensity") == "":
            self.message = f"The {density} must not exceed steam table limits."
        if self.message:
            return False
        self.oper_press = self.in_unit("txtPf", "cboPressUnit")
        self.oper_density = self.in_unit("txtDensity", "cboDensityUnit")
        return True

    def check_gas(self):
        correction = "Zf" if self.on("optCompZf") else "Density"
        fields = [("txtTf", "Op. Temperature"), ("txtPf", "Op. Pressure"),
                  ("txtGasSGb", "Base Specific Gravity"), ("txtZf", correction)]
        required = {"txtTf", "txtPf"}
        required.update(field for field in ("txtGasSGb", "txtZf") if self.visible(field))
        self.message = self._fluid_check(
            fields, required, {"txtTf": lambda name, edited: "", "txtPf": self._pressure_limit})
        if self.message:
            return False
        temperature = self.value("txtTf")
        if self.on("optDegC"):
            temperature = single((9 / 5) * temperature + 32)
        self.flow_temp_f = temperature
        if self.visible("txtGasSGb"):
            self.base_sg = self.value("txtGasSGb")
        self.oper_press = self.in_unit("txtPf", "cboPressUnit")
        if self.on("optCompDensity"):
            self.oper_density = self.in_unit("txtZf", "cboZfDensityUnit")
        elif self.on("optCompZf"):
            self.user_zf = self.value("txtZf")
        return True

    def check_orifice(self):
        fields = [(field, name) for option, field, name in (
            ("optCalcFR", "txtFlow", "Flow Rate"),
            ("optCalcDP", "txtDeltaP", "Differential Pressure"),
            ("optCalcBeta", "txtBeta", "Beta Ratio")) if not self.on(option)]
        self.message = self._judge_edited(
            fields, {}, lambda name: f"Non-Numeric {name} data.",
            lambda name: f"The {name} must be greater than 0.")
        if self.message:
            return False
        wrong = [name for field, name in fields if not self.numeric(field)]
        low = [name for field, name in fields if self.value(field) <= 0.0]
        if wrong:
            self.message = "Incomplete or Non-Numeric fluid data (" + ", ".join(wrong) + ")."
        elif low:
            self.message = "Fluid data (" + ", ".join(low) + ") must be greater than 0."
        return not self.message

    # --- the calculation -------------------------------------------------------------------------

    def DoOrificeCalculations(self):
        self.calculations += 1
        self.enable_printing(False)
        check = {"L": self.check_liquid, "S": self.check_steam, "G": self.check_gas}[self.fluid]
        for judge in (check, self.check_orifice):
            good = judge()
            self.show_message(FIELD_GREY if good else YELLOW)
            if not good:
                self.set_text(RESULT_FIELDS[self.result_option()], "")
                return
        self._solve()
        if self.numeric("txtBeta"):
            beta = self.value("txtBeta")
            if beta < single(0.15) or beta > single(0.67):
                self.message = "Warning: Beta value exceeds standard range (0.15 to 0.67)."
                self.show_message(YELLOW)

    def _solve(self):
        option = self.result_option()
        field = RESULT_FIELDS[option]
        flow_factor, dp_factor = self.flow_factor(), self.factor("cboDeltaPunit")
        meter = Meter(MODES[option], single(self.value("txtFlow") * flow_factor),
                      single(self.value("txtDeltaP") * dp_factor), self.value("txtBeta"),
                      self.pipe_diameter())
        self.message = ""
        self.set_text(field, "")
        value, self.message = self._run_equation(meter)
        if self.message:
            self.show_message(RED)
        if value is None:
            return
        if option == "optCalcBeta":
            text = format_number(value, 5, self.locale, True)
        else:
            divisor = flow_factor if option == "optCalcFR" else dp_factor
            text = format_result(single(quotient(value, divisor)), self.locale)
        self.set_text(field, text)
        if self.text(field) != "":
            self.enable_printing(True)

    def _run_equation(self, meter):
        if self.fluid == "L":
            if self.flow_kind() == "M":
                self.base_sg = 1.0
            return solve_liquid(meter, self.flowing_sg, self.base_sg)
        pressure = self.oper_press
        if self.on("optPgauge"):
            pressure = single(pressure + ATMOSPHERE)
        if self.fluid == "S":
            return solve_steam(meter, pressure, self.oper_density)
        choice, density, zf = (
            ("Density", self.oper_density, None) if self.on("optCompDensity") else
            ("Zf", None, self.user_zf) if self.on("optCompZf") else ("None", None, None))
        return solve_gas(meter, gas_state(
            self.flow_kind(), choice, pressure, ATMOSPHERE, self.flow_temp_f, 60.0, self.base_sg,
            density, zf))

    # --- densities -------------------------------------------------------------------------------

    def CalcSGf(self):
        self.set_text("txtSGf", "")
        value = read_single(self.text("txtDensity"), self.locale)
        if value is None or value <= 0.0:
            return
        factor = read_double(local_decimal(self.table_text("cboDensityUnit"), self.locale),
                             self.locale)
        gravity = single(single(factor * value) / single(62.366))
        self.set_text("txtSGf", format_number(gravity, 4, self.locale, True))

    def CalcSteamDensity(self):
        self.message = ""
        self.set_text("txtDensity", "")
        if self.numeric("txtPf"):
            self._look_up_steam()
        self.show_message(YELLOW if self.message else FIELD_GREY)
        if not self.message:
            return True
        self.set_text(RESULT_FIELDS[self.result_option()], "")
        return False

    def _look_up_steam(self):
        factor = self.factor("cboPressUnit")
        absolute = self.on("optPabsolute")
        offset = ATMOSPHERE if absolute else 0.0
        pressure = single(self.value("txtPf") * factor)
        if absolute:
            pressure = single(pressure - ATMOSPHERE)
        for limit, beyond, text in (
                (0.0, pressure < 0.0, "The Op. Pressure is below the steam table mimimum: "),
                (3000.0, pressure > 3000.0, "The Op. Pressure exceeds the steam table maximum: ")):
            if beyond:
                shown = format_result(single(single(limit + offset) / factor), self.locale)
                unit = self.list_text("cboPressUnit")
                self.message = f"{text}{shown} {unit}" + (" (absolute)" if absolute else " (gauge)")
                return
        density = single(steam_density(pressure) / self.factor("cboDensityUnit"))
        self.set_text("txtDensity", format_number(density, 5, self.locale, True))
