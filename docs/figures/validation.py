"""The blocks of validation.md."""

from .text import percent, plain, rounded, signed, table, tiny, worst

MODES = {"flow": "flow rate", "dp": "differential pressure", "beta": "beta"}
RESULTS = {"toohigh": '"Flow rate too high"'}


def random_runs(data):
    rows = []
    for fluid, mode, runs, shown, largest in data.lines("random"):
        rows.append([fluid, MODES[mode], runs, shown, tiny(float(largest))])
    return table(["Fluid", "Solved", "Runs", "with a result", "largest difference"], rows)


def at_a_glance(data):
    """The whole page in one table."""
    def largest(kind, column, wanted=lambda fields: True):
        return max(float(f[column]) for f in data.lines(kind) if wanted(f))

    runs = sum(int(f[2]) for f in data.lines("random"))
    rows, line = data.steam()
    usual = [e for p, e in line if p <= 2000 and not 67 <= p <= 69 and not 380 <= p <= 390]
    betas = [float(f[2]) for f in data.lines("betaend")]
    ends = {name: [float(f[2]) for f in data.lines("dpend") if f[0] == name]
            for name in ("gas", "steam")}
    exact = all(f"{float(a):.4f}" == f"{float(b):.4f}"
                for _, _, _, a, b in data.lines("annex"))
    if97 = all(a == b for _, a, b in data.lines("if97"))
    return table(["What", "Against", "Largest difference"], [
        [f"{runs} random runs, all units: flow rate", "the same equations in double precision, "
         "roots by bisection", tiny(largest("random", 4, lambda f: f[1] == "flow")) +
         " beyond the last digit shown"],
        ["the same: differential pressure", "", tiny(largest("random", 4, lambda f: f[1] == "dp")) +
         " beyond the last digit shown"],
        ["the same: beta", "", tiny(largest("random", 4, lambda f: f[1] == "beta")) +
         " beyond the fifth decimal"],
        ["the same run in every unit", "the run in the first unit",
         tiny(largest("invariance", 2)) + " beyond the last digit shown"],
        ["flow and back, dp/p up to 0.25", "the run itself",
         f"{tiny(largest('trip', 2))} of differential pressure; beta in all five decimals"
         if largest("trip", 3) == 0 else
         f"{tiny(largest('trip', 2))} of differential pressure, {tiny(largest('trip', 3))} of beta"],
        ["steam density to 2000 psi gauge", "IAPWS-IF97",
         f"{plain(worst(usual))}; {plain(dict(rows)[68])} at 68 psi, {plain(dict(rows)[385])} at 385"],
        ["steam density, 2000 to 3000 psi", "IAPWS-IF97",
         percent(worst(e for p, e in line if p > 2000))],
        ["constant of the mass flow", "API MPMS 14.3", _constant(data, "KM")],
        ["constant of the standard volume flow", "API MPMS 14.3", _constant(data, "KV")],
        ["the iterations of gas and steam, dp/p up to 0.25", "the root",
         f"found up to beta {min(betas):.3f}; differential pressure up to a dp/p of "
         f"{min(ends['gas']):.2f} (gas), {min(ends['steam']):.2f} (steam)"],
        ["the yardsticks: C of ISO 5167-2, IAPWS-IF97", "published values",
         "none in the digits published" if exact and if97 else "SEE BELOW"],
    ])


def _constant(data, name):
    ours, published = next((float(f[1]), float(f[2])) for f in data.lines("constant")
                           if f[0] == name)
    return percent(100 * (ours / published - 1), 3)


def invariance(data):
    return table(["List", "units", "largest difference"],
                 [[name, count, tiny(float(e))] for name, count, e in data.lines("invariance")])


def trips(data):
    return table(["Fluid", "runs", "differential pressure", "beta"],
                 [[fluid, runs, tiny(float(h)), tiny(float(b))]
                  for fluid, runs, h, b in data.lines("trip")])


BANDS = ((0, 100), (100, 500), (500, 1000), (1000, 1500), (1500, 2000), (2000, 2500), (2500, 3000))


def steam_bands(data):
    rows, line = data.steam()
    out = []
    for low, high in BANDS:
        in_rows = [(e, p) for p, e in rows if low <= p <= high]
        all_of_it = [(e, p) for p, e in line if low <= p <= high]
        row, between = (max(v, key=lambda pair: abs(pair[0])) for v in (in_rows, all_of_it))
        out.append([f"{low} to {high}", str(len(in_rows)), f"{percent(row[0])} at {row[1]:.0f}",
                    f"{percent(between[0])} at {between[1]:.0f}", percent(between[0] / 2)])
    return table(["psi gauge", "rows", "largest error of a row", "of the whole line", "of flow"], out)


def odd_rows(data):
    """Rows whose error is off the middle of their neighbours' by more than this, and most so."""
    limit = 0.05
    rows, _ = data.steam()
    densities = {float(f[0]): float(f[1]) for f in data.lines("steamrow")}
    off = [0, *(abs(b[1] - (a[1] + c[1]) / 2) for a, b, c in zip(rows, rows[1:], rows[2:])), 0]
    out = [[f"{rows[i][0]:.0f}", f"{densities[rows[i][0]]:.5f}", percent(rows[i][1]),
            f"{percent(rows[i - 1][1])}, {percent(rows[i + 1][1])}", percent(rows[i][1] / 2)]
           for i in range(1, len(rows) - 1)
           if off[i] > limit and off[i] >= max(off[i - 1], off[i + 1]) and rows[i][0] < 2000]
    return table(["psi gauge", "lb per cubic foot", "error", "its neighbours", "of flow"], out)


def steam_rows(data):
    rows, _ = data.steam()
    cells = [f"{p:.0f}: {signed(e)}" for p, e in rows]
    cells += [""] * (-len(cells) % 10)
    return table([""] * 10, [cells[i:i + 10] for i in range(0, len(cells), 10)])


def beta_ends(data):
    at = {(f[0], f[1]): f[2:] for f in data.lines("betaend")}
    out = []
    for inches in dict.fromkeys(f[1] for f in data.lines("betaend")):
        fraction = float(inches) * 248.642 / (114.7 * 6894.757)
        out.append([inches, f"{fraction:.3f}", *at["gas", inches], *at["steam", inches]])
    return table(["inH2O", "dp/p", "gas: found up to", '"Unable to resolve" from',
                  '"out of range" from', "steam: found up to", '"Unable to resolve" from',
                  "empty from"], out)


def dp_ends(data):
    at = {(f[0], f[1]): f[2] for f in data.lines("dpend")}
    return table(["beta", "gas: found up to dp/p", "steam: found up to dp/p",
                  "flow of a gas is largest at dp/p"],
                 [[beta, f"{float(at['gas', beta]) - 0.001:.3f}",
                   f"{float(at['steam', beta]) - 0.001:.3f}", peaks(data).get(beta, "")]
                  for beta in dict.fromkeys(f[1] for f in data.lines("dpend"))])


def peaks(data):
    return {beta: fraction for beta, fraction in data.lines("peak")}


def low_pressure(data):
    at = {(f[0], f[1]): f[2:] for f in data.lines("lowpressure")}
    return table(["beta", "gas: none found below", "all found from", "steam: none found below",
                  "all found from"],
                 [[beta, *at["gas", beta], *at["steam", beta]]
                  for beta in dict.fromkeys(f[1] for f in data.lines("lowpressure"))])


def bands(data):
    return table(["dp/p", "differential pressure within", "beta within"],
                 [[f, f"{float(h):.4f}%", f"{float(b):.4f}%"] for f, h, b in data.lines("band")])


def constants(data):
    ours_inch, theirs_inch = (float(v) for v in data.lines("inchwater")[0])
    rows = [[name, ours, published, percent(100 * (float(ours) / float(published) - 1), 3), worked]
            for name, ours, published, worked in data.lines("constant")]
    at = {r[0]: r for r in rows}
    root = 100 * ((ours_inch / theirs_inch) ** 0.5 - 1)
    return table(["Constant", "Tarvix", "API MPMS 14.3", "difference",
                  "worked out with the inch of 60 Deg F"], rows) + (
        f"\n\nThe reason is the inch of water: of 20 Deg C here ({ours_inch:.3f} Pa), of 60 Deg F there "
        f"({theirs_inch:.3f} Pa). The root of their quotient is {percent(root, 3)}, the whole "
        f"difference of KM ({at['KM'][3]}). KV has {percent(100 * (218.468 / (358.927 / 2.698825 ** 0.5) - 1), 3)} "
        "more, as it is that much below what KM and KG give.")


def example(data):
    value = {name: float(v) for name, v in data.lines("example")}
    flange, window = value["flange taps, liquid"], value["window"]
    c = value["C"]
    mass = 100 * (window / flange * c / 0.6 - 1)
    return table(["Calculation", "kg/s"], [
        ["published with the open library fluids: D and D/2 taps, with an expansibility of "
         f"{value['epsilon']:.6f}", f"{value['published']:.6f}"],
        ["the yardstick, the same", f"{value['D taps, expansibility']:.6f}"],
        ["the yardstick, the same as a liquid (expansibility 1)", f"{value['D taps, liquid']:.3f}"],
        ["the yardstick, flange taps, liquid", f"{flange:.3f}"],
        ["the window: flange taps, liquid, coefficient 0.6", f"{window:.3f}"],
    ]) + (f"\n\nThe window is {plain(100 * (window / flange - 1), 1)} below the standard's flange taps: "
          f"{plain(100 * (0.6 / c - 1), 1)} because C is {c:.4f} and not 0.6, the rest "
          f"({percent(mass)}) from the units kilogram and kPa (see [Units](#units)) and the digits "
          "shown.")


def annex(data):
    rows = [[rounded(float(r)), published, f"{float(ours):.4f}"]
            for _, _, r, published, ours in data.lines("annex")]
    return table(["Re", "Annex A", "the yardstick"], rows)


def library(data):
    return table(["taps", "published", "the yardstick"],
                 [[taps, a, b] for taps, _, _, a, b in data.lines("library")])


def if97(data):
    return table(["", "the release", "the yardstick"], [list(f) for f in data.lines("if97")])


def units(data):
    rows = []
    least = 0.00015
    for name, text, factor, wanted, difference, on_flow in data.lines("unit"):
        if abs(float(difference)) >= least:
            off = float(difference)
            rows.append([f"{name}: {text.strip()}", factor, wanted,
                         percent(off, 4) if abs(off) < 1000 else "a million times",
                         percent(float(on_flow), 4) if abs(off) < 1000 else "a thousand times"])
    for size, schedule, diameter, wanted, difference in data.lines("pipe"):
        off = float(difference)
        rows.append([f"pipe: {size} inch {schedule}", diameter, wanted, percent(off, 4),
                     percent(200 * off / 100, 4)])
    return table(["Unit", "factor", "by definition", "difference", "on flow"], rows) + (
        f"\n\nAll other units are within {least:.5f}% of their definitions.")


def blocks(data):
    return {"glance": at_a_glance(data), "random": random_runs(data),
            "invariance": invariance(data), "trips": trips(data),
            "steam bands": steam_bands(data), "odd rows": odd_rows(data),
            "steam rows": steam_rows(data), "beta ends": beta_ends(data),
            "dp ends": dp_ends(data), "low pressure": low_pressure(data), "bands": bands(data),
            "constants": constants(data), "example": example(data), "annex": annex(data),
            "library": library(data), "if97": if97(data), "units": units(data)}
