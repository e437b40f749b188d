"""Sessions that leave nothing out: every entry of every list, every option of every fluid in every
mode, and the pressures on either side of each limit in every unit."""

from tarvix_controls import OPTIONS
from tarvix_tables import (
    DELTA_P_UNITS, DENSITY_UNITS, FLOW_UNITS, LENGTH_UNITS, NOMINAL_SIZES, PIPE_SCHEDULES,
    PRESSURE_UNITS, TIME_UNITS)

# A run that solves in every mode, and the options under which it does.
RUNS = {
    "Liquid": (("txtSGf", "0.9"), ("txtSGb", "0.95")),
    "Gas": (("txtTf", "80"), ("txtPf", "250"), ("txtGasSGb", "0.6")),
    "Steam": (("txtPf", "100"), ("txtDensity", "0.25704")),
}
PROPERTIES = {
    "Liquid": ((), ("click optSgCalc", "type txtDensity 50")),
    "Gas": (("click optDegC",), ("click optPabsolute",), ("click optCompZf", "type txtZf 0.95"),
            ("click optCompDensity", "type txtZf 0.8"), ("click optCompCorrNone",)),
    "Steam": (("click optSteamTbl",), ("click optPabsolute",), ("click optSuperheated",
                                                               "type txtDensity 0.2")),
}
UNITS = {
    "Liquid": (("cboDensityUnit", DENSITY_UNITS),),
    "Gas": (("cboPressUnit", PRESSURE_UNITS), ("cboZfDensityUnit", DENSITY_UNITS)),
    "Steam": (("cboPressUnit", PRESSURE_UNITS), ("cboDensityUnit", DENSITY_UNITS)),
}
MODES = tuple(OPTIONS["fraCalcOptions"])

# Gauge pressures in psi where something turns: the ends of the steam table and of the pressure
# itself, the two warnings, and two rows out of line.
PRESSURES = (-14.7, 0.0, 67.5, 200.0, 387.5, 400.0, 3000.0)
PLATE_WARNING = 150.0  # inches of water, from 8 inches nominal on


def _walk(lines, locale, page):
    entered = [line.replace(".", ",") if locale == "de_DE" else line for line in lines]
    return [["locale " + locale, "printer " + page]] + [[line] for line in entered]


def _fluid(fluid):
    lines = ["choose cboNomSize 4", f"click opt{fluid}", "click optCalcFR"]
    lines += [f"type {field} {text}" for field, text in RUNS[fluid]]
    lines += ["type txtDeltaP 80", "type txtBeta 0.6"]
    for properties in PROPERTIES[fluid]:
        lines += properties
        lines += [f"click {mode}" for mode in (*MODES, MODES[0], MODES[2], MODES[1])]
        lines += ["click cmdPrint", "click optCalcFR", "type txtDeltaP 80", "type txtBeta 0.6"]
        units = (*UNITS[fluid], ("cboFlowUnit", FLOW_UNITS[fluid[0]]), ("cboTimeUnit", TIME_UNITS),
                 ("cboDeltaPunit", DELTA_P_UNITS))
        for name, entries in units:
            lines += [f"choose {name} #{entry}" for entry in range(len(entries))]
            lines += ["click cmdPrint", "click optCalcBeta"]
            lines += [f"choose {name} #{entry}" for entry in range(len(entries))]
            lines += [f"choose {name} #0", "click optCalcFR", "type txtDeltaP 80",
                      "type txtBeta 0.6"]
    return lines


def _pressures():
    lines = ["choose cboNomSize 4", "click optGas"]
    for fluid in ("optGas", "optSteam"):
        lines += ["click " + fluid] + (["click optSteamTbl"] if fluid == "optSteam" else [])
        for reference, more in (("optPgauge", 0.0), ("optPabsolute", 14.7)):
            lines.append("click " + reference)
            for unit, (_, factor) in enumerate(PRESSURE_UNITS):
                lines.append(f"choose cboPressUnit #{unit}")
                for psi in PRESSURES:
                    lines += [f"paste txtPf {(psi + more + off) / float(factor):.7g}"
                              for off in (-0.01, 0.0, 0.01)]
    for size in ("6", "8"):
        lines.append("choose cboNomSize " + size)
        for unit, (_, factor) in enumerate(DELTA_P_UNITS):
            lines.append(f"choose cboDeltaPunit #{unit}")
            lines += [f"paste txtDeltaP {(PLATE_WARNING + off) / float(factor):.7g}"
                      for off in (-0.01, 0.01)]
    return lines


def _pipes(locale):
    lines = ["click optLiquid", "click optCalcFR", "type txtSGf 1", "type txtSGb 1",
             "type txtDeltaP 100", "type txtBeta 0.5"]
    first = 6 if locale == "de_DE" else 0
    for unit in range(len(LENGTH_UNITS)):
        lines.append(f"choose cboPipeIDUnit #{unit}")
        for entry, (_, size) in list(enumerate(NOMINAL_SIZES))[first:]:
            lines.append(f"choose cboNomSize #{entry}")
            lines += [f"choose cboPipeID #{schedule}"
                      for schedule in range(len(PIPE_SCHEDULES[size]))]
        lines += [f"choose cboPipeID #{len(PIPE_SCHEDULES[NOMINAL_SIZES[-1][1]])}", "click cmdPrint"]
        lines += [f"choose cboOriBoreUnit #{bore}" for bore in range(len(LENGTH_UNITS))]
    return lines


def walks(locale, page):
    """The sessions, each a list of actions as the random sessions are."""
    sessions = [_fluid(fluid) for fluid in RUNS] + [_pressures(), _pipes(locale)]
    return [_walk(lines, locale, page) for lines in sessions]
