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


# --- liquid ---------------------------------------------------------------------------------------

def solve_liquid(meter, flowing_sg, base_sg):
    beta, pipe = meter.beta, meter.pipe
    if meter.mode == "FR":
        if _product(beta, pipe, meter.dp) == 0.0:
            return NOTHING
        if beta >= 1.0:
            return BETA_NOT_BELOW_1
        head = root(single(meter.dp * flowing_sg))
        flow = _approach(beta) * LIQUID_K * beta * beta * pipe * pipe * head
        return _checked_flow(single(quotient(flow, base_sg)))
    if meter.mode == "DP":
        if _product(beta, meter.flow, pipe) == 0.0:
            return NOTHING
        if beta >= 1.0:
            return BETA_NOT_BELOW_1
        ratio = quotient(single(base_sg * meter.flow),
                         _approach(beta) * LIQUID_K * beta * beta * pipe * pipe)
        dp = single(quotient(power(ratio, 2.0), flowing_sg))
        return NOTHING if not _finite(dp) or dp > DP_LIMIT else (dp, "")
    if _product(pipe, meter.flow, meter.dp) == 0.0:
        return NOTHING
    head = root(single(meter.dp * flowing_sg))
    a = single(quotient(single(base_sg * meter.flow), pipe * LIQUID_K * pipe * head))
    a_squared = power(a, 2.0)
    solved = power(quotient(a_squared, a_squared + CD_SQUARED), 0.25)  # double
    return _checked_beta(round_to_5(solved, True))


# --- gas and steam --------------------------------------------------------------------------------

def _expansion(beta, dp, pressure):
    """Y, the expansion factor."""
    return single(1.0 - (0.41 + 0.35 * power(beta, 4.0))
                  * quotient(dp, 27.707 * pressure) / 1.3)


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
    if choice == "Density":
        factor = single(quotient(2.698825 * pressure * gravity, single(temperature * density)))
        rho = density
    else:
        rho = single(quotient(2.698825 * pressure * gravity, single(temperature * factor)))
    return Gas(kind, pressure, base_pressure, temperature, base_temperature, gravity, rho, factor)


def solve_gas(meter, gas):
    beta, pipe = meter.beta, meter.pipe
    if meter.mode == "FR":
        if _product(beta, pipe, meter.dp) == 0.0:
            return NOTHING
        if beta >= 1.0:
            return BETA_NOT_BELOW_1
        e, y = _approach(beta), _expansion(beta, meter.dp, gas.pressure)
        if gas.kind == "M":
            mass = single(MASS_K * e * y * power(beta, 2.0) * power(pipe, 2.0) * gas.head(meter.dp))
            return _checked_flow(single(mass / (AIR_DENSITY_NUMERATOR / AIR_DENSITY_DENOMINATOR)))
        return _checked_flow(single(VOLUME_K * e * y * power(beta, 2.0) * power(pipe, 2.0)
                                    * gas.base_ratio() * gas.head(meter.dp)))
    mass_flow = meter.flow * AIR_DENSITY_NUMERATOR / AIR_DENSITY_DENOMINATOR  # double
    if meter.mode == "DP":
        if _product(beta, pipe, meter.flow) == 0.0:
            return NOTHING
        if beta >= 1.0:
            return BETA_NOT_BELOW_1
        e, beta_squared = _approach(beta), power(beta, 2.0)
        if gas.kind == "M":
            target = single(quotient(mass_flow, MASS_K * e * beta_squared))
        else:
            target = single(quotient(meter.flow, VOLUME_K * e * beta_squared
                                     * gas.base_temperature / gas.base_pressure))
        return _iterate_dp(
            meter, gas.pressure, lambda y, dp: quotient(target, y * gas.head(dp)),
            (single(0.999999), single(1.000001)),
            "Unable to resolve differential pressure for conditions.")
    if _product(pipe, meter.flow, meter.dp) == 0.0:
        return NOTHING
    if gas.kind == "M":
        target = single(quotient(mass_flow, MASS_K * gas.head(meter.dp)))
    else:
        target = single(quotient(meter.flow, VOLUME_K * gas.base_ratio() * gas.head(meter.dp)))
    return _iterate_gas_beta(meter, gas.pressure, target)


def _iterate_dp(meter, pressure, diameter_squared, band, unresolved):
    dp = 50.0
    for _ in range(100):
        y = _expansion(meter.beta, dp, pressure)
        r = single(diameter_squared(y, dp))
        if not _finite(y, r):
            break
        if r < 0.0:
            return DP_FLOW_TOO_HIGH
        s = single(quotient(root(r), meter.pipe))
        if not _finite(s):
            break
        if band[0] < s < band[1]:
            return dp, ""
        dp = single(dp * s)
        if not _finite(dp):
            break
    return None, unresolved


def _iterate_gas_beta(meter, pressure, target):
    unresolved = None, "Unable to resolve beta for conditions."
    beta = 0.5
    for _ in range(100):
        e, y = _approach(beta), _expansion(beta, meter.dp, pressure)
        r = single(quotient(target, _product(y, e, beta, beta)))
        if not _finite(e, y, r):
            return unresolved
        if r < 0.0:
            return BETA_FLOW_TOO_HIGH
        s = single(quotient(root(r), meter.pipe))
        if not _finite(s):
            return unresolved
        if single(0.999999) < s < single(1.000001):
            return _checked_beta(round_to_5(beta, False))
        beta = single(beta * s)
        if beta >= 1.0:
            return BETA_TOO_HIGH
        if beta <= 0.0:
            return BETA_TOO_LOW
    return unresolved


def solve_steam(meter, pressure, density):
    beta, pipe = meter.beta, meter.pipe
    if meter.mode == "FR":
        if _product(beta, pipe, meter.dp) == 0.0:
            return NOTHING
        if beta >= 1.0:
            return BETA_NOT_BELOW_1
        e, y = _approach(beta), _expansion(beta, meter.dp, pressure)
        head = root(single(meter.dp * density))
        return _checked_flow(
            single(MASS_K * e * y * power(beta, 2.0) * power(pipe, 2.0) * head))
    if meter.mode == "DP":
        if _product(beta, pipe, meter.flow) == 0.0:
            return NOTHING
        if beta >= 1.0:
            return BETA_NOT_BELOW_1
        target = single(quotient(
            meter.flow, MASS_K * _approach(beta) * power(beta, 2.0) * root(density)))
        return _iterate_dp(
            meter, pressure, lambda y, dp: quotient(target, y * root(dp)),
            (0.9999999, 1.0000001), "Unable to resolve Differential Pressure for conditions.")
    if _product(pipe, meter.flow, meter.dp) == 0.0:
        return NOTHING
    target = single(quotient(meter.flow, MASS_K * root(single(meter.dp * density))))
    return _iterate_steam_beta(meter, pressure, target)


def _iterate_steam_beta(meter, pressure, target):
    unresolved = None, "Unable to resolve Beta Ratio for conditions."
    beta = 0.5
    for _ in range(100):
        if not 0.0 < beta <= 1.0:
            return NOTHING
        e, y = _approach(beta), _expansion(beta, meter.dp, pressure)
        r = single(quotient(target, single(y * e) * power(beta, 2.0)))
        if not _finite(e, y, r):
            return unresolved
        if r < 0.0:
            return BETA_FLOW_TOO_HIGH
        s = single(quotient(root(r), meter.pipe))
        if not _finite(s):
            return unresolved
        if 0.999999 < s < 1.000001:
            return _checked_beta(round_to_5(beta, False))
        beta = single(beta * s)
    return unresolved


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
