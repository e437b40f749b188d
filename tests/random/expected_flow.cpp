#include "tests/random/expected_flow.h"

#include <cmath>

namespace tarvix {

namespace {

// A product that a single of 7 digits can hold.
bool InRange(double value) {
    return value > 1e-30 && value < 1e30;
}

}  // namespace

ShownRun::ShownRun(const Reading& is)
    : flow(double{is.flow.value_or(0)}),
      diffPress(double{is.deltaP.value_or(0)}),
      beta(double{is.beta.value_or(0)}),
      flowFactor(double{is.flowFactor} / double{is.timeFactor} * (is.fluid == 'L' ? 1.0 : 60.0)),
      diffPressFactor(double{is.deltaPFactor}),
      pipe(double{is.pipeDiameterIn}),
      fluid_(is.fluid),
      mass_(is.mass) {
    if (is.fluid == 'L') {
        gravity_ = is.mass ? 1.0 : double{is.sgb.value_or(0)};
        flowingSG_ = double{is.sgf.value_or(0)};
        return;
    }
    // Pressure and temperature are singles: close to a vacuum or to absolute zero their last digit
    // counts.
    const float psi = is.PressurePsi().value_or(0);
    pressure_ = double{is.absolute ? psi : psi + 14.7F};
    if (is.fluid == 'S') {
        density_ = double{is.density.value_or(0)} * double{is.densityFactor};
        return;
    }
    const float typed = is.tf.value_or(0);
    // cppcheck-suppress redundantAssignment ; takes the condition for an assignment
    const float degF = is.degC ? static_cast<float>(9.0 / 5.0 * double{typed} + 32.0) : typed;
    temperature_ = double{static_cast<float>(double{degF} + 459.67)};
    gravity_ = double{is.gasSGb.value_or(0)};
    const double entered = double{is.zf.value_or(0)} * double{is.zfDensityFactor};
    const double ideal = 2.698825 * pressure_ * gravity_ / temperature_;
    switch (is.correction) {
        case CompCorrection::Density:
            density_ = entered;
            zf_ = ideal / entered;
            break;
        case CompCorrection::Zf:
            zf_ = double{is.zf.value_or(0)};
            density_ = ideal / zf_;
            break;
        case CompCorrection::None:
            density_ = ideal;
            break;
    }
}

double ShownRun::Expansion(double b, double h) const {
    if (fluid_ == 'L') {
        return 1;
    }
    return 1 - (0.41 + 0.35 * std::pow(b, 4)) * (h / (27.707 * pressure_)) / 1.3;
}

double ShownRun::Flow(double b, double h) const {
    const double e = 0.6 / std::sqrt(1 - std::pow(b, 4)) * Expansion(b, h);
    const double area = b * b * pipe * pipe;
    if (fluid_ == 'L') {
        return 5.66646 * e * area * std::sqrt(h * flowingSG_) / gravity_;
    }
    const double massFlow = 358.927 * e * area * std::sqrt(h * density_);
    if (fluid_ == 'S') {
        return massFlow;
    }
    if (mass_) {
        return massFlow / (39.6619322 / 519.67);
    }
    return 218.468 * e * area * (519.67 / 14.7) *
           std::sqrt(h * pressure_ / (temperature_ * gravity_ * zf_));
}

bool ShownRun::IsTame() const {
    const double h = diffPress * diffPressFactor;
    const double q = flow * flowFactor;
    // Of a result that is not there nothing can be said; the inputs of the mode are never zero.
    const auto tame = [](double value) { return value == 0 || InRange(value); };
    if (!InRange(pipe) || !tame(h) || !tame(q) || !tame(h * pipe * beta) || !tame(h * pipe * q) ||
        !tame(q * pipe * beta) || !tame(q * gravity_) || !tame(beta * beta * beta * beta)) {
        return false;
    }
    if (fluid_ == 'L') {
        return InRange(gravity_) && InRange(flowingSG_) && tame(h * flowingSG_);
    }
    if (!InRange(pressure_)) {
        return false;
    }
    if (fluid_ == 'S' || mass_) {
        return InRange(density_) && tame(h * density_);
    }
    const double divisor = temperature_ * gravity_ * zf_;
    return InRange(temperature_) && InRange(gravity_) && InRange(zf_) && InRange(divisor) &&
           tame(h * pressure_) && tame(h * pressure_ / divisor);
}

}  // namespace tarvix
