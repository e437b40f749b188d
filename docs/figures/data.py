"""What document_data prints: lines of a kind and fields."""

import subprocess
import sys
from collections import defaultdict
from dataclasses import dataclass

FLUIDS = ("liquid", "gas", "gas 1.67", "steam")
CASES = {"normal": "100 inH2O", "high": "dp/p 0.25"}
PIPES = ("2", "4", "8", "24")
REYNOLDS = (5e3, 1e4, 3e4, 1e5, 1e6, 1e7)
# The range of beta outside of which the window warns.
USUAL_BETAS = (0.15, 0.67)


@dataclass(frozen=True)
class Point:
    """Errors in percent of flow, differential pressure and beta; within the standard or not."""
    fluid: str
    case: str
    pipe: str
    beta: float
    reynolds: float
    within: bool
    flow: float
    dp: float
    solved: float

    @property
    def usual(self):
        return USUAL_BETAS[0] <= self.beta <= USUAL_BETAS[1]


class Data:
    def __init__(self, program, runs=None):
        command = [program] + ([str(runs)] if runs else [])
        output = subprocess.run(command, check=True, capture_output=True, text=True).stdout
        self._lines = defaultdict(list)
        for line in output.splitlines():
            kind, *fields = line.split("\t")
            self._lines[kind].append(fields)
        self.points = [self._point(f[:5], f[5] == "1", f[6:]) for f in self.lines("point")]
        self.small = [self._point(f[:5], False, f[5:]) for f in self.lines("small")]
        self.costs = {name: float(value) for name, value in self.lines("cost")}

    @staticmethod
    def _point(place, within, errors):
        fluid, case, pipe, beta, reynolds = place
        return Point(fluid, case, pipe, float(beta), float(reynolds), within,
                     *(float(e) for e in errors))

    def lines(self, kind):
        """The fields of each line of this kind."""
        if kind not in self._lines:
            sys.exit(f"make-figures.py: document_data prints no {kind}")
        return self._lines[kind]

    def within(self, **wanted):
        """The points within the limits of the standard that have these values."""
        return [p for p in self.points if p.within and
                all(getattr(p, name) == value for name, value in wanted.items())]

    def steam(self):
        """Pairs of gauge pressure and error in percent: of the rows, and all of the line."""
        rows = [(float(f[0]), float(f[2])) for f in self.lines("steamrow")]
        between = [(float(f[0]), float(f[1])) for f in self.lines("steambetween")]
        return rows, sorted(rows + between)
