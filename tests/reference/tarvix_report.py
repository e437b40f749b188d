"""The printed report of the reference model: the lines of the page."""

from tarvix_controls import YELLOW
from tarvix_numbers import format_number, read_double

VALUE_COLUMN = 40

TITLES = {"optCalcFR": "Flow Rate", "optCalcDP": "Pressure Differential",
          "optCalcBeta": "Bore size"}
FLUIDS = {"L": "Liquid", "S": "Steam", "G": "Gas"}

NOTES = """\
Note: Values for the beta ratio are approximate, typically within
            2% - 5% for gases and steam
            1% for liquids
      The ASME MFC-3M 1989 equation is used in this program.  However,
      several equation factors are assumed and can directly affect the
      calculation results
            Coefficient of Thermal Expansion:    1.0
            Discharge Coefficient:               0.6
            Base Temperature:                    60 Deg F  (15.56 Deg C)
            Base Pressure:                       14.7 PSIA (101.3 kPa-A)
            Pressure Tap Location:               Flange Tap

      Also, this program does not take into consideration two calculation
      variables - the Reynolds Number correction and the expansion factor.

      If it is necessary to have a closely specified beta ratio, differential
      pressure, or flow rate, please consult your Brindle representative for
      assistance

""".split("\n")

FOOTER = (
    ("Brindle Headquarters", "Port Alder, TX", "Kestrel Bay, CA", "Fenwick Mills, NJ"),
    ("Marlow Falls, OH", "Tel. (555) 555-0110", "Tel. (555) 555-0120", "Tel. (555) 555-0130"),
    ("Tel. (555) 555-0100", "Fax  (555) 555-0111", "Fax  (555) 555-0121", "Fax  (555) 555-0131"),
    ("Fax  (555) 555-0101",),
)
FOOTER_COLUMN = 28
WEB_SITE = "Web site: www.brindle.example"


class Page:
    def __init__(self, window):
        self.window = window
        self.lines = []

    def value(self, label, field, decimals, unit=""):
        self.number(label, self.window.text(field), decimals, unit)

    def number(self, label, text, decimals, unit=""):
        number = read_double(text, self.window.locale)
        shown = "" if number is None else format_number(number, decimals, self.window.locale, True,
                                                        is_double=True)
        if shown.startswith("-"):
            shown = "(" + shown[1:] + ")"
        room = VALUE_COLUMN - len(label) - len(shown)
        blanks = room if room >= 0 else 1
        self.lines.append(label + " " * blanks + shown + (" " + unit if unit else ""))

    def unit(self, name):
        return self.window.list_text(name)

    def compose(self):
        window = self.window
        title = next(TITLES[option] for option in TITLES if window.on(option))
        first, second, tag = window.customer
        self.lines += ["", "", "", f"Orifice calculation for {title} - Flange Taps - "
                       + FLUIDS[window.fluid], "", "Customer: " + first]
        if second.strip(" "):
            self.lines.append(" " * 10 + second)
        self.lines += ["     Tag: " + tag, ""]
        self.value("Flow Rate", "txtFlow", 2,
                   self.unit("cboFlowUnit") + "/" + self.unit("cboTimeUnit"))
        self.value("Differential Pressure", "txtDeltaP", 2, self.unit("cboDeltaPunit"))
        {"L": self.liquid, "S": self.steam, "G": self.gas}[window.fluid]()
        self.lines.append("")
        self.pipe()
        self.value("Bore Diameter (approximate)", "txtOriBoreDia", 3, self.unit("cboOriBoreUnit"))
        self.value("Beta (approximate)", "txtBeta", 5)
        self.warnings()
        self.lines += NOTES[:-1] + [""]
        self.lines += ["".join(text.ljust(FOOTER_COLUMN) for text in columns).rstrip()
                       for columns in FOOTER]
        # The date stands before it.
        left = (66 - len(WEB_SITE)) // 2
        self.lines += ["", "", (" " * left + WEB_SITE).ljust(66)]
        return self.lines

    def liquid(self):
        calculated = self.window.on("optSgCalc")
        self.value("Base Specific Gravity", "txtSGb", 2)
        self.value("Flowing Specific Gravity", "txtSGf", 2,
                   "(Calculated from Density)" if calculated else "")
        if calculated:
            self.value("Operating Density", "txtDensity", 3, self.unit("cboDensityUnit"))

    def steam(self):
        self.value("Operating Density", "txtDensity", 3, self.unit("cboDensityUnit"))
        state = ("Superheated" if not self.window.on("optSaturated") else
                 "Saturated - from ASME table" if self.window.on("optSteamTbl") else "Saturated")
        self.lines.append(" " * 41 + f"({state})")
        self.pressure()

    def gas(self):
        window = self.window
        self.value("Operating Temperature", "txtTf", 2,
                   "Deg C" if window.on("optDegC") else "Deg F")
        self.pressure()
        if window.visible("txtGasSGb"):
            self.value("Base Specific Gravity", "txtGasSGb", 2)
        self.lines.append("Compressibility Factor:")
        if window.on("optCompCorrNone"):
            self.number("     Zf", "1", 5, "(assumed)")
        elif window.on("optCompZf"):
            self.value("     Zf", "txtZf", 5)
        else:
            self.value("     Operating Density", "txtZf", 3, self.unit("cboZfDensityUnit"))

    def pressure(self):
        reference = "(gauge)" if self.window.on("optPgauge") else "(absolute)"
        self.value("Operating Pressure", "txtPf", 2, self.unit("cboPressUnit") + " " + reference)

    def pipe(self):
        shown, unit = self.unit("cboPipeID"), self.unit("cboPipeIDUnit")
        user = " (User Entered)" if "(User Entered)" in shown else ""
        text, decimals = self.window.table_text("cboPipeID"), 3
        if unit != "Inches":
            mark = {"Millimeters": " mm", "Centimeters": " cm"}[unit]
            text, decimals = shown.partition("(")[2].partition(mark)[0], 2
        self.number("Pipe Diameter" + user, text, decimals, unit)

    def warnings(self):
        window = self.window
        message = window["lblMsg"].caption
        if message:
            self.lines += ["", message]
        if window.visible("fraPlateThicknessWarning"):
            self.lines += [] if message else [""]
            self.lines.append("Warning: Orifice plate deflection should be checked.")
        if window.fluid == "G" and window.visible("fraZfCompWarning"):
            mild = window["fraZfCompWarning"].backcolor == YELLOW
            stars = "  " + "*" * 62
            self.lines += [
                "", stars,
                "  * WARNING: A compressibility correction factor has not been  *",
                "  *          entered.  At this pressure, no compressibility    *",
                "  *          correction may result in erroneous computations.  *" if mild else
                "  *          correction will result in erroneous computations. *", stars]


def page_lines(window):
    return Page(window).compose()
