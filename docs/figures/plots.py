"""The plots of accuracy.md and validation.md."""

from .data import REYNOLDS
from .svg import Panel, document, label
from .text import power

PLOT_PIPE = "4"
COLUMNS = (("flow", "flow"), ("dp", "dp"), ("solved", "beta"))
ROWS = (("liquid", "normal", "Liquid"),
        ("gas", "normal", "Gas (1.4), dp/p 0.03"), ("gas", "high", "Gas (1.4), dp/p 0.25"),
        ("steam", "normal", "Steam (1.3), dp/p 0.03"), ("steam", "high", "Steam (1.3), dp/p 0.25"))
RANGES = {"flow": (-10, 2), "dp": (-5, 30), "solved": (-1, 4)}
TICKS = {"flow": (-10, -8, -6, -4, -2, 0, 2), "dp": (-5, 0, 5, 10, 15, 20, 25, 30),
         "solved": (-1, 0, 1, 2, 3, 4)}
SIZE, LEFT, TOP, STEP_X, STEP_Y = (215, 165), 70, 84, 330, 238


def _pieces(points, within):
    """The line's pieces that are within the limits of the standard, or the others; they meet."""
    piece = []
    for a, b in zip(points, points[1:]):
        if (a.within and b.within) == within:
            piece = piece or [a]
            piece.append(b)
        elif piece:
            yield piece
            piece = []
    if piece:
        yield piece


def accuracy(data):
    parts = [label(20, 28, f"Error of the estimate against ISO 5167-2:2003, {PLOT_PIPE} inch Sch 40 "
                   "pipe", "head"),
             label(20, 47, "Flow, differential pressure (dp) and beta; a line for each Reynolds number. "
                   "Thin and grey: outside the limits of the standard. The scales of the columns "
                   "differ.")]
    for line, (fluid, case, title) in enumerate(ROWS):
        for column, (error, name) in enumerate(COLUMNS):
            panel = Panel((LEFT + column * STEP_X, TOP + line * STEP_Y), SIZE, (0.1, 0.75),
                          RANGES[error])
            panel.axes(f"{title}: {name}", (0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7), TICKS[error], "beta",
                       f"error of {name}", "%")
            ends = []
            for style, reynolds in enumerate(REYNOLDS):
                points = sorted((p for p in data.points if
                                 (p.fluid, p.case, p.pipe, p.reynolds) ==
                                 (fluid, case, PLOT_PIPE, reynolds)), key=lambda p: p.beta)
                for within in (False, True):
                    for piece in _pieces(points, within):
                        panel.line([(p.beta, getattr(p, error)) for p in piece], style,
                                   "line" if within else "beyond")
                ends.append((f"Re {power(reynolds)}", getattr(points[-1], error)))
            panel.names(ends)
            parts += panel.parts
    return document(LEFT + 3 * STEP_X - 35, TOP + len(ROWS) * STEP_Y - 10,
                    "Error of the estimate in flow, differential pressure and beta",
                    "Three columns (flow, differential pressure, beta) of error in percent against "
                    "beta, for a liquid, and for gas and steam at two differential pressures, six "
                    "Reynolds numbers each. The figures are in the tables of accuracy.md.", parts)


def steam(data):
    rows, line = data.steam()
    parts = [label(20, 28, "Density of saturated steam: the table against IAPWS-IF97", "head"),
             label(20, 47, "Dots: rows of the table. Line: what is interpolated between them.")]
    for number, (title, x_range, x_ticks, y_range, y_ticks, names) in enumerate((
            ("0 to 2000 psi gauge", (0, 2000), range(0, 2001, 250), (-0.3, 0.3),
             (-0.3, -0.2, -0.1, 0, 0.1, 0.2, 0.3), {68: "68 psi", 385: "385 psi", 750: "750 psi"}),
            ("The whole table", (0, 3000), range(0, 3001, 500), (-4, 4), (-4, -3, -2, -1, 0, 1, 2, 3, 4),
             {68: "68 psi", 385: "385 psi", 3000: "3000 psi"}))):
        panel = Panel((76, 84 + number * 260), (780, 180), x_range, y_range)
        panel.axes(title, x_ticks, y_ticks, "gauge pressure, psi", "error of density", "%")
        panel.line([pair for pair in line if pair[0] <= x_range[1]])
        for psig, error in rows:
            if psig <= x_range[1] and y_range[0] <= error <= y_range[1]:
                panel.parts.append(f'<circle cx="{panel.x(psig):.1f}" cy="{panel.y(error):.1f}" '
                                   'r="1.9" fill="#111"/>')
        for psig, error in rows:
            if psig in names:
                shown = max(error, y_range[0])
                note = names[psig] + (f": {error:.1f}%" if error < y_range[0] or number else "")
                left = psig > 0.9 * x_range[1]
                panel.parts.append(label(panel.x(psig) + (-8 if left else 6), panel.y(shown) - 6, note,
                                         "name", "end" if left else "start"))
        parts += panel.parts
    return document(890, 600, "Error of the steam table",
                    "Error of the table's density in percent against gauge pressure, up to 2000 and "
                    "up to 3000 psi. The figures are in validation.md.", parts)


# How a result is drawn: a fill, readable in grey, and what it means.
KINDS = {"ok": ("#ffffff", "found"), "other": ("url(#rising)", "another root is shown"),
         "unresolved": ("#c4c4c4", "&quot;Unable to resolve&quot;"),
         "range": ("#7a7a7a", "beyond the range of beta"),
         "nothing": ("#7a7a7a", ""),
         "toohigh": ("url(#falling)", "&quot;Flow rate too high&quot;"),
         "noflow": ("#222222", "no flow: Y is negative")}
PATTERNS = """<defs>
<pattern id="rising" width="6" height="6" patternUnits="userSpaceOnUse"><rect width="6" height="6" \
fill="#fff"/><path d="M0,6 L6,0" stroke="#222"/></pattern>
<pattern id="falling" width="4" height="4" patternUnits="userSpaceOnUse"><rect width="4" height="4" \
fill="#fff"/><path d="M0,0 L4,4 M0,4 L4,0" stroke="#555" stroke-width="0.8"/></pattern>
</defs>"""


def _map(panel, cells):
    """Neighbouring cells of the same result in a row become one rectangle."""
    betas = sorted({b for _, b in cells})
    half = (betas[1] - betas[0]) / 2
    for fraction in sorted({f for f, _ in cells}):
        start = 0
        for i in range(1, len(betas) + 1):
            if i == len(betas) or cells[fraction, betas[i]] != cells[fraction, betas[start]]:
                kind = cells[fraction, betas[start]]
                if kind != "ok":
                    x0, x1 = panel.x(betas[start] - half), panel.x(betas[i - 1] + half)
                    y0, y1 = panel.y(fraction), panel.y(fraction - 0.02)
                    panel.parts.append(f'<rect x="{x0:.1f}" y="{y0:.1f}" width="{x1 - x0:.1f}" '
                                       f'height="{y1 - y0:.1f}" fill="{KINDS[kind][0]}" '
                                       'shape-rendering="crispEdges"/>')
                start = i


def convergence(data):
    parts = [PATTERNS, label(20, 28, "Where a run is found again from its flow", "head"),
             label(20, 47, "4 inch Sch 40 pipe, 100 psi gauge. The standard's limits: beta up to "
                   "0.75, dp/p up to 0.25 (lines).")]
    for line, (kind, what) in enumerate((("betamap", "solved for beta"),
                                         ("dpmap", "solved for the differential pressure"))):
        for column, fluid in enumerate(("gas", "steam")):
            panel = Panel((76 + column * 420, 84 + line * 290), (330, 210), (0.09, 0.95), (0, 1.2))
            _map(panel, {(float(f), float(b)): result for name, f, b, result in data.lines(kind)
                         if name == fluid})
            panel.axes(f"{fluid.capitalize()}, {what}", (0.2, 0.4, 0.6, 0.8),
                       (0, 0.2, 0.4, 0.6, 0.8, 1, 1.2), "beta", "dp/p")
            panel.line([(0.09, 0.25), (0.75, 0.25), (0.75, 0)], 2)
            parts += panel.parts
    y, x = 84 + 2 * 290 - 10, 76
    seen = {fields[3] for kind in ("betamap", "dpmap") for fields in data.lines(kind)}
    shown = [KINDS[k] for k in KINDS if k in seen and KINDS[k][1]]
    for number, (fill, meaning) in enumerate(shown):
        px, py = x + number % 3 * 270, y + number // 3 * 24
        parts.append(f'<rect x="{px}" y="{py - 11}" width="18" height="14" fill="{fill}" '
                     'stroke="#444"/>')
        parts.append(label(px + 24, py, meaning))
    parts.append(label(x, y + 48, "Beyond the range of beta a gas has a message; steam leaves the field empty and "
                       "says nothing."))
    return document(860, y + 66, "Where the iterations of gas and steam find a run",
                    "Four maps over beta and dp/p: gas and steam, solved for beta and for the "
                    "differential pressure. The figures are in the tables of validation.md.", parts)
