// The flange-tap orifice equation of ASME MFC-3M (1989), reduced to a fixed discharge coefficient:
// what liquid, gas and steam share.
//
// Single precision is part of the method: every stored quantity is rounded to single, constants are
// doubles, expressions are evaluated left to right, square roots and powers in double precision.
#pragma once

#include "calc/constants.h"
#include "calc/fluid.h"
#include "calc/orifice_messages.h"

#include <cmath>
#include <optional>
#include <string_view>

namespace tarvix {

enum class SolveFor { Beta, DiffPressure, FlowRate };

// The metering run in calculation units. The quantity that is solved for is not read.
struct MeteringRun {
    SolveFor solveFor = SolveFor::Beta;
    float pipeDiameterIn = 0;  // inside diameter, inches; 0: not known yet
    float flow = 0;            // liquid: US gallons per minute; gas: standard cubic feet per hour
                               // (a mass as its equivalent of air); steam: pounds per hour
    float diffPressInH2O = 0;  // inches of water
    float beta = 0;            // bore diameter / pipe inside diameter
};

// What an equation ends with: a value, a message, or neither (nothing to show, nothing to say);
// never both.
struct Outcome {
    std::optional<float> value;
    std::string_view message;  // for the message line

    static Outcome Nothing() { return {}; }
    static Outcome Message(std::string_view text) { return {std::nullopt, text}; }
    // A value; an infinity or NaN counts as nothing.
    static Outcome Value(float value) {
        return std::isfinite(value) ? Outcome{value, {}} : Nothing();
    }
};

// beta^4 in double precision. The square of a single is exact in a double.
inline double BetaToTheFourth(float beta) {
    const double square = double{beta} * double{beta};
    return square * square;
}

// E = Cd / sqrt(1 - beta^4), the discharge coefficient times the velocity of approach factor.
// Infinite for a beta of 1, NaN above.
inline float CoefficientTimesApproach(float beta) {
    return static_cast<float>(double{kDischargeCoefficient} /
                              std::sqrt(1.0 - BetaToTheFourth(beta)));
}

// Y = 1 - (0.41 + 0.35 beta^4) (h / (27.707 P)) / 1.3, the expansion factor of flange taps for an
// isentropic exponent of 1.3. `diffPressInH2O` h in inches of water, `pressurePsia` P in psia.
// Negative when the differential pressure is far too large for the pressure.
inline float ExpansionFactor(float beta, float diffPressInH2O, float pressurePsia) {
    return static_cast<float>(
        1.0 - (kExpansionConstant + kExpansionPerBetaToTheFourth * BetaToTheFourth(beta)) *
                  (double{diffPressInH2O} / (kInchesOfWaterPerPsi * double{pressurePsia})) /
                  kIsentropicExponent);
}

// A flow in calculation units, or nothing when it is above 999,999,999 or below 0.00001.
Outcome FlowWithinLimits(float flow);

// A solved beta, rounded to 5 decimals (halves to even): a value when it lies above 0 and up to
// 0.95, else kBetaTooLarge or kBetaTooSmall; nothing for NaN. The closed form comes in double
// precision, the result of an iteration in single: what is rounded is the decimal form of each.
Outcome BetaOfClosedForm(double beta);
Outcome BetaOfIteration(float beta);

}  // namespace tarvix
