// The steam equation.
#include "calc/orifice_steam.h"

#include "calc/gas_runs.h"
#include "outcomes.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace tarvix {

namespace {

using namespace testing;

constexpr float kMax = std::numeric_limits<float>::max();

constexpr const char* kSteamDpTooHigh =
    "Unable to calculate differential pressure for conditions (Flow rate too high).";
constexpr const char* kSteamDpUnresolved =
    "Unable to resolve Differential Pressure for conditions.";
constexpr const char* kSteamBetaTooHigh =
    "Unable to calculate beta for conditions (Flow rate too high).";
constexpr const char* kSteamBetaUnresolved = "Unable to resolve Beta Ratio for conditions.";

const SteamProperties kSaturated{114.7F, 0.25704F};  // at 100 psi gauge

// In a 4-inch pipe.
Outcome SteamFlowOf(const SteamProperties& steam, float beta, float h) {
    return SolveSteam({SolveFor::FlowRate, 4.026F, 0.0F, h, beta}, steam);
}
Outcome SteamDiffPressureOf(const SteamProperties& steam, float flow, float beta) {
    return SolveSteam({SolveFor::DiffPressure, 4.026F, flow, 0.0F, beta}, steam);
}
Outcome SteamBetaOf(const SteamProperties& steam, float flow, float h) {
    return SolveSteam({SolveFor::Beta, 4.026F, flow, h, 0.0F}, steam);
}

// 100 psi gauge are 114.7 psia in the expansion factor; the density is that of the field.
TEST(OrificeSteamTest, PressureAndDensityEnterApart) {
    const auto flow = SteamFlowOf(kSaturated, 0.5F, 100.0F).value;
    ASSERT_TRUE(flow.has_value());
    EXPECT_NE(SteamFlowOf({100.0F, 0.25704F}, 0.5F, 100.0F).value, flow);
    EXPECT_NEAR(double{SteamFlowOf({114.7F, 4 * 0.25704F}, 0.5F, 100.0F).value.value_or(0)},
                2 * double{*flow}, 0.001);
}

TEST(OrificeSteamTest, AFlowOutOfItsLimitsGivesNothing) {
    EXPECT_TRUE(SteamFlowOf({1e7F, 11.0F}, 0.5F, 1e8F).value.has_value());
    ExpectNothing(SteamFlowOf({1e12F, 11.0F}, 0.9F, 1e12F));
    EXPECT_TRUE(SteamFlowOf(kSaturated, 0.01F, 1e-5F).value.has_value());
    ExpectNothing(SteamFlowOf(kSaturated, 0.01F, 1e-12F));
    ExpectNothing(SteamFlowOf({0.5F, 0.25704F}, 0.5F, 100.0F));  // Y is negative
}

// The iteration -----------------------------------------------------------------------------------

TEST(OrificeSteamTest, TheIterationsStartAtFiftyInchesOfWaterAndHalfBeta) {
    const Outcome h = SteamDiffPressureOf(kSaturated, 3214.16943F, 0.5F);
    ExpectValue(h, 50.0F);
    const Outcome beta = SteamBetaOf(kSaturated, 3214.16943F, 50.0F);
    ExpectValue(beta, 0.5F);
}

// Two flows on whose way s is 0.99999988 and 1.0000001, the singles beside the band of the
// differential pressure, for two steps each; and two at which s of the beta iteration is 0.999999
// (outside the band also in double precision) and 1.000001 (a little less as a single, and inside).
TEST(OrificeSteamTest, TheBandsAreComparedInDoublePrecision) {
    const Outcome hAbove = SteamDiffPressureOf(kSaturated, 7670.2568359375F, 0.5F);
    ExpectValue(hAbove, 300.3360595703125F);
    const Outcome hBelow = SteamDiffPressureOf(kSaturated, 924.13525390625F, 0.5F);
    ExpectValue(hBelow, 4.093772888183594F);

    ExpectValue(SteamBetaOf(kSaturated, 7729.76513671875F, 50.0F), 0.72655F);
    ExpectValue(SteamBetaOf(kSaturated, 4611.64208984375F, 50.0F), 0.58946F);
}

// The differential pressure comes ten times nearer than that of the gas equation.
TEST(OrificeSteamTest, TheNarrowBandEndsCloserThanThatOfGas) {
    GasProperties gas = Air(kMass);
    gas.correction = kDensity;
    gas.operDensity = kSaturated.density;
    const float lbPerHour = 3000.0F;
    const auto airEquivalent = static_cast<float>(
        double{lbPerHour} / (kBaseAirDensityNumerator / kBaseAirDensityDenominator));
    const Outcome steam = SteamDiffPressureOf(kSaturated, lbPerHour, 0.5F);
    const Outcome sameAsGas = DiffPressureOf(gas, airEquivalent, 0.5F);
    ASSERT_TRUE(steam.value && sameAsGas.value);
    EXPECT_NEAR(double{*steam.value}, double{*sameAsGas.value}, 5e-4);
}

TEST(OrificeSteamTest, AResultOfTheHundredthStepIsAccepted) {
    const Outcome h = SteamDiffPressureOf(kSaturated, 31320.947265625F, 0.7F);
    ExpectValue(h, 1451.4759521484375F);
    const Outcome beta = SteamBetaOf(kSaturated, 22972.4296875F, 200.0F);
    ExpectValue(beta, 0.82856F);
}

TEST(OrificeSteamTest, AfterAHundredStepsTheIterationGivesUp) {
    const Outcome h = SteamDiffPressureOf(kSaturated, 31527.25390625F, 0.7F);
    ExpectMessage(h, kSteamDpUnresolved);
    const Outcome beta = SteamBetaOf(kSaturated, 17174.03125F, 100.0F);
    ExpectMessage(beta, kSteamBetaUnresolved);
}

TEST(OrificeSteamTest, ANegativeExpansionFactorIsTooHighAFlow) {
    const Outcome atOnce = SteamDiffPressureOf({0.5F, 0.25704F}, 10.0F, 0.5F);
    ExpectMessage(atOnce, kSteamDpTooHigh);
    const Outcome later = SteamDiffPressureOf(kSaturated, 19919.4296875F, 0.5F);
    ExpectMessage(later, kSteamDpTooHigh);
    const Outcome beta = SteamBetaOf({14.7F, 0.25704F}, 100000.0F, 1300.0F);
    ExpectMessage(beta, kSteamBetaTooHigh);
}

// Gas says so; steam is silent.
TEST(OrificeSteamTest, ABetaThatLeavesItsRangeEndsWithoutAMessage) {
    ExpectNothing(SteamBetaOf(kSaturated, 26247.59765625F, 200.0F));  // after the first step
    ExpectNothing(SteamBetaOf(kSaturated, 25000.0F, 200.0F));         // after the third
    // R underflows, and beta falls to 0.
    ExpectNothing(SolveSteam({SolveFor::Beta, 1e4F, 1e-38F, 1e10F, 0.0F}, {1e20F, 0.25704F}));
}

TEST(OrificeSteamTest, ASolvedBetaThatRoundsToZeroIsReported) {
    ExpectMessage(SteamBetaOf(kSaturated, 1e-7F, 100.0F),
                  "Flow rate is out of range (beta <= 0.0).");
    ExpectValue(SteamBetaOf(kSaturated, 1e-5F, 100.0F), 0.00002F);
}

// No finite number --------------------------------------------------------------------------------

TEST(OrificeSteamTest, WithoutPressureNothingComesOut) {
    const SteamProperties noPressure{0.0F, 0.25704F};
    ExpectNothing(SteamFlowOf(noPressure, 0.5F, 100.0F));
    ExpectMessage(SteamDiffPressureOf(noPressure, 1000.0F, 0.5F), kSteamDpUnresolved);
    ExpectMessage(SteamBetaOf(noPressure, 1000.0F, 100.0F), kSteamBetaUnresolved);
}

TEST(OrificeSteamTest, WithoutDensityNothingComesOut) {
    const SteamProperties noDensity{114.7F, 0.0F};
    ExpectNothing(SteamFlowOf(noDensity, 0.5F, 100.0F));
    ExpectMessage(SteamDiffPressureOf(noDensity, 1000.0F, 0.5F), kSteamDpUnresolved);
    ExpectMessage(SteamBetaOf(noDensity, 1000.0F, 100.0F), kSteamBetaUnresolved);
}

TEST(OrificeSteamTest, OverflowOfASingleGivesNothing) {
    ExpectNothing(SteamFlowOf({114.7F, kMax}, 0.5F, 100.0F));
    EXPECT_EQ(SteamBetaOf({114.7F, kMax}, 1000.0F, 100.0F).value, std::nullopt);
}

// A step that lands on a beta of exactly 1 meets an infinite velocity of approach.
TEST(OrificeSteamTest, ABetaOfExactlyOneOnTheWayIsUnresolved) {
    // Of the flows around the one that leads there from 0.5 in one step, those that hit it.
    int unresolved = 0;
    int silent = 0;
    float flow = 25308.0F;
    while (flow < 25308.1F) {
        flow = std::nextafter(flow, kMax);
        const Outcome outcome = SteamBetaOf(kSaturated, flow, 200.0F);
        ASSERT_EQ(outcome.value, std::nullopt);
        if (outcome.message == kSteamBetaUnresolved) {
            ++unresolved;
        } else if (outcome.message.empty()) {
            ++silent;
        }
    }
    EXPECT_GT(unresolved, 0);
    EXPECT_GT(silent, 0);
}

}  // namespace

}  // namespace tarvix
