"""Controls of the reference model: what each one holds, and what writing to it sets off.

An attribute that is None has no value that the product's description fixes (a colour that is never
set, say); it is left out of the state.
"""

GREEN = "0x00FF00"
OPTION_GREY = "0xC0C0C0"
FIELD_GREY = "0xE0E0E0"
YELLOW = "0x00FFFF"
RED = "0x0000FF"
WINDOW_COLOUR = "window"

# Frames: name -> (frame around it, caption).
FRAMES = {
    "fraCalcOptions": (None, "Options"),
    "fraFlowType": (None, "Flow Type"),
    "fraPipe": (None, "Pipe"),
    "fraFlowrate": (None, "Flow Rate"),
    "fraDeltaP": (None, "Differential Pressure"),
    "fraPlateThicknessWarning": (None, None),
    "fraOriBoreDiameter": (None, "Orifice Bore Diameter"),
    "fraBeta": (None, "Beta Ratio"),
    "fraPress": (None, "Pressure"),
    "fraTemp": (None, "Temperature"),
    "fraGasSG": (None, "Specific Gravity"),
    "fraSG": (None, "Specific Gravity"),
    "fraDensity": (None, "Density"),
    "fraSteam1": ("fraDensity", None),
    "fraSteam2": ("fraDensity", None),
    "fraCompCorrection": (None, "Compressibility Correction"),
    "fraZfCompWarning": ("fraCompCorrection", None),
}

FIELDS = {
    "txtFlow": "fraFlowrate",
    "txtDeltaP": "fraDeltaP",
    "txtBeta": "fraBeta",
    "txtOriBoreDia": "fraOriBoreDiameter",
    "txtPf": "fraPress",
    "txtTf": "fraTemp",
    "txtDensity": "fraDensity",
    "txtSGb": "fraSG",
    "txtSGf": "fraSG",
    "txtGasSGb": "fraGasSG",
    "txtZf": "fraCompCorrection",
}

LISTS = {
    "cboNomSize": "fraPipe",
    "cboPipeID": "fraPipe",
    "cboPipeIDUnit": "fraPipe",
    "cboFlowUnit": "fraFlowrate",
    "cboTimeUnit": "fraFlowrate",
    "cboDeltaPunit": "fraDeltaP",
    "cboOriBoreUnit": "fraOriBoreDiameter",
    "cboPressUnit": "fraPress",
    "cboDensityUnit": "fraDensity",
    "cboZfDensityUnit": "fraCompCorrection",
}

# Options: frame -> {name: caption}; the options of one frame exclude each other.
OPTIONS = {
    "fraCalcOptions": {
        "optCalcBeta": "Calculate  Beta Ratio",
        "optCalcDP": "Calculate Differential Pressure",
        "optCalcFR": "Calculate  Flow Rate",
    },
    "fraFlowType": {"optLiquid": "Liquid", "optGas": "Air - Gas", "optSteam": "Steam"},
    "fraPress": {"optPgauge": "Gauge", "optPabsolute": "Absolute"},
    "fraTemp": {"optDegF": "Deg F", "optDegC": "Deg C"},
    "fraSG": {"optSgCalc": "Calculated (from density)", "optSgUser": "User Entered"},
    "fraSteam1": {"optSuperheated": "Superheated", "optSaturated": "Saturated"},
    "fraSteam2": {"optSteamTbl": "From ASME Table", "optSteamUser": "User Entered"},
    "fraCompCorrection": {"optCompCorrNone": "None", "optCompDensity": "Density",
                          "optCompZf": None},
}

SELECTED_AT_START = ("optPgauge", "optDegF", "optSgUser", "optSaturated", "optSteamUser")

# Labels: name -> (frame around it, caption).
LABELS = {
    "lblMsg": (None, None),
    "lblNomSize": ("fraPipe", "Nominal Size"),
    "lblPipeID": ("fraPipe", "Pipe ID"),
    "lblBeta": ("fraBeta", "Beta = (Orifice Diameter) / (Pipe Diamter)"),
    "lblGasSGb": ("fraGasSG", "Base"),
    "lbl1PlateThicknessWarning": ("fraPlateThicknessWarning", "Orifice plate deflection"),
    "lbl2PlateThicknessWarning": ("fraPlateThicknessWarning", "should be checked."),
    "lblPf": ("fraPress", "Operating Pressure"),
    "lblTf": ("fraTemp", "Operating Temperature"),
    "lblSGb1": ("fraSG", None),
    "lblSGb2": ("fraSG", None),
    "lblSGf1": ("fraSG", None),
    "lblSGf2": ("fraSG", None),
    "lblSteamTbl": ("fraSteam2", "(Op.Press. based)"),
    "lblDensity": ("fraDensity", "Operating Density"),
    "lblCompCorr": ("fraCompCorrection", "Operating Density"),
    "lbl1ZfCompWarning": ("fraZfCompWarning", "At this pressure, no compressibility correction"),
    "lbl2ZfCompWarning": ("fraZfCompWarning", "may result in erroneous computations."),
}

BUTTONS = {"cmdPrint": "Print", "cmdExit": "Exit", "mnuFile": "&File", "mnuPrint": "&Print",
           "mnuExit": "E&xit", "mnuAbout": "&About"}

# What the script player reports of each kind, beside whether it is visible and enabled.
REPORTED = {
    "frame": ("caption", "backcolor", "top", "width"), "label": ("caption", "backcolor"),
    "field": ("text", "locked", "tabstop", "backcolor"), "list": ("index",), "mask": ("text",),
    "option": ("value", "caption", "backcolor"), "button": ("caption",),
}


class Control:
    def __init__(self, kind, parent=None, caption=None):
        self.kind = kind
        self.parent = parent
        self.caption = caption
        self.visible = self.enabled = True
        self.backcolor = None
        # Frames
        self.top = self.width = None
        # Fields and lists
        self.text = ""
        self.locked = False
        self.tabstop = True
        self.cursor = self.anchor = 0
        self.items = []
        self.index = -1
        # Options
        self.value = False

    def selection(self):
        return min(self.cursor, self.anchor), max(self.cursor, self.anchor)


class Controls:
    """All controls by name, and the events that writing to them raises."""

    def __init__(self):
        self.all = {
            **{name: Control("frame", *place) for name, place in FRAMES.items()},
            **{name: Control("field", parent) for name, parent in FIELDS.items()},
            **{name: Control("list", parent) for name, parent in LISTS.items()},
            **{name: Control("option", parent, caption)
               for parent, options in OPTIONS.items() for name, caption in options.items()},
            **{name: Control("label", *place) for name, place in LABELS.items()},
            **{name: Control("button", None, caption) for name, caption in BUTTONS.items()},
            "tabOrifice": Control("frame", None, "&Measurement Orifice"),
            "txtMaskNomSize": Control("mask", "fraPipe")}
        for name in SELECTED_AT_START:
            self.all[name].value = True
        self.focus = None  # None: not known, the toolkit decides

    def __getitem__(self, name):
        return self.all[name]

    def _shown(self, name, attribute):
        while name is not None:
            control = self.all[name]
            if not getattr(control, attribute):
                return False
            name = control.parent
        return True

    def visible(self, name):
        """What the user sees: the control and every frame around it are visible."""
        return self._shown(name, "visible")

    def enabled(self, name):
        return self._shown(name, "enabled")

    def _raise(self, name, event):
        handler = getattr(self, name + "_" + event, None)
        if handler is not None:
            handler()

    def set_text(self, name, text):
        """Writes a field from code; a different text runs its Change handler at once."""
        control = self.all[name]
        if control.text == text:
            return
        control.text = text
        control.cursor = control.anchor = len(text)
        self._raise(name, "Change")

    def select_option(self, name):
        parent = self.all[name].parent
        for sibling in OPTIONS[parent]:
            self.all[sibling].value = sibling == name
        self._raise(name, "Click")

    def fill_list(self, name, items):
        control = self.all[name]
        control.items = list(items)
        control.index = -1

    def select_item(self, name, index):
        self.all[name].index = index
        self._raise(name, "Click")

    def list_text(self, name):
        control = self.all[name]
        return control.items[control.index] if control.index >= 0 else ""

    def set_focus(self, name):
        """Focus from code: a control that has it already is left alone."""
        if self.focus == name or not (self.visible(name) and self.enabled(name)):
            return
        self.focus = name
        self.select_all(name)

    def select_all(self, name):
        control = self.all[name]
        if control.kind == "field":
            control.anchor, control.cursor = 0, len(control.text)

    def state_of(self, name):
        """What the script player reports of one control."""
        control = self.all[name]
        report = {key: getattr(control, key) for key in REPORTED[control.kind]}
        report.update(visible=self.visible(name), enabled=self.enabled(name))
        if control.kind == "list":
            report.update(text=self.list_text(name), items=list(control.items))
        if control.kind == "field" and self.focus == name and not control.locked:
            start, end = control.selection()
            report.update(selstart=start, sellength=end - start)
        return {key: value for key, value in report.items() if value is not None}
