// The damped fixed-point iterations of gas and steam, of at most 100 steps.
//
// Each step compares the pipe with the one that would carry the flow at the current value of the
// unknown: R is that pipe's diameter squared, s = sqrt(R) / D. The unknown is multiplied by s until
// s lies within the fluid's band around 1. Multiplying by s and not by a higher power damps the
// steps, so that they also settle where the expansion factor bends the curve.
#pragma once

#include "calc/equation_terms.h"

#include <cmath>
#include <optional>

namespace tarvix {

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
            return Outcome::Message(texts.unresolved);
        }
        if (r < 0) {
            return Outcome::Message(texts.flowTooHigh);
        }
        const float s = DiameterRatio(r, run.pipeDiameterIn);
        if (isConverged(s)) {
            return Outcome::Value(h);
        }
        h = h * s;
    }
    return Outcome::Message(texts.unresolved);
}

// Solves for beta, from 0.5.
//   requiredSquare(ye, beta)  R, from the product of Y and E, a single
//   isConverged(s)            whether s lies within the band
//   outOfRange(beta, n)       what ends the iteration after step n because of the beta that it led
//                             to; nothing where it goes on
template <typename RequiredSquare, typename Band, typename Range>
Outcome IterateBeta(const MeteringRun& run, float pressurePsia, RequiredSquare requiredSquare,
                    Band isConverged, Range outOfRange, const IterationTexts& texts) {
    float beta = kFirstBeta;
    for (int n = 1; n <= kMaxSteps; ++n) {
        const float e = CoefficientTimesApproach(beta);
        const float y = ExpansionFactor(beta, run.diffPressInH2O, pressurePsia);
        const float r = requiredSquare(y * e, beta);
        if (!std::isfinite(e) || !std::isfinite(y) || !std::isfinite(r)) {
            return Outcome::Message(texts.unresolved);
        }
        if (r < 0) {
            return Outcome::Message(texts.flowTooHigh);
        }
        const float s = DiameterRatio(r, run.pipeDiameterIn);
        if (isConverged(s)) {
            return BetaOfIteration(beta);
        }
        beta = beta * s;
        if (const std::optional<Outcome> end = outOfRange(beta, n)) {
            return *end;
        }
    }
    return Outcome::Message(texts.unresolved);
}

}  // namespace tarvix
