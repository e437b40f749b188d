"""When not to use a number, and what entries cost: blocks of method.md, the manual, README."""

from . import validation
from .text import percent, plain, table, tiny, worst


def _range(values, decimals=1):
    low, high = min(values), max(values)
    return f"{percent(low, decimals)} to {percent(high, decimals)}"


def do_not_use(data):
    """When, and what it costs."""
    cost = data.costs
    at_5000 = [p for p in data.within(reynolds=5e3) if p.fluid == "liquid"]
    small = [p for p in data.small if p.fluid == "liquid" and p.usual and p.reynolds >= 1e4]
    _, line = data.steam()
    above = worst(e for p, e in line if p > 2000)
    return [
        ("the pipe Reynolds number is below 5000",
         f"flow {percent(worst(p.flow for p in at_5000), 1)}, differential pressure "
         f"{percent(worst(p.dp for p in at_5000), 1)} for a liquid at 5000 already; at 2000 and "
         f"beta 0.7 the standard's formula, carried on, gives flow "
         f"{percent(cost['Re 2000, 4 in, beta 0.7'], 0)}"),
        ("the differential pressure is above a quarter of the absolute pressure (dp/p above 0.25; gas, "
         "steam)",
         "not known: the standard has no factor there; carried on to 0.4 and 0.6, flow "
         f"{percent(cost['dp/p 0.40, exponent 1.4'], 1)} and "
         f"{percent(cost['dp/p 0.60, exponent 1.4'], 1)} by the expansion factor alone (exponent 1.4), "
         "and sonic flow is not considered"),
        ("the pipe is below 50 mm or above 1000 mm",
         "not known; the formula carried on to 1/2 to 1-1/2 inch gives flow "
         f"{_range([p.flow for p in small])} for a liquid from a Reynolds number of 1e4 up; for 42 "
         f"inch {percent(cost['42 in, beta 0.5, Re 1e7'], 1)} at beta 0.5"),
        ("the bore is below 12.5 mm",
         "not known: there the sharpness of the edge decides; the formula alone, carried on to 10 mm in a 2 "
         f"inch pipe, gives flow {percent(cost['bore 10 mm, 2 in, Re 1e5'], 1)}"),
        ("beta is above 0.75",
         f"not known; the formula carried on to 0.8 gives flow "
         f"{percent(cost['beta 0.80, 4 in, Re 1e5'], 1)} (4 inch, Reynolds number 1e5); the beta of a "
         f"gas or steam is not found from {min(float(f[2]) for f in data.lines('betaend')):.2f} to "
         f"{max(float(f[2]) for f in data.lines('betaend')):.2f} up"),
        ("a gas is under pressure and neither Zf nor a density is entered",
         f"flow {percent(cost['Zf 0.95'], 1)} where Zf is 0.95, {percent(cost['Zf 0.90'], 1)} at 0.9, "
         f"{percent(cost['Zf 0.80'], 1)} at 0.8"),
        ("steam has more than 2000 psi gauge and its density is the table's",
         f"density up to {percent(above, 1)}, flow {percent(above / 2, 1)}"),
        ("steam is wet or superheated and its density is the table's",
         f"flow {percent(cost['superheat 50 F, 100 psig'], 1)} at 50 Deg F of superheat, "
         f"{percent(cost['superheat 200 F, 100 psig'], 1)} at 200 (100 psi gauge); "
         f"{percent(cost['wetness 5 percent'], 1)} with 5% of water"),
    ]


def box(data):
    return table(["Do not use the number when", "What it costs"],
                 [list(line) for line in do_not_use(data)])


def entries(data):
    """What an entry means, and what another reading of it costs."""
    cost = data.costs
    return "\n".join([
        "- P, ρ and Zf are those **at the upstream tap**. The downstream pressure in their place "
        f"costs {percent(cost['downstream pressure, dp/p 0.05'], 1)} of flow at a dp/p of 0.05 and "
        f"{percent(cost['downstream pressure, dp/p 0.25'], 1)} at 0.25, "
        f"{percent(cost['downstream pressure, dp/p 0.25, density alone'], 1)} of it by the density.",
        "- The **atmosphere** is 14.7 psi. Where it is 12.2 (5000 ft), a gas at 5 psi gauge and 20 "
        f"inches of water is shown with {percent(cost['atmosphere of 12.2 psi, 5 psi gauge'], 1)} of "
        "flow; enter the absolute pressure.",
        "- A **standard cubic meter** is one of 60 Deg F and 14.7 psia. The normal cubic meter of 0 "
        f"Deg C and 101.325 kPa holds {plain(cost['standard against normal cubic meter'], 1)} more.",
        "- **dp/p** is never judged by the program. The flow of a gas rises with it up to the dp/p "
        f"of the table in [validation.md](validation.md#differential-pressure) "
        f"({', '.join(f'{f} at beta {b}' for b, f in data.lines('peak') if b in ('0.10', '0.50', '0.75'))}) "
        "and falls again from there.",
        "- A **diameter typed in centimeters** has 2 decimals: up to "
        f"{plain(cost['pipe in centimeters, 0.622 in'], 1)} of flow in a 1/2 inch pipe, "
        f"{plain(cost['pipe in centimeters, 2.067 in'], 1)} in a 2 inch one.",
        "- The **bore** has 3 decimals of its unit, and beta is written anew from it when a pipe is "
        f"chosen: at beta 0.1 to 0.75 up to {plain(cost['bore of 3 decimals, 0.622 in'], 1)} of flow "
        f"in a 1/2 inch pipe, {plain(cost['bore of 3 decimals, 2.067 in'], 1)} in a 2 inch one, in "
        "inches.",
        "- The **report** prints flow, differential pressure, pressure, temperature and specific "
        "gravities with 2 decimals, densities and bore with 3, Zf and beta with 5. A flow below 0.005 "
        "in its unit is printed as 0.00.",
    ])


def convergence(data):
    betas = data.lines("betaend")
    found = [float(f[2]) for f in betas]
    gas, steam = ([float(f[2]) - 0.001 for f in data.lines("dpend") if f[0] == name]
                  for name in ("gas", "steam"))
    low = [(float(f[2]), float(f[3])) for f in data.lines("lowpressure")]
    end = {name: [float(f[4]) for f in betas if f[0] == name] for name in ("gas", "steam")}
    h = {f: float(v) for f, v, _ in data.lines("band")}
    return "\n".join([
        "In a 4 inch pipe at 100 psi gauge:",
        "",
        "- A step overshoots in beta by β⁴ / (1 - β⁴). The true beta is found up to "
        f"{min(found):.3f} to {max(found):.3f}, by dp/p. Above that the beta of a gas or of steam "
        "swings apart: \"Unable to resolve\", and from a true beta of "
        f"{min(end['gas']):.3f} to {max(end['gas']):.3f} on it leaves its range: a message for a gas, "
        "an empty field and silence for steam. So steam's empty field does not mean that beta is "
        "above 1.",
        f"- The differential pressure is found up to a dp/p of {min(gas):.2f} to {max(gas):.2f} (gas) "
        f"and {min(steam):.2f} to {max(steam):.2f} (steam) at betas of 0.75 to 0.10. Beyond, "
        "the message is \"Unable to resolve\", or the value shown is another root.",
        "- Every search for a differential pressure starts at 50 inches of water. At an absolute "
        f"pressure below {min(n for n, _ in low):.2f} to {max(n for n, _ in low):.2f} psia (by beta) "
        "none is found, as Y is negative there already; from "
        f"{min(a for _, a in low):.2f} to {max(a for _, a in low):.2f} psia up all are, of a dp/p to "
        "0.25.",
        f"- The band around s = 1 leaves a gas's differential pressure within {h['0.01']:.4f}% of the "
        f"root at a dp/p of 0.01, {h['0.25']:.4f}% at 0.25 and {h['0.60']:.4f}% at 0.6 (beta 0.5), and "
        "beta within 0.0001%.",
        "",
        "The maps over beta and dp/p are in [validation.md](validation.md#where-the-iterations-end).",
    ])


def waters(data):
    """The waters and inches of water that units and constants rest on."""
    pound = next(float(f[2]) for f in data.lines("unit")
                 if f[0] == "flow of liquid" and f[1] == "Pounds")
    inch = float(data.lines("inchwater")[0][0])
    kg = {f[1]: float(f[5]) for f in data.lines("unit") if f[0] == "flow of liquid"}
    return "\n".join([
        f"- **Mass flow of a liquid.** The mass units take water as {1728 / 231 / pound:.2f} lb per "
        "cubic foot, the flow equation and the specific gravity from density as 62.366. A liquid's mass "
        f"flow in pounds or kilograms is therefore {plain(kg['Pounds'])} lower than its volume flow "
        f"times its density, in metric tons {plain(kg['Metric Tons'])}.",
        f"- **Inch of water.** The flow constants rest on one at 20 Deg C ({6894.757293 / inch:.3f} to "
        "the psi), the expansion factor on 27.707, and the unit PSI of differential pressure on 27.7.",
    ])


def uncorrected(data):
    """Oddities with an effect, beyond the table that stands above them."""
    rows, _ = data.steam()
    at = dict(rows)
    return (validation.units(data) + "\n\nOf the steam table, against IAPWS-IF97:\n\n" +
            validation.odd_rows(data) +
            f"\n\nThe rows up to 2000 psi are otherwise within "
            f"{plain(worst(e for p, e in rows if p <= 2000 and p not in (68, 385)))}. Above them the "
            "straight line between two rows is up to "
            f"{plain(worst(e for p, e in data.steam()[1] if p > 2000), 1)} too dense, and the row of "
            f"3000 psi is {percent(at[3000], 2)}.")


def method_blocks(data):
    return {"box": box(data), "entries": entries(data), "convergence": convergence(data),
            "waters": waters(data), "oddities": uncorrected(data)}


def manual_blocks(data):
    lines = []
    for when, costs in do_not_use(data):
        lines += [".TP", f".B {when}", costs.replace("-", "\\-") + "."]
    return {"box": "\n".join(lines)}


def readme_blocks(data):
    usual = [p for p in data.within() if p.usual and p.reynolds >= 1e5]

    def errors(points):
        return (plain(worst(getattr(p, e) for p in points), 1) for e in ("flow", "dp", "solved"))

    liquid = "{}, {} and {}".format(*errors([p for p in usual if p.fluid == "liquid"]))
    others = "{}, {} and {}".format(*errors([p for p in usual if p.fluid != "liquid"]))
    runs = sum(int(f[2]) for f in data.lines("random"))
    largest = max(float(f[4]) for f in data.lines("random"))
    return {"how good": (
        f"Flow, differential pressure and beta of a liquid are within {liquid} of ISO 5167-2 (gas and "
        f"steam: {others}) at beta 0.15 to 0.67 and Reynolds numbers from 1e5 up, "
        f"[worse below](docs/accuracy.md); {runs} random runs agree with a second solver within "
        f"{tiny(largest)} ([validation](docs/validation.md)).")}
