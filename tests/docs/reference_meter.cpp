#include "tests/docs/reference_meter.h"

#include <cmath>

namespace tarvix::testing {

namespace {

constexpr int kHalvings = 100;

// Where `rising` reaches `target` between `low` and `high`.
template <typename Function>
double Bisect(Function rising, double target, double low, double high) {
    for (int i = 0; i < kHalvings; ++i) {
        const double middle = 0.5 * (low + high);
        (rising(middle) < target ? low : high) = middle;
    }
    return 0.5 * (low + high);
}

}  // namespace

ReferenceMeter::ReferenceMeter(double constant, double root, double pressurePsia, double diameterIn)
    : constant_(constant), root_(root), pressurePsia_(pressurePsia), diameterIn_(diameterIn) {}

double ReferenceMeter::Expansion(double beta, double h) const {
    if (pressurePsia_ == 0) {
        return 0;
    }
    return (0.41 + 0.35 * std::pow(beta, 4)) * h / (27.707 * pressurePsia_ * 1.3);
}

double ReferenceMeter::Flow(double beta, double h) const {
    return constant_ * 0.6 / std::sqrt(1 - std::pow(beta, 4)) * (1 - Expansion(beta, h)) *
           std::pow(beta * diameterIn_, 2) * std::sqrt(h) * root_;
}

double ReferenceMeter::DiffPressure(double flow, double beta) const {
    const double atOneInch = Expansion(beta, 1);
    const double peak = atOneInch == 0 ? 1e9 : 1 / (3 * atOneInch);
    if (Flow(beta, peak) < flow) {
        return 0;
    }
    return Bisect([&](double h) { return Flow(beta, h); }, flow, 0, peak);
}

double ReferenceMeter::Beta(double flow, double h) const {
    const double high = 1 - 1e-12;
    if (Flow(high, h) < flow) {
        return 0;
    }
    return Bisect([&](double beta) { return Flow(beta, h); }, flow, 0, high);
}

// The unknown is multiplied by s, the square root of wanted flow over present flow; so the error is
// multiplied by 1 - (d ln flow / d ln unknown) / 2.
double ReferenceMeter::DiffPressureContraction(double beta, double h) const {
    const double x = Expansion(beta, h);
    return 1 - 0.5 * (0.5 - x / (1 - x));
}

double ReferenceMeter::BetaContraction(double beta, double h) const {
    const double b4 = std::pow(beta, 4);
    const double x = Expansion(beta, h);
    const double slopeOfY = -1.4 * b4 / (0.41 + 0.35 * b4) * x / (1 - x);
    return 1 - 0.5 * (2 + 2 * b4 / (1 - b4) + slopeOfY);
}

}  // namespace tarvix::testing
