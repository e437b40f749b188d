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

TEST(OrificeEquationTest, ConstantsToTheLastBit) {
    EXPECT_EQ(double{kDischargeCoefficient}, 0.6000000238418579) << "a single";
    EXPECT_EQ(kBaseAirDensityNumerator, 39.6619322);
    EXPECT_EQ(kBaseAirDensityDenominator, 519.67);
}

TEST(OrificeEquationTest, Messages) {
    EXPECT_EQ(kBetaTooLarge,
              "Flow rate is out of range (beta > 0.95)."
              " Flow rate too high for pipe size.");
    EXPECT_EQ(kBetaTooSmall, "Flow rate is out of range (beta <= 0.0).");
    EXPECT_EQ(kBetaNotBelowOne, "Beta Ratio must be less than 1.");
}

// E = 0.6 / sqrt(1 - beta^4), worked out by calculator and rounded to single.
TEST(OrificeEquationTest, CoefficientTimesApproach) {
    EXPECT_EQ(CoefficientTimesApproach(0.1F), 0.600030005F);
    EXPECT_EQ(CoefficientTimesApproach(0.3F), 0.602444887F);
    EXPECT_EQ(CoefficientTimesApproach(0.5F), 0.619677365F);
    EXPECT_EQ(CoefficientTimesApproach(0.67F), 0.671454906F);
    EXPECT_EQ(CoefficientTimesApproach(0.75F), 0.725691795F);
    EXPECT_EQ(CoefficientTimesApproach(0.95F), 1.39311373F);
    EXPECT_EQ(CoefficientTimesApproach(0.99F), 3.02260494F);
    EXPECT_EQ(CoefficientTimesApproach(0.0F), 0.6F);
    // At one and above.
    EXPECT_EQ(CoefficientTimesApproach(std::nextafter(1.0F, 0.0F)), 1228.80005F);
    EXPECT_EQ(CoefficientTimesApproach(1.0F), kInfinity);
    EXPECT_TRUE(std::isnan(CoefficientTimesApproach(std::nextafter(1.0F, 2.0F))));
    EXPECT_TRUE(std::isnan(CoefficientTimesApproach(kInfinity)));
}

TEST(OrificeEquationTest, BetaToTheFourthIsADouble) {
    EXPECT_EQ(BetaToTheFourth(0.5F), 0.0625);
    EXPECT_EQ(BetaToTheFourth(0.0F), 0.0);
    EXPECT_DOUBLE_EQ(BetaToTheFourth(0.7F), std::pow(double{0.7F}, 4.0));
    EXPECT_GT(BetaToTheFourth(1e20F), 1e79);
}

// Y = 1 - (0.41 + 0.35 beta^4) (h / (27.707 P)) / 1.3, likewise.
TEST(OrificeEquationTest, ExpansionFactor) {
    EXPECT_EQ(ExpansionFactor(0.5F, 100.0F, 114.7F), 0.989546478F);
    EXPECT_EQ(ExpansionFactor(0.5F, 100.0F, 14.7F), 0.918434262F);
    EXPECT_EQ(ExpansionFactor(0.7F, 50.0F, 14.7F), 0.953347206F);
    EXPECT_EQ(ExpansionFactor(0.2F, 1000.0F, 1000.0F), 0.988601625F);
    EXPECT_EQ(ExpansionFactor(0.6F, 1000.0F, 14.7F), 0.139987633F);
    EXPECT_EQ(ExpansionFactor(0.95F, 27.707F, 1.0F), 0.465325236F);
    EXPECT_EQ(ExpansionFactor(0.5F, 0.0F, 100.0F), 1.0F);
}

TEST(OrificeEquationTest, ExpansionFactorTurnsNegativeAtTooHighADifferentialPressure) {
    EXPECT_GT(ExpansionFactor(0.5F, 1220.0F, 14.7F), 0.0F);
    EXPECT_LT(ExpansionFactor(0.5F, 1230.0F, 14.7F), 0.0F);
    EXPECT_EQ(ExpansionFactor(0.5F, 100.0F, 0.0F), -kInfinity);
    EXPECT_TRUE(std::isnan(ExpansionFactor(0.5F, 0.0F, 0.0F)));
}

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
    ExpectValue(BetaOfIteration(0.61234F), 0.61234F);
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

TEST(OrificeEquationTest, ASolvedBetaUpTo95HundredthsIsAccepted) {
    ExpectValue(BetaOfIteration(0.95F), 0.95F);
    ExpectValue(BetaOfIteration(0.950004F), 0.95F);
    ExpectValue(BetaOfClosedForm(0.950004), 0.95F);
    ExpectMessage(BetaOfIteration(0.950006F), kBetaTooLarge);
    ExpectMessage(BetaOfClosedForm(0.950006), kBetaTooLarge);
    ExpectMessage(BetaOfClosedForm(1.0), kBetaTooLarge);
}

TEST(OrificeEquationTest, ASolvedBetaMustNotRoundToZero) {
    ExpectValue(BetaOfIteration(0.00001F), 0.00001F);
    ExpectValue(BetaOfIteration(0.0000051F), 0.00001F);
    ExpectMessage(BetaOfIteration(0.0000049F), kBetaTooSmall);
    ExpectMessage(BetaOfClosedForm(0.000005), kBetaTooSmall);
    ExpectMessage(BetaOfClosedForm(0.0), kBetaTooSmall);
    ExpectMessage(BetaOfIteration(-0.5F), kBetaTooSmall);
}

TEST(OrificeEquationTest, ASolvedBetaThatIsNoNumberGivesNothing) {
    ExpectNothing(BetaOfClosedForm(std::numeric_limits<double>::quiet_NaN()));
    ExpectNothing(BetaOfIteration(kNaN));
    ExpectMessage(BetaOfIteration(kInfinity), kBetaTooLarge);
}

TEST(OrificeEquationTest, AnOutcomeHasAValueOrAMessageOrNeither) {
    ExpectValue(Outcome::Value(2.5F), 2.5F);
    ExpectMessage(Outcome::Message("text"), "text");
    ExpectNothing(Outcome::Nothing());
    ExpectNothing(Outcome::Value(kInfinity));
    ExpectNothing(Outcome::Value(-kInfinity));
    ExpectNothing(Outcome::Value(kNaN));
}

}  // namespace
}  // namespace tarvix::testing
