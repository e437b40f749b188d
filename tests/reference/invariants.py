"""What must hold after every action, whatever the user does, and needs no model to be seen: held
against two states of the window in a row, as the script player writes them."""

import re

from tarvix_checks import RESULT_FIELDS
from tarvix_controls import FIELDS, GREEN, WINDOW_COLOUR
from tarvix_tables import DELTA_P_UNITS, PRESSURE_UNITS

# What the checks call a field, where it says one thing only.
NAMED = {
    "Flowing Specific Gravity": ("txtSGf",), "Base Specific Gravity": ("txtSGb", "txtGasSGb"),
    "Operating Temperature": ("txtTf",), "Operating Density": ("txtDensity", "txtZf"),
    "Flow Rate": ("txtFlow",), "Differential Pressure": ("txtDeltaP",), "Beta Ratio": ("txtBeta",),
}
INFINITE = re.compile(r"inf|nan|1\.#", re.IGNORECASE)


class Step:
    """One action and the window after it; `before` is None where the window was just opened."""

    def __init__(self, lines, before, now, locale):
        self.lines = lines
        self.before = before
        self.now = now
        self.locale = locale

    def __getitem__(self, name):
        return self.now["controls"][name]

    def was(self, name):
        return self.before["controls"][name]

    def edited(self):
        """The fields that the action may have typed into; with keys, any."""
        if any(line.startswith("keys") for line in self.lines):
            return FIELDS
        return {line.split()[1] for line in self.lines if line.startswith(("type ", "paste "))}

    def result(self):
        return next(field for mode, field in RESULT_FIELDS.items() if self[mode]["value"])

    def number(self, text):
        """A number that the program wrote, or None."""
        plain = text.replace(self.locale.group, "").replace(self.locale.decimal, ".")
        try:
            return float(plain)
        except ValueError:
            return None


def locked_is_green(step):
    results = {step.result()} | ({"txtOriBoreDia"} if step.result() == "txtBeta" else set())
    for field in ("txtFlow", "txtDeltaP", "txtBeta", "txtOriBoreDia"):
        is_result = field in results
        expected = {"locked": is_result, "tabstop": not is_result,
                    "backcolor": GREEN if is_result else WINDOW_COLOUR}
        found = {key: step[field][key] for key in expected}
        if found != expected:
            return f"{field}: {found}"
    for option in RESULT_FIELDS:
        if (step[option]["backcolor"] == GREEN) != step[option]["value"]:
            return f"{option} is {step[option]['backcolor']}"
    return ""


def hidden_never_blocks(step):
    """No message names only fields that the user can't see or use."""
    named = re.search(r"fluid data \((.*)\)", step["lblMsg"]["caption"], re.IGNORECASE)
    for name in named.group(1).split(", ") if named else ():
        fields = NAMED.get(name, ())
        if fields and not any(step[field]["visible"] and step[field]["enabled"]
                              for field in fields):
            return step["lblMsg"]["caption"]
    return ""


def no_infinity(step):
    edited = step.edited()
    for name, control in step.now["controls"].items():
        texts = control.get("items", [])
        if name in FIELDS and name not in edited and \
                (step.before is None or control["text"] != step.was(name)["text"]):
            texts = [control["text"]]
            if control["text"] and step.number(control["text"]) is None:
                return f"{name} holds {control['text']!r}"
        for text in texts:
            if INFINITE.search(text.replace("Minute", "").replace("inches", "")):
                return f"{name} holds {text!r}"
    return ""


def _half_digit(text, point):
    decimals = len(text.partition(point)[2])
    return 0.5 * 10.0 ** -decimals


def _is_tame(step):
    """Whether a small error stays small: no beta near its end, and, where an expansion factor
    counts, a differential pressure that is a small part of the pressure."""
    beta = step.number(step["txtBeta"]["text"])
    drop = step.number(step["txtDeltaP"]["text"])
    if not beta or not drop or not 0.1 < beta < 0.75:
        return False
    if step["optLiquid"]["value"]:
        return True
    pressure = step.number(step["txtPf"]["text"])
    if pressure is None:
        return False
    psi = pressure * float(dict(PRESSURE_UNITS)[step["cboPressUnit"]["text"]])
    psi += 14.7 if step["optPgauge"]["value"] else 0.0
    inches = drop * float(dict(DELTA_P_UNITS)[step["cboDeltaPunit"]["text"]])
    return 0.0 < inches / 27.7 < 0.1 * psi


def solving_back_gives_the_inputs(step):
    """After a change of mode the new result is what was entered there before, to the digits that the
    former result showed: flow and differential pressure follow beta by a power below 6."""
    if step.before is None or not step.lines[-1].startswith("click optCalc") or \
            not (step["cmdPrint"]["enabled"] and step.was("cmdPrint")["enabled"]):
        return ""
    before = Step([], None, step.before, step.locale)
    former, field = before.result(), step.result()
    if former == field or not _is_tame(step) or not _is_tame(before):
        return ""
    entered, solved = step.was(field)["text"], step[field]["text"]
    given = step.was(former)["text"]
    numbers = [step.number(text) for text in (entered, solved, given)]
    if None in numbers or not all(1e-3 < number < 1e7 for number in numbers):
        return ""
    slack = 6 * _half_digit(given, step.locale.decimal) / numbers[2] + \
        2 * _half_digit(solved, step.locale.decimal) / numbers[1] + 5e-4
    return "" if abs(numbers[1] / numbers[0] - 1) <= slack else \
        f"{field} {entered!r} became {solved!r} from {former} {given!r}"


INVARIANTS = (locked_is_green, hidden_never_blocks, no_infinity, solving_back_gives_the_inputs)


def broken(step):
    """The name of an invariant that does not hold, and how; or None."""
    found = ((invariant.__name__, invariant(step)) for invariant in INVARIANTS)
    return next((pair for pair in found if pair[1]), None)
