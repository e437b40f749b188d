#include "calc/equation_terms.h"

#include "numbers/arithmetic.h"
#include "numbers/decimal_form.h"

namespace tarvix {

namespace {

Outcome BetaWithinLimits(float roundedBeta) {
    if (roundedBeta > kMaxBeta) {
        return Outcome::Message(kBetaTooLarge);
    }
    if (roundedBeta <= kMinBeta) {
        return Outcome::Message(kBetaTooSmall);
    }
    return Outcome::Value(roundedBeta);
}

}  // namespace

Outcome FlowWithinLimits(float flow) {
    return flow > kMaxFlow || flow < kMinFlow ? Outcome::Nothing() : Outcome::Value(flow);
}

Outcome BetaOfClosedForm(double beta) {
    return BetaWithinLimits(static_cast<float>(Round(beta, kBetaDecimals)));
}

Outcome BetaOfIteration(float beta) {
    return BetaWithinLimits(static_cast<float>(Round(beta, kBetaDecimals)));
}

}  // namespace tarvix
