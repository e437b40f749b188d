#!/usr/bin/env python3
"""Makes the tables of accuracy.md and the plot accuracy.svg from the output of accuracy_table.

    make-accuracy.py PROGRAM            writes both files
    make-accuracy.py PROGRAM --check    changes nothing; fails when a file is not what it would make

PROGRAM is the built accuracy_table (target accuracy_table, in bin of the build folder).
"""

import argparse
import pathlib
import re
import subprocess
import sys
from dataclasses import dataclass

FOLDER = pathlib.Path(__file__).resolve().parent
DOCUMENT = FOLDER / "accuracy.md"
PLOT = FOLDER / "accuracy.svg"

FLUIDS = ("liquid", "gas", "steam")
CASES = {"normal": "100 inH2O", "high": "dp/p 0.25"}
PIPES = (2, 4, 8, 24)
REYNOLDS = (1e4, 3e4, 1e5, 1e6, 1e7)
TABLE_BETAS = (0.15, 0.20, 0.30, 0.40, 0.50, 0.60, 0.67)

# The accuracy of the beta ratio that the program states, in percent.
STATED_LIQUID = 1
STATED_COMPRESSIBLE = (2, 5)


@dataclass(frozen=True)
class Point:
    fluid: str
    case: str
    pipe: int
    beta: float
    reynolds: float
    within: bool
    flow_error: float
    beta_error: float


@dataclass(frozen=True)
class Expansion:
    exponent: float
    beta: float
    fraction: float
    error: float


def read(program):
    """The points and the expansion factors that the program prints."""
    output = subprocess.run([program], check=True, capture_output=True, text=True).stdout
    points, expansions = [], []
    for line in output.splitlines():
        kind, *fields = line.split(",")
        if kind == "point":
            fluid, case, pipe, beta, reynolds, within, flow, solved = fields
            points.append(Point(fluid, case, int(pipe), float(beta), float(reynolds),
                                within == "1", float(flow), float(solved)))
        elif kind == "expansion":
            expansions.append(Expansion(*map(float, fields)))
        else:
            sys.exit(f"make-accuracy.py: cannot read the line: {line}")
    return points, expansions


def power(reynolds):
    exponent = len(f"{reynolds:.0f}") - 1
    return f"{reynolds / 10 ** exponent:.0f}e{exponent}"


def signed(value):
    """Two decimals with a sign; no sign for what rounds to zero."""
    text = f"{value:+.2f}"
    return "0.00" if text in ("+0.00", "-0.00") else text


def worst(values):
    """The value farthest from zero."""
    return max(values, key=abs)


def row(cells):
    return "| " + " | ".join(cells) + " |"


def table(head, rows):
    return "\n".join([row(head), row(["---"] * len(head)), *(row(r) for r in rows)])


def make_summary(points):
    rows = []
    for fluid in FLUIDS:
        for case in CASES:
            chosen = [p for p in points if (p.fluid, p.case) == (fluid, case) and p.within]
            if not chosen:
                continue
            for reynolds in REYNOLDS:
                here = [p for p in chosen if p.reynolds == reynolds]
                beta = worst(p.beta_error for p in here)
                if fluid == "liquid":
                    stated = f"{STATED_LIQUID}%"
                    holds = "yes" if abs(beta) <= STATED_LIQUID else "no"
                else:
                    low, high = STATED_COMPRESSIBLE
                    stated = f"{low}% - {high}%"
                    holds = (f"yes, within {low}%" if abs(beta) <= low else
                             f"yes, within {high}%" if abs(beta) <= high else "no")
                name = fluid if fluid == "liquid" else f"{fluid}, {CASES[case]}"
                rows.append([name, power(reynolds), signed(worst(p.flow_error for p in here)) + "%",
                             signed(beta) + "%", stated, holds])
    return table(["Fluid", "Re", "largest flow error", "largest beta error", "stated for beta",
                  "holds"], rows)


def make_reach(points):
    """For a liquid, the largest beta up to which the beta error stays within the stated one."""
    rows = []
    for pipe in PIPES:
        cells = [f"{pipe} in"]
        for reynolds in REYNOLDS:
            here = [p for p in points if (p.fluid, p.pipe, p.reynolds) == ("liquid", pipe, reynolds)
                    and p.within]
            outside = [p.beta for p in here if abs(p.beta_error) > STATED_LIQUID]
            inside = [p.beta for p in here if not outside or p.beta < min(outside)]
            last = max(inside)
            if outside:
                cells.append(f"{last:.2f}")
            elif last == max(p.beta for p in points):
                cells.append("all")
            else:
                cells.append(f"all ({last:.2f})")
        rows.append(cells)
    return table(["Pipe"] + [f"Re {power(r)}" for r in REYNOLDS], rows)


def make_points(points, fluid):
    at = {(p.pipe, p.beta, p.reynolds): p for p in points
          if (p.fluid, p.case) == (fluid, "normal")}
    rows = []
    for pipe in PIPES:
        for beta in TABLE_BETAS:
            cells = [f"{pipe} in", f"{beta:.2f}"]
            for reynolds in REYNOLDS:
                p = at[(pipe, beta, reynolds)]
                text = f"{signed(p.flow_error)} / {signed(p.beta_error)}"
                cells.append(text if p.within else f"({text})")
            rows.append(cells)
    return table(["Pipe", "beta"] + [f"Re {power(r)}" for r in REYNOLDS], rows)


def make_expansion(expansions):
    fractions = sorted({e.fraction for e in expansions})
    at = {(e.exponent, e.beta, e.fraction): e.error for e in expansions}
    rows = [[f"{exponent:.2f}", f"{beta:.2f}"] +
            [signed(at[(exponent, beta, f)]) for f in fractions]
            for exponent, beta in sorted({(e.exponent, e.beta) for e in expansions})]
    return table(["kappa", "beta"] + [f"{f:.2f}" for f in fractions], rows)


# The plot: a column for each fluid, a row for two of the pipes, a line for each Reynolds number.

PLOT_PIPES = (2, 8)
COLORS = {1e4: "#d55e00", 3e4: "#b07a00", 1e5: "#009e73", 1e6: "#0072b2", 1e7: "#5b3a8c"}
PANEL_WIDTH, PANEL_HEIGHT = 250, 190
LEFT, TOP, GAP_X, GAP_Y = 62, 78, 34, 62
BETA_RANGE = (0.15, 0.67)
ERROR_RANGE = (-1.0, 3.0)
WIDTH = LEFT + 3 * PANEL_WIDTH + 2 * GAP_X + 20
HEIGHT = TOP + 2 * PANEL_HEIGHT + GAP_Y + 84


class Panel:
    def __init__(self, column, line):
        self.x0 = LEFT + column * (PANEL_WIDTH + GAP_X)
        self.y0 = TOP + line * (PANEL_HEIGHT + GAP_Y)

    def x(self, beta):
        low, high = BETA_RANGE
        return self.x0 + (beta - low) / (high - low) * PANEL_WIDTH

    def y(self, error):
        low, high = ERROR_RANGE
        return self.y0 + (high - error) / (high - low) * PANEL_HEIGHT

    def frame(self, title):
        x1, y1 = self.x0 + PANEL_WIDTH, self.y0 + PANEL_HEIGHT
        yield (f'<text class="title" x="{self.x0}" y="{self.y0 - 10}">{title}</text>')
        for error in range(int(ERROR_RANGE[0]), int(ERROR_RANGE[1]) + 1):
            y = self.y(error)
            css = "zero" if error == 0 else "grid"
            yield f'<line class="{css}" x1="{self.x0}" y1="{y:.1f}" x2="{x1}" y2="{y:.1f}"/>'
            yield (f'<text class="tick" x="{self.x0 - 6}" y="{y + 4:.1f}" '
                   f'text-anchor="end">{error}%</text>')
        for beta in (0.2, 0.3, 0.4, 0.5, 0.6):
            x = self.x(beta)
            yield f'<line class="grid" x1="{x:.1f}" y1="{self.y0}" x2="{x:.1f}" y2="{y1}"/>'
            yield (f'<text class="tick" x="{x:.1f}" y="{y1 + 15}" '
                   f'text-anchor="middle">{beta:.1f}</text>')
        yield (f'<rect class="frame" x="{self.x0}" y="{self.y0}" width="{PANEL_WIDTH}" '
               f'height="{PANEL_HEIGHT}"/>')

    def stated(self, limits):
        for limit in limits:
            if ERROR_RANGE[0] < limit < ERROR_RANGE[1]:
                y = self.y(limit)
                yield (f'<line class="stated" x1="{self.x0}" y1="{y:.1f}" '
                       f'x2="{self.x0 + PANEL_WIDTH}" y2="{y:.1f}"/>')

    def curve(self, points, color):
        """Solid within the limits of the standard, dotted outside; the pieces share their ends."""
        start = 0
        for i in range(1, len(points)):
            solid = points[start].within and points[start + 1].within
            last = i == len(points) - 1
            if last or (points[i].within and points[i + 1].within) != solid:
                dash = "" if solid else ' stroke-dasharray="1.5 3"'
                places = " ".join(f"{self.x(p.beta):.1f},{self.y(p.beta_error):.1f}"
                                  for p in points[start:i + 1])
                yield f'<polyline class="curve" stroke="{color}"{dash} points="{places}"/>'
                start = i


def make_plot(points):
    out = [
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" '
        f'viewBox="0 0 {WIDTH} {HEIGHT}" role="img" aria-labelledby="title desc">',
        '<title id="title">Error of the estimated beta ratio</title>',
        '<desc id="desc">Error of beta in percent against beta from 0.15 to 0.67, for liquid, gas '
        'and steam, 2 inch and 8 inch pipes and five Reynolds numbers. The figures are in the '
        'tables of accuracy.md.</desc>',
        '<style>',
        'text { font-family: sans-serif; fill: #222; font-size: 12px }',
        '.title { font-weight: bold; font-size: 13px }',
        '.head { font-weight: bold; font-size: 15px }',
        '.grid { stroke: #ddd } .zero { stroke: #888 } .frame { fill: none; stroke: #666 }',
        '.stated { stroke: #222; stroke-dasharray: 7 4; stroke-width: 1.3 }',
        '.curve { fill: none; stroke-width: 1.9; stroke-linecap: round }',
        '</style>',
        f'<rect width="{WIDTH}" height="{HEIGHT}" fill="#fff"/>',
        f'<text class="head" x="{LEFT}" y="28">Error of the estimated beta ratio against '
        'ISO 5167-2:2003</text>',
    ]
    for column, fluid in enumerate(FLUIDS):
        for line, pipe in enumerate(PLOT_PIPES):
            panel = Panel(column, line)
            out += panel.frame(f"{fluid.capitalize()}, {pipe} inch pipe")
            out += panel.stated((-STATED_LIQUID, STATED_LIQUID) if fluid == "liquid"
                                else STATED_COMPRESSIBLE)
            for reynolds in REYNOLDS:
                chosen = sorted((p for p in points if (p.fluid, p.case, p.pipe, p.reynolds) ==
                                 (fluid, "normal", pipe, reynolds)), key=lambda p: p.beta)
                out += panel.curve(chosen, COLORS[reynolds])
    middle = LEFT + (3 * PANEL_WIDTH + 2 * GAP_X) / 2
    bottom = TOP + 2 * PANEL_HEIGHT + GAP_Y
    out.append(f'<text x="{middle:.1f}" y="{bottom + 34}" text-anchor="middle">beta</text>')
    x = LEFT
    for reynolds in REYNOLDS:
        out.append(f'<line class="curve" stroke="{COLORS[reynolds]}" x1="{x}" y1="{bottom + 56}" '
                   f'x2="{x + 24}" y2="{bottom + 56}"/>')
        out.append(f'<text x="{x + 30}" y="{bottom + 60}">Re {power(reynolds)}</text>')
        x += 100
    out.append(f'<line class="stated" x1="{x}" y1="{bottom + 56}" x2="{x + 34}" '
               f'y2="{bottom + 56}"/>')
    out.append(f'<text x="{x + 40}" y="{bottom + 60}">stated accuracy: liquids 1%, '
               'others from 2%</text>')
    out.append('</svg>')
    return "\n".join(out) + "\n"


def fill(document, blocks):
    """The document with the text between the marks of each block replaced."""
    for name, text in blocks.items():
        marks = re.compile(rf"(<!-- made: {name} -->\n).*?(<!-- end -->)", re.DOTALL)
        document, count = marks.subn(lambda m, t=text: f"{m[1]}\n{t}\n\n{m[2]}", document)
        if count != 1:
            sys.exit(f"make-accuracy.py: accuracy.md has no place (or several) for: {name}")
    return document


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program", help="the built accuracy_table")
    parser.add_argument("--check", action="store_true", help="compare only, change nothing")
    arguments = parser.parse_args()

    points, expansions = read(arguments.program)
    blocks = {"summary": make_summary(points), "reach": make_reach(points),
              "expansion": make_expansion(expansions)}
    blocks.update({fluid: make_points(points, fluid) for fluid in FLUIDS})

    wanted = {DOCUMENT: fill(DOCUMENT.read_text(encoding="utf-8"), blocks),
              PLOT: make_plot(points)}
    stale = [path for path, text in wanted.items()
             if not path.exists() or path.read_text(encoding="utf-8") != text]
    if arguments.check:
        for path in stale:
            print(f"docs/{path.name} is not what make-accuracy.py makes; run it and commit the "
                  "result", file=sys.stderr)
        return 1 if stale else 0
    for path in stale:
        path.write_text(wanted[path], encoding="utf-8")
        print(f"wrote docs/{path.name}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
