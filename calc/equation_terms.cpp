#include "calc/equation_terms.h"

#include "numbers/arithmetic.h"
#include "numbers/decimal_form.h"

namespace tarvix {

namespace {

constexpr float kMaxFlow = 999999999.0F;
constexpr float kMinFlow = 0.00001F;
constexpr float kMaxBeta = 0.95F;
constexpr float kMinBeta = 0.0F;
constexpr int kBetaDecimals = 5;

Outcome BetaWithinLimits(float roundedBeta, int steps) {
    if (roundedBeta > kMaxBeta) {
        return Outcome::Message(kBetaTooLarge, steps);
    }
    if (roundedBeta <= kMinBeta) {
        return Outcome::Message(kBetaTooSmall, steps);
    }
    return Outcome::Value(roundedBeta, steps);
}

}  // namespace

Outcome FlowWithinLimits(float flow) {
    return flow > kMaxFlow || flow < kMinFlow ? Outcome::Nothing() : Outcome::Value(flow);
}

Outcome SolvedBeta(float iterated, int steps) {
    return BetaWithinLimits(static_cast<float>(Round(iterated, kBetaDecimals)), steps);
}

Outcome SolvedBeta(double closedForm) {
    return BetaWithinLimits(static_cast<float>(Round(closedForm, kBetaDecimals)), 0);
}

}  // namespace tarvix
