// Every constant and limit of the equations, with its unit. They are those of ASME MFC-3M (1989),
// reduced to a fixed discharge coefficient; docs/method.md derives them. Doubles but for those that
// the method keeps in single precision.
#pragma once

namespace tarvix {

// Flow constants, for D in inches and h in inches of water.
inline constexpr double kLiquidConstant = 5.66646;          // US gallons per minute
inline constexpr double kMassConstant = 358.927;            // pounds per hour
inline constexpr double kStandardVolumeConstant = 218.468;  // standard cubic feet per hour

// Discharge coefficient, flange taps, no Reynolds number correction; and its square as the single
// that solves for beta.
inline constexpr float kDischargeCoefficient = 0.6F;
inline constexpr float kDischargeCoefficientSquared = 0.36F;

// Expansion factor of flange taps: 1 - (0.41 + 0.35 beta^4) x / 1.3, with x the differential
// pressure as a part of the operating pressure and 1.3 the isentropic exponent.
inline constexpr double kExpansionConstant = 0.41;
inline constexpr double kExpansionPerBetaToTheFourth = 0.35;
inline constexpr double kIsentropicExponent = 1.3;
inline constexpr double kInchesOfWaterPerPsi = 27.707;

// The density of air, lb per cubic foot, is this times psia / deg R.
inline constexpr double kGasDensityConstant = 2.698825;

// Zb, at base conditions. Only the search for a gas's differential pressure is written with it.
inline constexpr float kBaseCompressibility = 1.0F;

// A mass flow in lb/h divided by this quotient (the density of air at base conditions, 2.698825 x
// 14.696 psia / 519.67 deg R, in lb per cubic foot) is its equivalent in standard cubic feet of air
// per hour.
inline constexpr double kBaseAirDensityNumerator = 39.6619322;
inline constexpr double kBaseAirDensityDenominator = 519.67;

// Base conditions.
inline constexpr float kBaseTempF = 60.0F;
inline constexpr float kAtmosphericPressurePsi = 14.7F;
inline constexpr double kRankineOffset = 459.67;         // deg R = deg F + 459.67
inline constexpr float kWaterDensityLbPerFt3 = 62.366F;  // of a specific gravity of 1

inline constexpr double kMinutesPerHour = 60.0;

// Limits of what is shown as a result. The messages about beta name its limits, too.
inline constexpr float kMaxFlow = 999999999.0F;  // in calculation units
inline constexpr float kMinFlow = 0.00001F;
inline constexpr double kMaxDiffPressInH2O = 1000000.0;  // of a liquid
inline constexpr float kMaxBeta = 0.95F;
inline constexpr float kMinBeta = 0.0F;  // not itself

// To which a beta is rounded.
inline constexpr int kBetaDecimals = 5;

// The iterations of gas and steam.
inline constexpr int kMaxSteps = 100;
inline constexpr float kFirstDiffPressInH2O = 50.0F;
inline constexpr float kFirstBeta = 0.5F;

}  // namespace tarvix
