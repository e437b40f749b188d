// What the equations of the three fluids share.
#include "calc/equation_terms.h"
#include "outcomes.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace tarvix {

namespace {

using namespace testing;

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

TEST(OutcomeTest, TakesNoStepsUnlessTold) {
    EXPECT_EQ(Outcome::Nothing().steps, 0);
    EXPECT_EQ(Outcome::Message("x").steps, 0);
    EXPECT_EQ(Outcome::Value(1).steps, 0);
}

TEST(OrificeEquationTest, TheDischargeCoefficientIsASingle) {
    EXPECT_EQ(double{kDischargeCoefficient}, 0.6000000238418579);
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
}

TEST(OrificeEquationTest, CoefficientTimesApproachAtAndAboveOne) {
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

// Flow limits -------------------------------------------------------------------------------------

TEST(OrificeEquationTest, FlowWithinItsLimits) {
    ExpectValue(FlowWithinLimits(142.28693F), 142.28693F);
    ExpectValue(FlowWithinLimits(999999999.0F), 999999999.0F);
    ExpectNothing(FlowWithinLimits(std::nextafter(999999999.0F, kInfinity)));
    ExpectValue(FlowWithinLimits(std::nextafter(999999999.0F, 0.0F)), 999999936.0F);
    ExpectValue(FlowWithinLimits(0.00001F), 0.00001F);
    ExpectNothing(FlowWithinLimits(std::nextafter(0.00001F, 0.0F)));
    ExpectNothing(FlowWithinLimits(0.0F));
    ExpectNothing(FlowWithinLimits(-1.0F));
    ExpectNothing(FlowWithinLimits(kInfinity));
    ExpectNothing(FlowWithinLimits(-kInfinity));
    ExpectNothing(FlowWithinLimits(kNaN));
}

// Solved beta -------------------------------------------------------------------------------------

TEST(OrificeEquationTest, ASolvedBetaHasFiveDecimals) {
    ExpectValue(SolvedBeta(0.61234F, 1), 0.61234F);
    ExpectValue(SolvedBeta(0.6123441F, 1), 0.61234F);
    ExpectValue(SolvedBeta(0.6123461F, 1), 0.61235F);
    ExpectValue(SolvedBeta(0.612344999), 0.61234F);
    ExpectValue(SolvedBeta(0.612345001), 0.61235F);
    // Halves to even, in the decimal form.
    ExpectValue(SolvedBeta(0.612345F, 1), 0.61234F);
    ExpectValue(SolvedBeta(0.612355F, 1), 0.61236F);
    ExpectValue(SolvedBeta(0.612345), 0.61234F);
    ExpectValue(SolvedBeta(0.612355), 0.61236F);
}

TEST(OrificeEquationTest, ASolvedBetaUpTo95HundredthsIsAccepted) {
    ExpectValue(SolvedBeta(0.95F, 1), 0.95F);
    ExpectValue(SolvedBeta(0.950004F, 1), 0.95F);
    ExpectValue(SolvedBeta(0.950004), 0.95F);
    ExpectMessage(SolvedBeta(0.950006F, 1), std::string(kBetaTooLarge));
    ExpectMessage(SolvedBeta(0.950006), std::string(kBetaTooLarge));
    ExpectMessage(SolvedBeta(1.0), std::string(kBetaTooLarge));
}

TEST(OrificeEquationTest, ASolvedBetaMustNotRoundToZero) {
    ExpectValue(SolvedBeta(0.00001F, 1), 0.00001F);
    ExpectValue(SolvedBeta(0.0000051F, 1), 0.00001F);
    ExpectMessage(SolvedBeta(0.0000049F, 1), std::string(kBetaTooSmall));
    ExpectMessage(SolvedBeta(0.000005), std::string(kBetaTooSmall));
    ExpectMessage(SolvedBeta(0.0), std::string(kBetaTooSmall));
    ExpectMessage(SolvedBeta(-0.5F, 1), std::string(kBetaTooSmall));
}

TEST(OrificeEquationTest, ASolvedBetaThatIsNoNumberGivesNothing) {
    ExpectNothing(SolvedBeta(std::numeric_limits<double>::quiet_NaN()));
    ExpectNothing(SolvedBeta(kNaN, 7));
    ExpectMessage(SolvedBeta(kInfinity, 7), std::string(kBetaTooLarge));
}

TEST(OrificeEquationTest, OutcomesKnowTheirSteps) {
    EXPECT_EQ(SolvedBeta(0.5F, 7).steps, 7);
    EXPECT_EQ(SolvedBeta(0.99F, 8).steps, 8);
    EXPECT_EQ(SolvedBeta(0.0F, 9).steps, 9);
    EXPECT_EQ(SolvedBeta(0.5).steps, 0);
    EXPECT_EQ(FlowWithinLimits(1.0F).steps, 0);
    EXPECT_EQ(Outcome::Nothing(3).steps, 3);
    EXPECT_EQ(Outcome::Value(kNaN, 4).steps, 4);
    EXPECT_EQ(Outcome::Message("m", 5).steps, 5);
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

}  // namespace tarvix
