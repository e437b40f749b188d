"""The blocks of accuracy.md."""

from .data import CASES, FLUIDS, PIPES, REYNOLDS, USUAL_BETAS
from .text import percent, plain, power, rounded, signed, table, worst

# The accuracy of the beta ratio that the About window states, in percent.
STATED_LIQUID = 1
STATED_COMPRESSIBLE = (2, 5)
TABLE_BETAS = (0.15, 0.20, 0.30, 0.40, 0.50, 0.60, 0.67, 0.75)
USUAL = f"{USUAL_BETAS[0]:.2f} to {USUAL_BETAS[1]:.2f}"


def name_of(fluid, case):
    shown = {"gas": "gas (1.4)", "gas 1.67": "gas (1.67)", "steam": "steam (1.3)"}.get(fluid, fluid)
    return shown if fluid == "liquid" else f"{shown}, {CASES[case]}"


def runs():
    for fluid in FLUIDS:
        for case in CASES:
            if fluid != "liquid" or case == "normal":
                yield fluid, case


def holds(fluid, error):
    if fluid == "liquid":
        return "yes" if abs(error) <= STATED_LIQUID else "no"
    for limit in STATED_COMPRESSIBLE:
        if abs(error) <= limit:
            return f"yes, within {limit}%"
    return "no"


def triple(points):
    """The largest error of flow, differential pressure and beta."""
    return [worst(p.flow for p in points), worst(p.dp for p in points),
            worst(p.solved for p in points)]


def summary(data):
    rows = []
    for fluid, case in runs():
        for reynolds in REYNOLDS:
            here = data.within(fluid=fluid, case=case, reynolds=reynolds)
            all_betas, usual = triple(here), triple([p for p in here if p.usual])
            rows.append([name_of(fluid, case), power(reynolds), *(percent(e) for e in all_betas),
                         *(percent(e) for e in usual), holds(fluid, usual[2])])
    return table(["Fluid", "Re", "flow", "dp", "beta", f"flow, {USUAL}", f"dp, {USUAL}",
                  f"beta, {USUAL}", "statement holds"], rows)


def by_reynolds(points, error):
    return ", ".join(f"{plain(worst(getattr(p, error) for p in points if p.reynolds == r))} "
                     f"at {power(r)}" for r in reversed(REYNOLDS))


def short(data):
    usual = {key: [p for p in data.within(fluid=key[0], case=key[1]) if p.usual] for key in runs()}
    compressible = [p for key, points in usual.items() if key[0] != "liquid" for p in points]
    liquid = usual["liquid", "normal"]
    everything = liquid + compressible
    clear = [p for p in everything if abs(p.flow) >= 0.5]
    to_beta = [abs(p.flow / p.solved) for p in clear]
    liquid_dp = [abs(p.dp / p.flow) for p in clear if p.fluid == "liquid"]
    other_dp = [abs(p.dp / p.flow) for p in clear if p.fluid != "liquid"]
    whole = data.within()
    low = [p for p in everything if p.flow < 0]
    return "\n".join([
        f"Largest errors at beta {USUAL} in 2 to 24 inch pipes, within the limits of the standard, "
        "by Reynolds number:",
        "",
        f"- **Beta of a liquid** (stated: {STATED_LIQUID}%): {by_reynolds(liquid, 'solved')}.",
        f"- **Beta of a gas or steam** (stated: {STATED_COMPRESSIBLE[0]}% - "
        f"{STATED_COMPRESSIBLE[1]}%), isentropic exponents 1.3 to 1.67, differential pressures up "
        f"to a quarter of the pressure: {by_reynolds(compressible, 'solved')}.",
        f"- **Flow of a liquid:** {by_reynolds(liquid, 'flow')}. **Of a gas or steam:** "
        f"{by_reynolds(compressible, 'flow')}.",
        f"- **Differential pressure of a liquid:** {by_reynolds(liquid, 'dp')}. **Of a gas or "
        f"steam:** {by_reynolds(compressible, 'dp')}.",
        f"- Where flow errs by 0.5% or more, it errs {min(to_beta):.1f} to {max(to_beta):.1f} times "
        f"as much as beta; differential pressure errs {min(liquid_dp):.1f} to {max(liquid_dp):.1f} "
        f"times as much as flow for a liquid, {min(other_dp):.1f} to {max(other_dp):.1f} times for "
        "gas and steam.",
        f"- At the very limits of the standard (beta up to 0.75, Reynolds number 5000) the largest "
        f"errors of all fluids are {percent(worst(p.flow for p in whole))} of flow, "
        f"{percent(worst(p.dp for p in whole))} of differential pressure and "
        f"{percent(worst(p.solved for p in whole))} of beta.",
        f"- The estimate errs to one side: of these points {100 * len(low) / len(everything):.0f}% "
        f"have the flow too low, so beta and differential pressure too high. The largest error the "
        f"other way is {percent(max(p.flow for p in everything))} of flow.",
    ])


def reach(data):
    """For a liquid, the largest beta up to which the beta error stays within the stated one."""
    rows = []
    last_beta = max(p.beta for p in data.points)
    for pipe in PIPES:
        cells = [f"{pipe} in"]
        for reynolds in REYNOLDS:
            here = data.within(fluid="liquid", pipe=pipe, reynolds=reynolds)
            outside = [p.beta for p in here if abs(p.solved) > STATED_LIQUID]
            inside = [p.beta for p in here if not outside or p.beta < min(outside)]
            last = max(inside, default=None)
            if last is None:
                cells.append("none")
            elif outside:
                cells.append(f"{last:.2f}")
            else:
                cells.append("all" if last == last_beta else f"all ({last:.2f})")
        rows.append(cells)
    return table(["Pipe"] + [f"Re {power(r)}" for r in REYNOLDS], rows)


def grid(data, fluid, case):
    at = {(p.pipe, p.beta, p.reynolds): p for p in data.points if (p.fluid, p.case) == (fluid, case)}
    rows = []
    for pipe in PIPES:
        for beta in TABLE_BETAS:
            cells = [f"{pipe} in", f"{beta:.2f}"]
            for reynolds in REYNOLDS:
                p = at[(pipe, beta, reynolds)]
                errors = f"{signed(p.flow)} / {signed(p.dp)} / {signed(p.solved)}"
                cells.append(errors if p.within else f"({errors})")
            rows.append(cells)
    return table(["Pipe", "beta"] + [f"Re {power(r)}" for r in REYNOLDS], rows)


def expansion(data):
    values = {(float(k), float(b), float(f)): float(e) for k, b, f, e in data.lines("expansion")}
    fractions = sorted({key[2] for key in values})
    rows = [[f"{k:.2f}", f"{b:.2f}"] + [signed(values[k, b, f]) for f in fractions]
            for k, b in sorted({key[:2] for key in values})]
    small = worst(e for (_, _, f), e in values.items() if f <= 0.05)
    return (table(["kappa", "beta"] + [f"{f:.2f}" for f in fractions], rows) +
            f"\n\nUp to dp/p 0.05 it is {plain(small)} at most.")


def water(data):
    cells = {}
    for pipe, inches, beta, reynolds, within, *errors in data.lines("water"):
        text = " / ".join(signed(float(e)) for e in errors)
        text = f"{rounded(float(reynolds))}: {text}"
        cells[pipe, inches, beta] = text if within == "1" else f"({text})"
    betas = sorted({key[2] for key in cells})
    lines = list(dict.fromkeys(key[:2] for key in cells))
    rows = [[f"{pipe} in", inches, *(cells[pipe, inches, b] for b in betas)]
            for pipe, inches in lines]
    return table(["Pipe", "inH2O"] + [f"beta {b}" for b in betas], rows)


def small_pipes(data):
    rows = []
    for pipe in ("1/2", "1", "1-1/2"):
        for fluid, case in runs():
            here = [p for p in data.small if (p.pipe, p.fluid, p.case) == (pipe, fluid, case) and
                    p.usual and p.reynolds >= 1e4]
            cells = []
            for error in ("flow", "dp", "solved"):
                sizes = [abs(getattr(p, error)) for p in here]
                cells.append(f"{min(sizes):.2f}% to {max(sizes):.2f}%")
            rows.append([f"{pipe} in", name_of(fluid, case), *cells])
    return table(["Pipe", "Fluid", "flow", "dp", "beta"], rows)


def outside(data):
    sizes, counts = {}, {}
    for size, count, schedule, mm in data.lines("outside"):
        sizes.setdefault(size, []).append((schedule, float(mm)))
        counts[size] = int(count)
    whole = [s for s in sizes if len(sizes[s]) == counts[s]]
    lines = []
    for name, chosen in (("small", [s for s in whole if sizes[s][0][1] < 50]),
                         ("large", [s for s in whole if sizes[s][0][1] > 50])):
        extreme = (max if name == "small" else min)(mm for s in chosen for _, mm in sizes[s])
        lines.append(f"- every pipe of {', '.join(chosen)} inch (the "
                     f"{'largest' if name == 'small' else 'smallest'} {extreme:.1f} mm);")
    for size in sizes:
        if size not in whole:
            lines.append(f"- of the size {size} inch: " + ", ".join(
                f"{schedule} ({mm:.1f} mm)" for schedule, mm in sizes[size]) + ";")
    return "\n".join(lines)[:-1] + "."


def coefficient(data):
    usual = [p for p in data.within(fluid="liquid") if p.usual and p.reynolds >= 1e6]
    low, high = (0.6 / (1 + f(p.flow for p in usual) / 100) for f in (max, min))
    at = {(p.pipe, p.beta): p.flow for p in data.points
          if (p.fluid, p.reynolds) == ("liquid", 1e5)}
    rise = max(at["4", b] - at["2", b] for _, b in at if USUAL_BETAS[0] <= b <= USUAL_BETAS[1])
    return (f"From a Reynolds number of 1e6 up C is {low:.3f} to {high:.3f} at beta {USUAL} in pipes "
            "from 2 inches up, so 0.6 is a good choice there. In pipes below 2.8 inches C is a "
            f"little larger: in a 2 inch pipe by up to {rise:.1f}% of what it is in a 4 inch one "
            "(at a Reynolds number of 1e5).")


def uncertainty(_):
    def c(beta):
        return 0.7 - beta if beta < 0.2 else 0.5 if beta <= 0.6 else 1.667 * beta - 0.5
    rows = [[f"{b:.2f}", f"{c(b):.2f}%", f"{c(b) + 0.9 * (0.75 - b) * (2.8 - 2.067):.2f}%"]
            for b in (0.10, 0.15, 0.20, 0.40, 0.60, 0.67, 0.75)]
    return table(["beta", "C, pipes from 2.8 inches up", "C, 2 inch pipe"], rows) + (
        "\n\nBelow a Reynolds number of 10,000 and above beta 0.5, 0.5% is to be added. That of "
        f"epsilon is 3.5 dp/p / kappa in percent: {3.5 * 0.25 / 1.4:.2f}% for air at a dp/p of "
        f"0.25, {3.5 * 0.03 / 1.4:.2f}% at 0.03.")


def blocks(data):
    made = {"short": short(data), "summary": summary(data), "reach": reach(data),
            "water": water(data), "expansion": expansion(data), "small": small_pipes(data),
            "outside": outside(data), "coefficient": coefficient(data),
            "uncertainty": uncertainty(data), "liquid": grid(data, "liquid", "normal"),
            "gas": grid(data, "gas", "normal"), "gas high": grid(data, "gas", "high"),
            "gas 1.67 high": grid(data, "gas 1.67", "high"),
            "steam": grid(data, "steam", "normal"), "steam high": grid(data, "steam", "high"),
            "extra": extra(data)}
    return made


def extra(data):
    """Errors that come on top."""
    cost = data.costs
    rows, line = data.steam()
    at = dict(rows)
    below = worst(e for p, e in line if p <= 2000 and not 67 <= p <= 69 and not 380 <= p <= 390)
    above = worst(e for p, e in line if p > 2000)
    return "\n".join([
        "- Compressibility of a gas. Without a correction the density is that of an ideal gas: "
        f"{percent(cost['Zf 0.90'], 1)} of flow where Zf is 0.9, {percent(cost['Zf 0.80'], 1)} where "
        "it is 0.8.",
        f"- The steam density: {percent(at[68] / 2, 1)} and {percent(at[385] / 2, 1)} of flow at 68 and "
        f"385 psi gauge; elsewhere up to 2000 psi the density is within {plain(below)}, above it "
        f"errs by up to {percent(above, 1)}. See [validation.md](validation.md#steam-density).",
        f"- Superheat or wetness: {percent(cost['superheat 50 F, 100 psig'], 1)} of flow for 50 Deg F "
        "of superheat at 100 psi gauge with the table's density, "
        f"{percent(cost['wetness 5 percent'], 1)} for 5% of water.",
        "- Thermal expansion. A plate of stainless steel (17.3e-6 for each K) bored at 68 Deg F "
        f"passes {plain(cost['thermal expansion, 500 F'], 1)} more at 500 Deg F than is shown.",
        "- Units whose factors are not quite those of their definitions, see "
        "[validation.md](validation.md#units).",
        "- The installation: straight lengths, roughness, the edge of the plate.",
    ])
