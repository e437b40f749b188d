// How far the program's estimate is from the full calculation of ISO 5167-2 at one point.
#pragma once

#include "calc/orifice_gas.h"

namespace tarvix::accuracy {

// An inch of water of 20 deg C in pascals. It is the inch that the constants of the equations are
// made for.
inline constexpr double kPascalPerInchWater = 998.2063 * 9.80665 * 0.0254;
inline constexpr double kPascalPerPsi = 6894.757293;
inline constexpr double kKgPerPound = 0.45359237;
inline constexpr double kMetersPerInch = 0.0254;
inline constexpr double kKgPerM3PerPoundPerFt3 = kKgPerPound / 0.028316846592;
inline constexpr double kWaterKgPerM3 = 62.366 * kKgPerM3PerPoundPerFt3;  // specific gravity 1

enum class Fluid { Liquid, Gas, MonatomicGas, Steam };

// One point of the comparison. Liquid: water of specific gravity 1. Gas: air of 60 deg F at 100 psi
// gauge, ideal, isentropic exponent 1.4; MonatomicGas: the same with 1.67, that of noble gases.
// Steam: saturated at 100 psi gauge, isentropic exponent 1.3. The Reynolds number is given, as if
// the viscosity were whatever leads to it.
struct Point {
    Fluid fluid = Fluid::Liquid;
    float pipeDiameterIn = 0;
    float beta = 0;
    float diffPressInH2O = 0;
    double reynolds = 0;
};

inline constexpr float kPressurePsia = 114.7F;
inline constexpr double kInchesPerPsi = kPascalPerPsi / kPascalPerInchWater;

// A share of the pressure as a differential pressure in inches of water.
inline float InchesOf(double share, double psia = double{kPressurePsia}) {
    return static_cast<float>(share * psia * kInchesPerPsi);
}

// A gas of 60 deg F and this gravity, ideal.
inline GasProperties GasAt(float psia, float gravity = 1) {
    return {.pressurePsia = psia,
            .basePressurePsia = 14.7F,
            .flowingTempR = 519.67F,
            .baseTempR = 519.67F,
            .baseSG = gravity};
}

inline constexpr double kAirExponent = 1.4;
inline constexpr double kMonatomicExponent = 1.67;
inline constexpr double kSteamExponent = 1.3;

struct Comparison {
    bool withinLimits = false;  // of ISO 5167-2 for flange taps
    double estimate = 0;        // the program's flow, in its calculation unit
    double standard = 0;        // the flow of ISO 5167-2 in the same unit
    // What the program solves for the standard's flow; differential pressure in inches of water.
    double solvedDiffPress = 0;
    double solvedBeta = 0;

    // In percent of the standard's flow, and of the point's differential pressure and beta.
    double flowErrorPercent = 0;
    double diffPressErrorPercent = 0;
    double betaErrorPercent = 0;
};

// Throws where the program shows no result.
Comparison Compare(const Point& point);

// The program's result for a run of the point's fluid under the point's conditions.
Outcome Solve(Fluid fluid, const MeteringRun& run);

}  // namespace tarvix::accuracy
