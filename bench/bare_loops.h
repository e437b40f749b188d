// What the iterations of gas and steam cannot do without, written plainly: the square roots and
// products of each step and the conditions that end it, with nothing around them. The floor that
// bench_core sets its solves beside.
#pragma once

#include <cmath>

namespace tarvix::bare {

struct Result {
    float value;
    int steps;
};

// Air at 60 Deg F: P 114.7 psia, base 14.7 psia, G and Zf 1. Saturated steam: 0.25704 lb/ft3.
inline constexpr float kPressure = 114.7F;
inline constexpr float kAirDivisor = 519.67F * 1.0F * 1.0F;
inline constexpr float kSteamDensity = 0.25704F;

inline double FourthPower(float beta) {
    const double square = double{beta} * double{beta};
    return square * square;
}

inline float Approach(double b4) {
    return static_cast<float>(double{0.6F} / std::sqrt(1.0 - b4));
}

inline float Expansion(double b4, float h) {
    return static_cast<float>(1.0 - (0.41 + 0.35 * b4) *
                                        (double{h} / (27.707 * double{kPressure})) / 1.3);
}

// Steps from beta 0.5 until s lies in the band of `isConverged`; `required` is the pipe's diameter
// squared that would carry the flow.
template <typename Required, typename Band>
Result Beta(float h, float d, Required required, Band isConverged) {
    float beta = 0.5F;
    for (int n = 1; n <= 100; ++n) {
        const double b4 = FourthPower(beta);
        const float r = required(Expansion(b4, h) * Approach(b4), beta);
        if (r < 0) {
            return {0, n};
        }
        const auto s = static_cast<float>(std::sqrt(double{r}) / double{d});
        if (isConverged(s)) {
            return {beta, n};
        }
        beta = beta * s;
        if (beta >= 1 || beta <= 0) {
            return {0, n};
        }
    }
    return {0, 100};
}

// Steps from 50 inches of water until s lies in the band of `isConverged`.
template <typename Root, typename Band>
Result DiffPressure(float t, float beta, float d, Root flowRoot, Band isConverged) {
    float h = 50.0F;
    for (int n = 1; n <= 100; ++n) {
        const float y = Expansion(FourthPower(beta), h);
        const auto r = static_cast<float>(double{t} / (double{y} * flowRoot(h)));
        if (r < 0) {
            return {0, n};
        }
        const auto s = static_cast<float>(std::sqrt(double{r}) / double{d});
        if (isConverged(s)) {
            return {h, n};
        }
        h = h * s;
    }
    return {0, 100};
}

inline bool InGasBand(float s) {
    return s > 0.999999F && s < 1.000001F;
}

inline Result GasBeta(float q, float h, float d) {
    const double root = std::sqrt(double{h * kPressure / kAirDivisor});
    const auto t = static_cast<float>(double{q} / (218.468 * double{519.67F / 14.7F} * root));
    return Beta(
        h, d, [t](float ye, float beta) { return t / (ye * beta * beta); }, InGasBand);
}

inline Result GasDiffPressure(float q, float beta, float d) {
    const double betaSquared = double{beta} * double{beta};
    const auto t = static_cast<float>(double{q} / (218.468 * double{Approach(FourthPower(beta))} *
                                                   betaSquared * double{519.67F} / double{14.7F}));
    return DiffPressure(
        t, beta, d, [](float h) { return std::sqrt(double{h * 1.0F * kPressure / kAirDivisor}); },
        InGasBand);
}

inline Result SteamBeta(float q, float h, float d) {
    const auto t = static_cast<float>(double{q} / (358.927 * std::sqrt(double{h * kSteamDensity})));
    return Beta(
        h, d,
        [t](float ye, float beta) {
            return static_cast<float>(double{t} / (double{ye} * (double{beta} * double{beta})));
        },
        [](float s) { return double{s} > 0.999999 && double{s} < 1.000001; });
}

inline Result SteamDiffPressure(float q, float beta, float d) {
    const double betaSquared = double{beta} * double{beta};
    const auto t = static_cast<float>(double{q} / (358.927 * double{Approach(FourthPower(beta))} *
                                                   betaSquared * std::sqrt(double{kSteamDensity})));
    return DiffPressure(
        t, beta, d, [](float h) { return std::sqrt(double{h}); },
        [](float s) { return double{s} > 0.9999999 && double{s} < 1.0000001; });
}

}  // namespace tarvix::bare
