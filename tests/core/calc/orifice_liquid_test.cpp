// The liquid equation.
#include "calc/orifice_liquid.h"

#include "outcomes.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace tarvix {

namespace {

using namespace testing;

constexpr float kMax = std::numeric_limits<float>::max();
const LiquidProperties kWater{1.0F, 1.0F};

// A 4-inch pipe with a beta of 0.5 at 100 inches of water.
MeteringRun FourInchRun(SolveFor solveFor) {
    return {solveFor, 4.026F, 142.286926F, 100.0F, 0.5F};
}

Outcome FlowOf(const MeteringRun& changed, const LiquidProperties& liquid = kWater) {
    MeteringRun run = changed;
    run.solveFor = SolveFor::FlowRate;
    return SolveLiquid(run, liquid);
}
Outcome DiffPressureOf(const MeteringRun& changed, const LiquidProperties& liquid = kWater) {
    MeteringRun run = changed;
    run.solveFor = SolveFor::DiffPressure;
    return SolveLiquid(run, liquid);
}
Outcome BetaOf(const MeteringRun& changed, const LiquidProperties& liquid = kWater) {
    MeteringRun run = changed;
    run.solveFor = SolveFor::Beta;
    return SolveLiquid(run, liquid);
}

// E = 0.619677, Q = 0.619677 x 5.66646 x 0.25 x 16.2087 x 10 = 142.29 gallons a minute.
TEST(OrificeLiquidTest, FourInchesHalfBetaAndHundredInchesOfWater) {
    EXPECT_NEAR(double{FlowOf(FourInchRun(SolveFor::FlowRate)).value.value_or(0)}, 142.29, 0.005);
}

TEST(OrificeLiquidTest, TheShownFlowGivesABetaOf50002) {
    MeteringRun run = FourInchRun(SolveFor::Beta);
    run.flow = 142.3F;
    ExpectValue(BetaOf(run), 0.50002F);
}

// Limits ------------------------------------------------------------------------------------------

TEST(OrificeLiquidTest, AFlowOutOfItsLimitsGivesNothing) {
    MeteringRun run = FourInchRun(SolveFor::FlowRate);
    run.pipeDiameterIn = 41.25F;
    run.beta = 0.9F;
    run.diffPressInH2O = 1e9F;
    EXPECT_TRUE(FlowOf(run).value.has_value());
    run.diffPressInH2O = 1e11F;
    ExpectNothing(FlowOf(run));

    run.pipeDiameterIn = 0.252F;
    run.beta = 0.01F;
    run.diffPressInH2O = 0.5F;
    EXPECT_TRUE(FlowOf(run).value.has_value());
    run.diffPressInH2O = 0.1F;
    ExpectNothing(FlowOf(run));
}

// The flow that leads to one million inches of water, and its neighbours.
TEST(OrificeLiquidTest, ADifferentialPressureOfOneMillionIsTheLargest) {
    MeteringRun run{SolveFor::DiffPressure, 2.067F, 3750.57959F, 0.0F, 0.5F};
    ExpectValue(DiffPressureOf(run), 1000000.0F);
    run.flow = std::nextafter(3750.57959F, 0.0F);
    ExpectValue(DiffPressureOf(run), 999999.875F);
    run.flow = std::nextafter(3750.57959F, kMax);
    ExpectNothing(DiffPressureOf(run));
}

TEST(OrificeLiquidTest, ABetaOf95HundredthsIsTheLargest) {
    MeteringRun run = FourInchRun(SolveFor::Beta);
    run.flow = 1154.81628F;  // beta 0.950004
    ExpectValue(BetaOf(run), 0.95F);
    run.flow = 1154.84253F;  // beta 0.950006
    ExpectMessage(BetaOf(run),
                  "Flow rate is out of range (beta > 0.95). Flow rate too high for pipe size.");
    run.flow = 8702.36621F;  // beta 0.999
    ExpectMessage(BetaOf(run),
                  "Flow rate is out of range (beta > 0.95). Flow rate too high for pipe size.");
    run.flow = 1e9F;
    ExpectMessage(BetaOf(run),
                  "Flow rate is out of range (beta > 0.95). Flow rate too high for pipe size.");
}

TEST(OrificeLiquidTest, ABetaThatRoundsToZeroIsTooSmall) {
    MeteringRun run = FourInchRun(SolveFor::Beta);
    run.flow = 1.4333458e-8F;  // beta 0.0000051
    ExpectValue(BetaOf(run), 0.00001F);
    run.flow = 1.32313085e-8F;  // beta 0.0000049
    ExpectMessage(BetaOf(run), "Flow rate is out of range (beta <= 0.0).");
}

// No finite result --------------------------------------------------------------------------------

TEST(OrificeLiquidTest, WithoutAFiniteResultThereIsNothing) {
    const MeteringRun run = FourInchRun(SolveFor::FlowRate);
    // A gravity that is not there counts as zero.
    ExpectNothing(FlowOf(run, {0.0F, 1.0F}));
    ExpectNothing(FlowOf(run, {1.0F, 0.0F}));
    ExpectNothing(DiffPressureOf(run, {0.0F, 1.0F}));
    ExpectNothing(BetaOf(run, {0.0F, 1.0F}));
    // Overflow of a single.
    ExpectNothing(FlowOf(run, {kMax, 1.0F}));
    ExpectNothing(DiffPressureOf(run, {1.0F, kMax}));
    ExpectNothing(BetaOf(run, {1.0F, kMax}));
    // Not a number.
    ExpectNothing(FlowOf(run, {-1.0F, 1.0F}));
    ExpectNothing(BetaOf(run, {-1.0F, 1.0F}));
}

}  // namespace

}  // namespace tarvix
