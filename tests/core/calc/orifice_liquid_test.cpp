// The liquid equation.
#include "calc/orifice_liquid.h"

#include "named_row.h"
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

struct LiquidRow : NamedRow {
    float diameter, beta, diffPressure, flowingSG, baseSG;
    float flow;              // in single precision, each stored quantity rounded
    double exactFlow;        // in double precision throughout
    float backDiffPressure;  // of `flow`
    float backBeta;
};

class LiquidRun : public ::testing::TestWithParam<LiquidRow> {
  protected:
    const LiquidRow& row = GetParam();
    MeteringRun run{SolveFor::Beta, row.diameter, row.flow, row.diffPressure, row.beta};
    LiquidProperties liquid{row.flowingSG, row.baseSG};
};

TEST_P(LiquidRun, GivesItsFlow) {
    const Outcome outcome = FlowOf(run, liquid);
    ExpectValue(outcome, row.flow);
    EXPECT_NEAR(double{outcome.value.value_or(0)}, row.exactFlow, row.exactFlow * 2e-7);
}

TEST_P(LiquidRun, GivesItsDifferentialPressureBack) {
    const Outcome outcome = DiffPressureOf(run, liquid);
    ExpectValue(outcome, row.backDiffPressure);
    EXPECT_NEAR(double{outcome.value.value_or(0)}, double{row.diffPressure},
                double{row.diffPressure} * 5e-7);
}

TEST_P(LiquidRun, GivesItsBetaBack) {
    const Outcome outcome = BetaOf(run, liquid);
    ExpectValue(outcome, row.backBeta);
    EXPECT_NEAR(double{outcome.value.value_or(0)}, double{row.beta}, 1e-5);
}

// clang-format off
const LiquidRow kLiquidRows[] = {
    //                  D       beta   h        Gf    Gb      flow           exact flow       h back       beta back
    {"FourInchWater",  4.026F, 0.5F,  100.0F,  1.0F,  1.0F,  142.286926F,   142.2869252,    99.9999924F,  0.5F},
    {"TwoInchOil",     2.067F, 0.65F, 50.25F,  0.82F, 0.85F, 51.1357422F,   51.13574132,    50.25F,       0.65F},
    {"HalfInchBrine",  0.622F, 0.2F,  1.5F,    1.2F,  1.18F, 0.0598695278F, 0.05986952454,  1.5F,         0.2F},
    {"FortyTwoInch",   41.25F, 0.75F, 400.0F,  0.7F,  0.72F, 91470.4844F,   91470.48186,    400.0F,       0.75F},
    {"SmallBeta",      10.02F, 0.02F, 9000.0F, 1.0F,  1.0F,  12.9532824F,   12.95328204,    8999.99902F,  0.02F},
    {"LargeBeta",      7.981F, 0.95F, 25.0F,   0.5F,  0.6F,  2674.01562F,   2674.015644,    24.9999981F,  0.95F},
    {"LightOverHeavy", 6.065F, 0.4F,  250.0F,  0.6F,  1.4F,  177.334686F,   177.3346755,    250.0F,       0.4F},
    {"TinyPressure",   1.049F, 0.3F,  0.0004F, 1.0F,  1.0F,  0.00676165009F, 0.006761649644, 0.000400000019F, 0.3F},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(OrificeLiquid, LiquidRun, ::testing::ValuesIn(kLiquidRows), kRowName);

// E = 0.619677, Q = 0.619677 x 5.66646 x 0.25 x 16.2087 x 10 = 142.29 gallons a minute.
TEST(OrificeLiquidTest, FourInchesHalfBetaAndHundredInchesOfWater) {
    EXPECT_NEAR(double{FlowOf(FourInchRun(SolveFor::FlowRate)).value.value_or(0)}, 142.29, 0.005);
}

TEST(OrificeLiquidTest, TheShownFlowGivesABetaOf50002) {
    MeteringRun run = FourInchRun(SolveFor::Beta);
    run.flow = 142.3F;
    ExpectValue(BetaOf(run), 0.50002F);
}

TEST(OrificeLiquidTest, TheSolvedQuantityIsNotRead) {
    MeteringRun run = FourInchRun(SolveFor::FlowRate);
    run.flow = 1e30F;
    ExpectValue(FlowOf(run), 142.286926F);
    run = FourInchRun(SolveFor::DiffPressure);
    run.diffPressInH2O = 0.0F;
    ExpectValue(DiffPressureOf(run), 99.9999924F);
    run = FourInchRun(SolveFor::Beta);
    run.beta = 7.0F;
    ExpectValue(BetaOf(run), 0.5F);
}

TEST(OrificeLiquidTest, AZeroInAFactorGivesNothing) {
    for (float MeteringRun::*factor :
         {&MeteringRun::beta, &MeteringRun::pipeDiameterIn, &MeteringRun::diffPressInH2O}) {
        MeteringRun run = FourInchRun(SolveFor::FlowRate);
        run.*factor = 0.0F;
        ExpectNothing(FlowOf(run));
    }
    for (float MeteringRun::*factor :
         {&MeteringRun::beta, &MeteringRun::pipeDiameterIn, &MeteringRun::flow}) {
        MeteringRun run = FourInchRun(SolveFor::DiffPressure);
        run.*factor = 0.0F;
        ExpectNothing(DiffPressureOf(run));
    }
    for (float MeteringRun::*factor :
         {&MeteringRun::pipeDiameterIn, &MeteringRun::flow, &MeteringRun::diffPressInH2O}) {
        MeteringRun run = FourInchRun(SolveFor::Beta);
        run.*factor = 0.0F;
        ExpectNothing(BetaOf(run));
    }
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

// A beta of 1 or more -----------------------------------------------------------------------------

TEST(OrificeLiquidTest, ABetaOfOneOrMoreIsReported) {
    for (const float beta : {1.0F, std::nextafter(1.0F, 2.0F), 2.0F, 1e30F}) {
        MeteringRun run = FourInchRun(SolveFor::FlowRate);
        run.beta = beta;
        ExpectMessage(FlowOf(run), "Beta Ratio must be less than 1.");
        ExpectMessage(DiffPressureOf(run), "Beta Ratio must be less than 1.");
    }
    MeteringRun run = FourInchRun(SolveFor::FlowRate);
    run.beta = std::nextafter(1.0F, 0.0F);
    EXPECT_TRUE(FlowOf(run).value.has_value());
    EXPECT_TRUE(DiffPressureOf(run).value.has_value());
}

TEST(OrificeLiquidTest, AZeroBesideABetaOfOneIsStillSilent) {
    MeteringRun run = FourInchRun(SolveFor::FlowRate);
    run.beta = 1.0F;
    run.pipeDiameterIn = 0.0F;
    ExpectNothing(FlowOf(run));
    ExpectNothing(DiffPressureOf(run));
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
