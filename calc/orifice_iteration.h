// The damped fixed-point iteration of gas and steam.
//
// Each step compares the pipe with the one that would carry the flow at the current value of the
// unknown: R is that pipe's diameter squared, s = sqrt(R) / D. The unknown is multiplied by s until
// s lies within the fluid's band around 1. Multiplying by s and not by a higher power damps the
// steps, so that they also settle where the expansion factor bends the curve.
#pragma once

#include "calc/equation_terms.h"

#include <cmath>
#include <string_view>

namespace tarvix {

inline constexpr int kMaxSteps = 100;
inline constexpr float kFirstDiffPressInH2O = 50.0F;
inline constexpr float kFirstBeta = 0.5F;

// What an iteration says when it can't end in a value.
struct IterationTexts {
    std::string_view flowTooHigh;  // the expansion factor turned negative
    std::string_view unresolved;   // no end after 100 steps, or no finite number
};

// s = sqrt(R) / D.
inline float DiameterRatio(float requiredDiameterSquared, float pipeDiameterIn) {
    return static_cast<float>(std::sqrt(double{requiredDiameterSquared}) / double{pipeDiameterIn});
}

// Solves for the differential pressure, inches of water, from 50.
//   target          T, the flow reduced to what Y and `flowRoot` have to carry
//   flowRoot(h)     the square root that h stands under, a double
//   isConverged(s)  whether s lies within the band
template <typename FlowRoot, typename Band>
Outcome IterateDiffPressure(const MeteringRun& run, float target, float pressurePsia,
                            FlowRoot flowRoot, Band isConverged, const IterationTexts& texts) {
    float h = kFirstDiffPressInH2O;
    for (int n = 1; n <= kMaxSteps; ++n) {
        const float y = ExpansionFactor(run.beta, h, pressurePsia);
        const auto r = static_cast<float>(double{target} / (double{y} * flowRoot(h)));
        if (!std::isfinite(y) || !std::isfinite(r)) {
            return Outcome::Message(texts.unresolved, n);
        }
        if (r < 0) {
            return Outcome::Message(texts.flowTooHigh, n);
        }
        const float s = DiameterRatio(r, run.pipeDiameterIn);
        if (isConverged(s)) {
            return Outcome::Value(h, n);
        }
        h = h * s;
    }
    return Outcome::Message(texts.unresolved, kMaxSteps);
}

}  // namespace tarvix
