// The two iterations of the gas equation, and what gives no finite number.
#include "calc/gas_runs.h"
#include "outcomes.h"

#include <gtest/gtest.h>
#include <limits>

namespace tarvix {

namespace {

using namespace testing;

constexpr float kMax = std::numeric_limits<float>::max();

constexpr const char* kDpTooHigh =
    "Unable to calculate differential pressure for conditions (Flow rate too high).";
constexpr const char* kDpUnresolved = "Unable to resolve differential pressure for conditions.";
constexpr const char* kBetaTooHigh =
    "Unable to calculate beta for conditions (Flow rate too high).";
constexpr const char* kBetaUnresolved = "Unable to resolve beta for conditions.";
constexpr const char* kOver95 =
    "Flow rate is out of range (beta > 0.95). Flow rate too high for pipe size.";
constexpr const char* kNotAboveZero = "Flow rate is out of range (beta <= 0.0).";

// The iteration -----------------------------------------------------------------------------------

TEST(OrificeGasTest, TheIterationsStartAtFiftyInchesOfWaterAndHalfBeta) {
    const struct {
        FlowKind kind;
        float flow;  // at 50 inches of water and a beta of 0.5
    } rows[] = {{kVolume, 64088.2344F}, {kMass, 64110.2461F}};
    for (const auto& row : rows) {
        const Outcome h = DiffPressureOf(Air(row.kind), row.flow, 0.5F);
        ExpectValue(h, 50.0F);
        const Outcome beta = BetaOf(Air(row.kind), row.flow, 50.0F);
        ExpectValue(beta, 0.5F);
    }
}

// At this flow the first step's s is 2 to the last bit, so that beta becomes 1.
TEST(OrificeGasTest, ABetaOfExactlyOneOnTheWayIsTooLarge) {
    const Outcome beta = BetaOf(Air(), 360632.90625F, 100.0F);
    ExpectMessage(beta, kOver95);
}

// Flows at which a step's s is the very bound 0.999999 or 1.000001 of the band, in single
// precision; both bounds lie outside, so that one step more is made.
TEST(OrificeGasTest, BothBoundsOfTheBandAreExclusive) {
    const Outcome hUpper = DiffPressureOf(Air(), 133378.890625F, 0.4F);
    ExpectValue(hUpper, 619.09814453125F);
    const Outcome hLower = DiffPressureOf(Air(), 22726.912109375F, 0.6F);
    ExpectValue(hLower, 2.7876172065734863F);
    ExpectValue(BetaOf(Air(), 32108.703125F, 100.0F), 0.30253F);
    ExpectValue(BetaOf(Air(), 183516.265625F, 50.0F), 0.77135F);
}

TEST(OrificeGasTest, AResultOfTheHundredthStepIsAccepted) {
    const Outcome h = DiffPressureOf(Air(), 659775.9375F, 0.7F);
    ExpectValue(h, 1792.56494140625F);
    const Outcome beta = BetaOf(Air(), 232353.359375F, 50.0F);
    ExpectValue(beta, 0.82706F);
}

TEST(OrificeGasTest, AfterAHundredStepsTheIterationGivesUp) {
    const Outcome h = DiffPressureOf(Air(), 661399.25F, 0.7F);
    ExpectMessage(h, kDpUnresolved);
    const Outcome beta = BetaOf(Air(), 240926.546875F, 50.0F);
    ExpectMessage(beta, kBetaUnresolved);
}

TEST(OrificeGasTest, ANegativeExpansionFactorAtTheStartIsTooHighAFlow) {
    GasProperties gas = Air();
    gas.pressurePsia = 0.5F;  // zero expansion factor at 44 inches of water
    const Outcome h = DiffPressureOf(gas, 10.0F, 0.5F);
    ExpectMessage(h, kDpTooHigh);
    gas.pressurePsia = 14.7F;
    const Outcome beta = BetaOf(gas, 100000.0F, 1300.0F);
    ExpectMessage(beta, kBetaTooHigh);
    for (const FlowKind kind : {kVolume, kMass}) {
        gas.flowKind = kind;
        ExpectMessage(BetaOf(gas, 1.0F, 1300.0F), kBetaTooHigh);
    }
}

TEST(OrificeGasTest, AFlowAboveWhatThePipeCarriesIsTooHigh) {
    const Outcome h = DiffPressureOf(Air(), 446170.59375F, 0.5F);
    ExpectMessage(h, kDpTooHigh);
    // The expansion factor may turn negative on the last step too.
    const Outcome last = DiffPressureOf(Air(), 705420.3125F, 0.7F);
    ExpectMessage(last, kDpTooHigh);
}

TEST(OrificeGasTest, ABetaThatReachesOneOnTheWayIsOutOfRange) {
    const Outcome atOnce = BetaOf(Air(), 366245.375F, 100.0F);
    ExpectMessage(atOnce, kOver95);
    const Outcome later = BetaOf(Air(), 360000.0F, 100.0F);
    ExpectMessage(later, kOver95);
}

TEST(OrificeGasTest, ABetaThatFallsToZeroIsOutOfRange) {
    const Outcome rounded = BetaOf(Air(), 1e-7F, 100.0F);
    ExpectMessage(rounded, kNotAboveZero);
    ExpectValue(BetaOf(Air(), 1e-5F, 100.0F), 0.00001F);
    // R underflows to 0 at once.
    MeteringRun run{SolveFor::Beta, 1e4F, 1e-38F, 1e10F, 0.0F};
    GasProperties gas = Air();
    gas.pressurePsia = 1e20F;
    const Outcome atOnce = SolveGas(run, gas);
    ExpectMessage(atOnce, kNotAboveZero);
}

// No finite number --------------------------------------------------------------------------------

TEST(OrificeGasTest, BelowAbsoluteZeroNothingComesOut) {
    for (const FlowKind kind : {kVolume, kMass}) {
        GasProperties gas = Air(kind);
        gas.flowingTempR = -10.0F;
        ExpectNothing(FlowOf(gas, 0.5F, 100.0F));
        const Outcome h = DiffPressureOf(gas, 1000.0F, 0.5F);
        ExpectMessage(h, kDpUnresolved);
        const Outcome beta = BetaOf(gas, 1000.0F, 100.0F);
        ExpectMessage(beta, kBetaUnresolved);
    }
}

TEST(OrificeGasTest, AtAbsoluteZeroNoFlowAndNoDifferentialPressureComeOut) {
    for (const FlowKind kind : {kVolume, kMass}) {
        GasProperties gas = Air(kind);
        gas.flowingTempR = 0.0F;
        ExpectNothing(FlowOf(gas, 0.5F, 100.0F));
        ExpectMessage(DiffPressureOf(gas, 1000.0F, 0.5F), kDpUnresolved);
        EXPECT_EQ(BetaOf(gas, 1000.0F, 100.0F).value, std::nullopt);
    }
}

TEST(OrificeGasTest, WithoutPressureNothingComesOut) {
    for (const FlowKind kind : {kVolume, kMass}) {
        GasProperties gas = Air(kind);
        gas.pressurePsia = 0.0F;
        ExpectNothing(FlowOf(gas, 0.5F, 100.0F));
        ExpectMessage(DiffPressureOf(gas, 1000.0F, 0.5F), kDpUnresolved);
        ExpectMessage(BetaOf(gas, 1000.0F, 100.0F), kBetaUnresolved);
    }
}

TEST(OrificeGasTest, OverflowOfASingleGivesNothingOrItsMessage) {
    for (const FlowKind kind : {kVolume, kMass}) {
        GasProperties gas = Air(kind);
        gas.correction = kZf;
        gas.userZf = kMax;  // Tf Zf overflows: no density, no flow
        ExpectNothing(FlowOf(gas, 0.5F, 100.0F));
        ExpectMessage(DiffPressureOf(gas, 1000.0F, 0.5F), kDpUnresolved);
        ExpectMessage(BetaOf(gas, 1000.0F, 100.0F), kBetaUnresolved);
        gas.userZf = 1e-44F;  // the density or the root overflows
        EXPECT_EQ(FlowOf(gas, 0.5F, 100.0F).value, std::nullopt);
    }
    GasProperties dense = Air(kMass);
    dense.correction = kDensity;
    dense.operDensity = kMax;
    ExpectNothing(FlowOf(dense, 0.5F, 100.0F));
    GasProperties volume = Air();
    volume.correction = kDensity;
    volume.operDensity = 1e-44F;
    EXPECT_EQ(FlowOf(volume, 0.5F, 100.0F).value, std::nullopt);
}

}  // namespace

}  // namespace tarvix
