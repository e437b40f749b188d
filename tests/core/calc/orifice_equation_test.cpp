// What the equations of the three fluids share.
#include "calc/equation_terms.h"
#include "outcomes.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace tarvix::testing {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

TEST(OrificeEquationTest, FlowWithinItsLimits) {
    ExpectValue(FlowWithinLimits(142.28693F), 142.28693F);
    ExpectValue(FlowWithinLimits(999999999.0F), 999999999.0F);
    ExpectValue(FlowWithinLimits(std::nextafter(999999999.0F, 0.0F)), 999999936.0F);
    ExpectValue(FlowWithinLimits(0.00001F), 0.00001F);
    for (const float flow : {std::nextafter(999999999.0F, kInfinity), 0.0F, -1.0F, kInfinity,
                             std::nextafter(0.00001F, 0.0F), -kInfinity, kNaN}) {
        SCOPED_TRACE(flow);
        ExpectNothing(FlowWithinLimits(flow));
    }
}

TEST(OrificeEquationTest, ASolvedBetaHasFiveDecimals) {
    ExpectValue(BetaOfIteration(0.6123441F), 0.61234F);
    ExpectValue(BetaOfIteration(0.6123461F), 0.61235F);
    ExpectValue(BetaOfClosedForm(0.612344999), 0.61234F);
    ExpectValue(BetaOfClosedForm(0.612345001), 0.61235F);
    // Halves to even, in the decimal form.
    ExpectValue(BetaOfIteration(0.612345F), 0.61234F);
    ExpectValue(BetaOfIteration(0.612355F), 0.61236F);
    ExpectValue(BetaOfClosedForm(0.612345), 0.61234F);
    ExpectValue(BetaOfClosedForm(0.612355), 0.61236F);
}

TEST(OrificeEquationTest, ASolvedBetaLiesAboveZeroAndUpTo95Hundredths) {
    ExpectValue(BetaOfIteration(0.950004F), 0.95F);
    ExpectValue(BetaOfClosedForm(0.950004), 0.95F);
    ExpectValue(BetaOfIteration(0.0000051F), 0.00001F);
    for (const float beyond : {0.950006F, 1.0F, kInfinity}) {
        ExpectMessage(BetaOfIteration(beyond), kBetaTooLarge);
        ExpectMessage(BetaOfClosedForm(double{beyond}), kBetaTooLarge);
    }
    for (const float beyond : {0.0000049F, 0.0F, -0.5F}) {
        ExpectMessage(BetaOfIteration(beyond), kBetaTooSmall);
        ExpectMessage(BetaOfClosedForm(double{beyond}), kBetaTooSmall);
    }
    ExpectMessage(BetaOfClosedForm(0.000005), kBetaTooSmall);
    ExpectNothing(BetaOfIteration(kNaN));
    ExpectNothing(BetaOfClosedForm(double{kNaN}));
}

TEST(OrificeEquationTest, AnInfinityOrNaNIsNoValue) {
    for (const float value : {kInfinity, -kInfinity, kNaN}) {
        ExpectNothing(Outcome::Value(value));
    }
}

}  // namespace
}  // namespace tarvix::testing
