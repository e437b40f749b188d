"""The orifice equations and the steam table for the reference model.

All quantities that have a name here are singles, except where a comment says double; the products
and quotients between them are written in the order and type in which they are to be evaluated.
A solver returns (value, message): the solved quantity in calculation units or None, and the text
for the message line or "".
"""

import math
from dataclasses import dataclass

from tarvix_numbers import power, quotient, root, round_to_5, single
from tarvix_tables import STEAM_TABLE

CD = single(0.6)
CD_SQUARED = single(0.36)
FLOW_LIMIT_HIGH = single(999999999.0)
FLOW_LIMIT_LOW = single(0.00001)
DP_LIMIT = 1000000.0
BETA_LIMIT = single(0.95)

LIQUID_K = 5.66646
MASS_K = 358.927
VOLUME_K = 218.468
AIR_DENSITY_NUMERATOR = 39.6619322
AIR_DENSITY_DENOMINATOR = 519.67

NOTHING = (None, "")
BETA_TOO_HIGH = (None, "Flow rate is out of range (beta > 0.95). Flow rate too high for pipe size.")
BETA_TOO_LOW = (None, "Flow rate is out of range (beta <= 0.0).")
BETA_NOT_BELOW_1 = (None, "Beta Ratio must be less than 1.")
DP_FLOW_TOO_HIGH = (
    None, "Unable to calculate differential pressure for conditions (Flow rate too high).")
BETA_FLOW_TOO_HIGH = (None, "Unable to calculate beta for conditions (Flow rate too high).")


@dataclass
class Meter:
    """What every equation reads: mode "FR", "DP" or "BETA", and the entered quantities."""
    mode: str
    flow: float
    dp: float
    beta: float
    pipe: float


def _finite(*values):
    return all(math.isfinite(value) for value in values)


def _product(*singles):
    result = singles[0]
    for factor in singles[1:]:
        result = single(result * factor)
    return result


def _approach(beta):
    """E, the discharge coefficient with the velocity of approach."""
    return single(quotient(CD, root(1.0 - power(beta, 4.0))))


def _checked_flow(flow):
    if not _finite(flow) or flow > FLOW_LIMIT_HIGH or flow < FLOW_LIMIT_LOW:
        return NOTHING
    return flow, ""


def _checked_beta(beta):
    if not _finite(beta):
        return NOTHING
    if beta > BETA_LIMIT:
        return BETA_TOO_HIGH
    if beta <= 0.0:
        return BETA_TOO_LOW
    return beta, ""


def _solve(meter, dp_factors, flow, dp, beta):
    """Solves for the mode, unless a factor that counts is zero or an entered beta is too large."""
    factors, solved = {
        "FR": ((meter.beta, meter.pipe, meter.dp), flow),
        "DP": (dp_factors, dp),
        "BETA": ((meter.pipe, meter.flow, meter.dp), beta)}[meter.mode]
    if _product(*factors) == 0.0:
        return NOTHING
    if meter.mode != "BETA" and meter.beta >= 1.0:
        return BETA_NOT_BELOW_1
    return solved()


# --- liquid ---------------------------------------------------------------------------------------

def solve_liquid(meter, flowing_sg, base_sg):
    beta, pipe = meter.beta, meter.pipe

    def capacity():
        return _approach(beta) * LIQUID_K * beta * beta * pipe * pipe

    def flow():
        head = root(single(meter.dp * flowing_sg))
        return _checked_flow(single(quotient(capacity() * head, base_sg)))

    def dp():
        ratio = quotient(single(base_sg * meter.flow), capacity())
        solved = single(quotient(power(ratio, 2.0), flowing_sg))
        return NOTHING if not _finite(solved) or solved > DP_LIMIT else (solved, "")

    def solved_beta():
        head = root(single(meter.dp * flowing_sg))
        a = single(quotient(single(base_sg * meter.flow), pipe * LIQUID_K * pipe * head))
        a_squared = power(a, 2.0)
        solved = power(quotient(a_squared, a_squared + CD_SQUARED), 0.25)  # double
        return _checked_beta(round_to_5(solved, True))

    return _solve(meter, (beta, meter.flow, pipe), flow, dp, solved_beta)


# --- gas and steam --------------------------------------------------------------------------------

def _expansion(beta, dp, pressure):
    """Y, the expansion factor."""
    return single(1.0 - (0.41 + 0.35 * power(beta, 4.0))
                  * quotient(dp, 27.707 * pressure) / 1.3)


def _flow_of(constant, meter, pressure, *terms):
    flow = constant * _approach(meter.beta) * _expansion(meter.beta, meter.dp, pressure) \
        * power(meter.beta, 2.0) * power(meter.pipe, 2.0)  # double
    for term in terms:
        flow *= term
    return single(flow)


def _iterate(value, meter, squared_diameter, band, too_high, unresolved,
             left_range=lambda value: None, looks=100):
    """At most 100 steps from `value` on, until the diameter is the pipe's. `squared_diameter` gives
    R and the factors in it; `left_range` says what comes of a value after one of so many steps."""
    for step in range(1, 101):
        r, *factors = squared_diameter(value)
        if not _finite(r, *factors):
            break
        if r < 0.0:
            return too_high
        s = single(quotient(root(r), meter.pipe))
        if not _finite(s):
            break
        if band[0] < s < band[1]:
            return value, ""
        value = single(value * s)
        left = left_range(value)
        if left and step <= looks:
            return left
    return None, unresolved


def _iterate_dp(meter, pressure, diameter_squared, band, unresolved):
    def squared_diameter(dp):
        y = _expansion(meter.beta, dp, pressure)
        return single(diameter_squared(y, dp)), y

    return _iterate(50.0, meter, squared_diameter, band, DP_FLOW_TOO_HIGH, unresolved)


def _iterate_beta(meter, pressure, target, divisor, band, unresolved, **range_check):
    def squared_diameter(beta):
        e, y = _approach(beta), _expansion(beta, meter.dp, pressure)
        return single(quotient(target, divisor(e, y, beta))), e, y

    beta, message = _iterate(0.5, meter, squared_diameter, band, BETA_FLOW_TOO_HIGH, unresolved,
                             **range_check)
    return (beta, message) if beta is None else _checked_beta(round_to_5(beta, False))


@dataclass
class Gas:
    """The gas as it flows: kind "M" or "V" of the flow unit, psia, degrees Rankine."""
    kind: str
    pressure: float
    base_pressure: float
    temperature: float
    base_temperature: float
    gravity: float
    density: float
    zf: float

    def head(self, dp):
        """The square root (double) of the flow term at this differential pressure."""
        if self.kind == "M":
            return root(single(dp * self.density))
        below = _product(self.temperature, self.gravity, self.zf)
        return root(single(quotient(single(dp * self.pressure), below)))

    def base_ratio(self):
        return single(quotient(self.base_temperature, self.base_pressure))


def gas_state(kind, choice, pressure, base_pressure, temp_f, base_temp_f, gravity, density, zf):
    """The gas for a compressibility choice "None", "Density" or "Zf"."""
    temperature = single(temp_f + 459.67)
    base_temperature = single(base_temp_f + 459.67)
    factor = zf if choice == "Zf" else 1.0
    other = density if choice == "Density" else factor
    solved = single(quotient(2.698825 * pressure * gravity, single(temperature * other)))
    rho, factor = (density, solved) if choice == "Density" else (solved, factor)
    return Gas(kind, pressure, base_pressure, temperature, base_temperature, gravity, rho, factor)


def solve_gas(meter, gas):
    is_mass = gas.kind == "M"
    mass_flow = meter.flow * AIR_DENSITY_NUMERATOR / AIR_DENSITY_DENOMINATOR  # double
    band = single(0.999999), single(1.000001)

    def flow():
        if is_mass:
            mass = _flow_of(MASS_K, meter, gas.pressure, gas.head(meter.dp))
            return _checked_flow(single(mass / (AIR_DENSITY_NUMERATOR / AIR_DENSITY_DENOMINATOR)))
        return _checked_flow(
            _flow_of(VOLUME_K, meter, gas.pressure, gas.base_ratio(), gas.head(meter.dp)))

    def dp():
        e, beta_squared = _approach(meter.beta), power(meter.beta, 2.0)
        target = single(
            quotient(mass_flow, MASS_K * e * beta_squared) if is_mass else
            quotient(meter.flow, VOLUME_K * e * beta_squared * gas.base_temperature
                     / gas.base_pressure))
        return _iterate_dp(
            meter, gas.pressure, lambda y, dp: quotient(target, y * gas.head(dp)), band,
            "Unable to resolve differential pressure for conditions.")

    def beta():
        head = gas.head(meter.dp)
        target = single(quotient(mass_flow, MASS_K * head) if is_mass else
                        quotient(meter.flow, VOLUME_K * gas.base_ratio() * head))
        return _iterate_beta(
            meter, gas.pressure, target, lambda e, y, beta: _product(y, e, beta, beta), band,
            "Unable to resolve beta for conditions.",
            left_range=lambda beta: (BETA_TOO_HIGH if beta >= 1.0 else
                                     BETA_TOO_LOW if beta <= 0.0 else None))

    return _solve(meter, (meter.beta, meter.pipe, meter.flow), flow, dp, beta)


def solve_steam(meter, pressure, density):
    def head(dp):
        return root(single(dp * density))

    def flow():
        return _checked_flow(_flow_of(MASS_K, meter, pressure, head(meter.dp)))

    def dp():
        target = single(quotient(
            meter.flow, MASS_K * _approach(meter.beta) * power(meter.beta, 2.0) * root(density)))
        return _iterate_dp(
            meter, pressure, lambda y, dp: quotient(target, y * root(dp)),
            (0.9999999, 1.0000001), "Unable to resolve Differential Pressure for conditions.")

    def beta():
        # Beta is looked at before a step, so no more after the last.
        return _iterate_beta(
            meter, pressure, single(quotient(meter.flow, MASS_K * head(meter.dp))),
            lambda e, y, beta: single(y * e) * power(beta, 2.0), (0.999999, 1.000001),
            "Unable to resolve Beta Ratio for conditions.",
            left_range=lambda beta: None if 0.0 < beta <= 1.0 else NOTHING, looks=99)

    return _solve(meter, (meter.beta, meter.pipe, meter.flow), flow, dp, beta)


# --- steam table ----------------------------------------------------------------------------------

def steam_density(gauge_psi):
    """The density of saturated steam in lb per cubic foot, between 0 and 3000 psi gauge."""
    nearest = 0
    for row, (pressure, _) in enumerate(STEAM_TABLE):
        if abs(single(gauge_psi - pressure)) < abs(single(gauge_psi - STEAM_TABLE[nearest][0])):
            nearest = row
    pressure, text = STEAM_TABLE[nearest]
    density = single(float(text))
    if pressure == gauge_psi:
        return density
    other_pressure, other_text = STEAM_TABLE[nearest + 1 if pressure < gauge_psi else nearest - 1]
    rise = _product(single(gauge_psi - pressure), single(single(float(other_text)) - density))
    return single(single(rise / (other_pressure - pressure)) + density)
