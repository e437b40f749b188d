"""The product's tables for the reference model, read from their copies in tests/data, and what a
change of fluid selects.

Units are (shown text, factor), flow units (shown text, kind, factor), the factor as the text that
the product holds.
"""

import csv
from pathlib import Path

DATA = Path(__file__).resolve().parent.parent / "data"


def _rows(name):
    with open(DATA / name, encoding="utf-8", newline="") as file:
        return list(csv.reader(file, delimiter="\t", quoting=csv.QUOTE_NONE))[1:]


def _grouped(rows):
    """Rows by their first column, without it and the position."""
    groups = {}
    for key, _, *rest in rows:
        groups.setdefault(key, []).append(tuple(rest))
    return groups


_UNITS = _grouped(_rows("units.tsv"))


def _units(name):
    return tuple((text, factor) for text, _, factor, _ in _UNITS[name])


PRESSURE_UNITS = _units("press")
DELTA_P_UNITS = _units("deltaP")
DENSITY_UNITS = _units("density")
LENGTH_UNITS = _units("length")
TIME_UNITS = _units("time")
FLOW_UNITS = {fluid: tuple(row[:3] for row in _UNITS["flow " + fluid]) for fluid in "LSG"}

# Flow unit and time unit that a change of fluid selects.
FLUID_DEFAULTS = {
    "L": ("Gallons", "Minute"),
    "S": ("Pounds", "Hour"),
    "G": ("Standard Cubic Feet", "Day"),
}

# As shown in inches, and as the product holds it.
NOMINAL_SIZES = tuple((shown, value) for _, shown, value in _rows("nominal_sizes.tsv"))

# Schedule and inside diameter in inches of each nominal size.
PIPE_SCHEDULES = _grouped(_rows("pipe_schedules.tsv"))

# Saturated steam: gauge pressure in psi, density in lb per cubic foot.
STEAM_TABLE = tuple((int(psig), density) for psig, density in _rows("steam_table.tsv"))
