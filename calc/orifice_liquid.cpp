#include "calc/orifice_liquid.h"

#include <cmath>

namespace tarvix {

namespace {

Outcome LiquidFlow(const MeteringRun& run, const LiquidProperties& liquid) {
    const float beta = run.beta;
    const float d = run.pipeDiameterIn;
    const float h = run.diffPressInH2O;
    if (beta * d * h == 0) {
        return Outcome::Nothing();
    }
    if (beta >= 1) {
        return Outcome::Message(kBetaNotBelowOne);
    }
    const float e = CoefficientTimesApproach(beta);
    const auto q = static_cast<float>(
        double{e} * kLiquidConstant * double{beta} * double{beta} * double{d} * double{d} *
        std::sqrt(double{h * liquid.flowingSG}) / double{liquid.baseSG});
    return FlowWithinLimits(q);
}

Outcome LiquidDiffPressure(const MeteringRun& run, const LiquidProperties& liquid) {
    const float beta = run.beta;
    const float d = run.pipeDiameterIn;
    const float q = run.flow;
    if (beta * q * d == 0) {
        return Outcome::Nothing();
    }
    if (beta >= 1) {
        return Outcome::Message(kBetaNotBelowOne);
    }
    const float e = CoefficientTimesApproach(beta);
    const double root = double{liquid.baseSG * q} / (double{e} * kLiquidConstant * double{beta} *
                                                     double{beta} * double{d} * double{d});
    const auto h = static_cast<float>(root * root / double{liquid.flowingSG});
    return double{h} > kMaxDiffPressInH2O ? Outcome::Nothing() : Outcome::Value(h);
}

Outcome LiquidBeta(const MeteringRun& run, const LiquidProperties& liquid) {
    const float d = run.pipeDiameterIn;
    const float h = run.diffPressInH2O;
    const float q = run.flow;
    if (d * q * h == 0) {
        return Outcome::Nothing();
    }
    // A = Cd beta^2 / sqrt(1 - beta^4), solved for beta.
    const auto a =
        static_cast<float>(double{liquid.baseSG * q} / (double{d} * kLiquidConstant * double{d} *
                                                        std::sqrt(double{h * liquid.flowingSG})));
    const double aSquared = double{a} * double{a};
    return BetaOfClosedForm(
        std::pow(aSquared / (aSquared + double{kDischargeCoefficientSquared}), 0.25));
}

}  // namespace

Outcome SolveLiquid(const MeteringRun& run, const LiquidProperties& liquid) {
    switch (run.solveFor) {
        case SolveFor::FlowRate:
            return LiquidFlow(run, liquid);
        case SolveFor::DiffPressure:
            return LiquidDiffPressure(run, liquid);
        case SolveFor::Beta:
            break;
    }
    return LiquidBeta(run, liquid);
}

}  // namespace tarvix
