#include "tests/docs/iso5167.h"

#include <cmath>
#include <numbers>

namespace tarvix::iso5167 {

namespace {

constexpr double kMmPerInch = 25.4;

}  // namespace

TapSpacing FlangeTaps(double diameterMm) {
    return {kMmPerInch / diameterMm, kMmPerInch / diameterMm};
}

double DischargeCoefficient(double beta, double diameterMm, double reynolds, TapSpacing taps) {
    const double a = std::pow(19000 * beta / reynolds, 0.8);
    const double m2 = 2 * taps.downstream / (1 - beta);
    const double beta4 = std::pow(beta, 4);

    // Corner taps at an infinite Reynolds number, then what a finite one adds.
    const double infinite = 0.5961 + 0.0261 * beta * beta - 0.216 * beta4 * beta4;
    const double slope =
        0.000521 * std::pow(1e6 * beta / reynolds, 0.7) +
        (0.0188 + 0.0063 * a) * std::pow(beta, 3.5) * std::pow(1e6 / reynolds, 0.3);

    // The place of the taps.
    const double upstream =
        (0.043 + 0.080 * std::exp(-10 * taps.upstream) - 0.123 * std::exp(-7 * taps.upstream)) *
        (1 - 0.11 * a) * beta4 / (1 - beta4);
    const double downstream = -0.031 * (m2 - 0.8 * std::pow(m2, 1.1)) * std::pow(beta, 1.3);

    const double diameterIn = diameterMm / kMmPerInch;
    const double smallPipe = diameterIn < 2.8 ? 0.011 * (0.75 - beta) * (2.8 - diameterIn) : 0;

    return infinite + slope + upstream + downstream + smallPipe;
}

bool IsWithinFlangeTapLimits(double beta, double diameterMm, double reynolds) {
    return beta * diameterMm >= 12.5 && diameterMm >= 50 && diameterMm <= 1000 && beta >= 0.1 &&
           beta <= 0.75 && reynolds >= 5000 && reynolds >= 170 * beta * beta * diameterMm;
}

double Expansibility(double beta, double pressureRatio, double isentropicExponent) {
    const double beta4 = std::pow(beta, 4);
    return 1 - (0.351 + 0.256 * beta4 + 0.93 * beta4 * beta4) *
                   (1 - std::pow(pressureRatio, 1 / isentropicExponent));
}

double MassFlow(const MeteringConditions& conditions) {
    const double bore = conditions.beta * conditions.diameterM;
    return conditions.dischargeCoefficient / std::sqrt(1 - std::pow(conditions.beta, 4)) *
           conditions.expansibility * std::numbers::pi / 4 * bore * bore *
           std::sqrt(2 * conditions.diffPressurePa * conditions.upstreamDensity);
}

double Reynolds(double massFlow, const MeteringConditions& conditions, double viscosity) {
    return 4 * massFlow / (std::numbers::pi * conditions.diameterM * viscosity);
}

double MassFlow(MeteringConditions conditions, TapSpacing taps, double viscosity) {
    double reynolds = 1e5;
    for (int i = 0; i < 60; ++i) {
        conditions.dischargeCoefficient =
            DischargeCoefficient(conditions.beta, conditions.diameterM * 1000, reynolds, taps);
        reynolds = Reynolds(MassFlow(conditions), conditions, viscosity);
    }
    return MassFlow(conditions);
}

}  // namespace tarvix::iso5167
