// Runs at the edges: at the limits of what is shown, on the way of the iterations, where no finite
// number comes out, and where one rounding to single more, or one less, changes the last digit.
#include "calc/equations.h"
#include "named_row.h"
#include "outcomes.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace tarvix::testing {
namespace {

constexpr float kMax = std::numeric_limits<float>::max();

MeteringRun Flow(float d, float h, float beta) {
    return {SolveFor::FlowRate, d, 0, h, beta};
}
MeteringRun DiffPressure(float d, float q, float beta) {
    return {SolveFor::DiffPressure, d, q, 0, beta};
}
MeteringRun Beta(float d, float q, float h) {
    return {SolveFor::Beta, d, q, h, 0};
}

Outcome Is(float value) {
    return Outcome::Value(value);
}
Outcome Says(const char* message) {
    return Outcome::Message(message);
}
const Outcome kSilent = Outcome::Nothing();

// By the gauge pressure in psi and the temperature in deg F.
Equation GasOf(float psig, float degF, float gravity, CompCorrection correction, float value) {
    return Gas(kVolume, correction, psig + 14.7F, static_cast<float>(double{degF} + 459.67),
               gravity, value, value);
}
Equation SteamOf(float psig, float density) {
    return Steam(psig + 14.7F, density);
}
const Equation kWater = Liquid(1.0F, 1.0F);
const Equation kAir = Air(kVolume);
const Equation kMassAir = Air(kMass);
const Equation kOtherBase =
    GasAt(15.025F, 527.67F, {kVolume, kNone, 114.7F, 0, 519.67F, 0, 1, 0, 0});
const Equation kMassOtherBase =
    GasAt(15.025F, 527.67F, {kMass, kNone, 114.7F, 0, 519.67F, 0, 1, 0, 0});
const Equation kSaturated = Steam(114.7F, 0.25704F);

constexpr const char* kOver95 =
    "Flow rate is out of range (beta > 0.95). Flow rate too high for pipe size.";
constexpr const char* kNotAboveZero = "Flow rate is out of range (beta <= 0.0).";
constexpr const char* kHTooHigh =
    "Unable to calculate differential pressure for conditions (Flow rate too high).";
constexpr const char* kBetaTooHigh =
    "Unable to calculate beta for conditions (Flow rate too high).";
constexpr const char* kGasHUnresolved = "Unable to resolve differential pressure for conditions.";
constexpr const char* kGasBetaUnresolved = "Unable to resolve beta for conditions.";
constexpr const char* kSteamHUnresolved = "Unable to resolve Differential Pressure for conditions.";
constexpr const char* kSteamBetaUnresolved = "Unable to resolve Beta Ratio for conditions.";

struct EdgeRow : NamedRow {
    Equation solve;
    MeteringRun run;
    Outcome outcome;
};

class EdgeRun : public ::testing::TestWithParam<EdgeRow> {};

TEST_P(EdgeRun, EndsSo) {
    const auto& row = GetParam();
    const Outcome outcome = row.solve(row.run);
    EXPECT_EQ(outcome.value, row.outcome.value);
    EXPECT_EQ(outcome.message, row.outcome.message);
}

// clang-format off
const EdgeRow kLiquidRows[] = {
    {"ShownFlow",         kWater, Beta(4.026F, 142.3F, 100), Is(0.50002F)},
    {"LargeFlow",         kWater, Flow(41.25F, 1e9F, 0.9F), Is(252685248.0F)},
    {"TooLargeFlow",      kWater, Flow(41.25F, 1e11F, 0.9F), kSilent},
    {"SmallFlow",         kWater, Flow(0.252F, 0.5F, 0.01F), Is(1.52668399e-05F)},
    {"TooSmallFlow",      kWater, Flow(0.252F, 0.1F, 0.01F), kSilent},
    // The flow that leads to one million inches of water, and its neighbours.
    {"LargestH",          kWater, DiffPressure(2.067F, 3750.57959F, 0.5F), Is(1e6F)},
    {"BelowTheLargestH",  kWater, DiffPressure(2.067F, std::nextafter(3750.57959F, 0.0F), 0.5F), Is(999999.875F)},
    {"TooLargeH",         kWater, DiffPressure(2.067F, std::nextafter(3750.57959F, kMax), 0.5F), kSilent},
    {"LargestBeta",       kWater, Beta(4.026F, 1154.81628F, 100), Is(0.95F)},            // 0.950004
    {"TooLargeBeta",      kWater, Beta(4.026F, 1154.84253F, 100), Says(kOver95)},        // 0.950006
    {"BetaNearOne",       kWater, Beta(4.026F, 8702.36621F, 100), Says(kOver95)},        // 0.999
    {"FarTooLargeFlow",   kWater, Beta(4.026F, 1e9F, 100), Says(kOver95)},
    {"SmallestBeta",      kWater, Beta(4.026F, 1.4333458e-8F, 100), Is(0.00001F)},       // 0.0000051
    {"TooSmallBeta",      kWater, Beta(4.026F, 1.32313085e-8F, 100), Says(kNotAboveZero)},  // 0.0000049
    // A gravity that is not there counts as zero.
    {"NoFlowingGravityQ", Liquid(0, 1), Flow(4.026F, 100, 0.5F), kSilent},
    {"NoBaseGravityQ",    Liquid(1, 0), Flow(4.026F, 100, 0.5F), kSilent},
    {"NoFlowingGravityH", Liquid(0, 1), DiffPressure(4.026F, 140, 0.5F), kSilent},
    {"NoFlowingGravityB", Liquid(0, 1), Beta(4.026F, 140, 100), kSilent},
    {"OverflowQ",         Liquid(kMax, 1), Flow(4.026F, 100, 0.5F), kSilent},
    {"OverflowH",         Liquid(1, kMax), DiffPressure(4.026F, 140, 0.5F), kSilent},
    {"OverflowB",         Liquid(1, kMax), Beta(4.026F, 140, 100), kSilent},
    {"NegativeGravityQ",  Liquid(-1, 1), Flow(4.026F, 100, 0.5F), kSilent},
    {"NegativeGravityB",  Liquid(-1, 1), Beta(4.026F, 140, 100), kSilent},
    // Each fails when the quantity that it is named for is kept in the other precision.
    {"SingleA",           Liquid(1.01F, 0.67F), Beta(4.026F, 186.5F, 328.1F), Is(0.35157F)},
    {"SingleSquareOfCd",  Liquid(0.96F, 0.53F), Beta(2.067F, 5.1F, 4.4F), Is(0.30028F)},
    {"DoubleRoundedBeta", Liquid(1.09F, 1.18F), Beta(6.065F, 36.9F, 9.5F), Is(0.32797F)},
    {"DoubleSquareOfA",   Liquid(0.66F, 0.89F), Beta(1.049F, 3.1F, 4.4F), Is(0.63021F)},
    {"SingleHTimesGf",    Liquid(1.04F, 1.07F), Flow(10.02F, 4.6F, 0.428F), Is(130.0198516845703F)},
    {"SingleGbTimesQ",    Liquid(1.44F, 1.24F), DiffPressure(3.068F, 584.8F, 0.619F), Is(2072.191162109375F)},
};

const EdgeRow kGasRows[] = {
    // Base conditions scale the standard volume, and a mass flow not at all.
    {"BaseConditionsQ",   kOtherBase, Flow(4.026F, 100, 0.5F), Is(89565.9688F)},
    {"BaseConditionsH",   kOtherBase, DiffPressure(4.026F, 89565.9688F, 0.5F), Is(99.9997025F)},
    {"BaseConditionsB",   kOtherBase, Beta(4.026F, 89565.9688F, 100), Is(0.5F)},
    {"BaseConditionsMass", kMassOtherBase, Flow(2.067F, 100, 0.5F), Is(23773.2148F)},
    // Without correction neither density nor Zf is read, and Zf is 1.
    {"UncorrectedVolume", Gas(kVolume, kNone, 114.7F, 519.67F, 1, 3, 0.5F), Flow(2.067F, 100, 0.5F), Is(23765.0527F)},
    {"UncorrectedMass",   Gas(kMass, kNone, 114.7F, 519.67F, 1, 3, 0.5F), Flow(2.067F, 100, 0.5F), Is(23773.2148F)},
    {"ZfOfOneVolume",     Gas(kVolume, kZf, 114.7F, 519.67F, 1, 3, 1), Flow(2.067F, 100, 0.5F), Is(23765.0527F)},
    {"ZfOfOneMass",       Gas(kMass, kZf, 114.7F, 519.67F, 1, 3, 1), Flow(2.067F, 100, 0.5F), Is(23773.2148F)},
    {"LargeVolume",       Air(kVolume, 1e7F), Flow(4.026F, 1e5F, 0.5F), Is(850619648.0F)},
    {"TooLargeVolume",    Air(kVolume, 1e7F), Flow(4.026F, 1e6F, 0.9F), kSilent},
    {"LargeMass",         Air(kMass, 1e7F), Flow(4.026F, 1e5F, 0.5F), Is(850911808.0F)},
    {"TooLargeMass",      Air(kMass, 1e7F), Flow(4.026F, 1e6F, 0.9F), kSilent},
    {"SmallVolume",       Air(kVolume, 0.001F), Flow(4.026F, 1e-5F, 0.01F), Is(3.29445575e-05F)},
    {"TooSmallVolume",    Air(kVolume, 0.001F), Flow(4.026F, 1e-12F, 0.01F), kSilent},
    {"SmallMass",         Air(kMass, 0.001F), Flow(4.026F, 1e-5F, 0.01F), Is(3.29558752e-05F)},
    {"TooSmallMass",      Air(kMass, 0.001F), Flow(4.026F, 1e-12F, 0.01F), kSilent},
    {"NegativeYVolume",   Air(kVolume, 0.001F), Flow(4.026F, 1, 0.5F), kSilent},
    {"NegativeYMass",     Air(kMass, 0.001F), Flow(4.026F, 1, 0.5F), kSilent},
    // The way of the iterations: the start is the result.
    {"StartHVolume",      kAir, DiffPressure(4.026F, 64088.2344F, 0.5F), Is(50)},
    {"StartHMass",        kMassAir, DiffPressure(4.026F, 64110.2461F, 0.5F), Is(50)},
    {"StartBetaVolume",   kAir, Beta(4.026F, 64088.2344F, 50), Is(0.5F)},
    {"StartBetaMass",     kMassAir, Beta(4.026F, 64110.2461F, 50), Is(0.5F)},
    // A step's s is the very bound 0.999999 or 1.000001 in single precision; both lie outside of the
    // band, so that one step more is made.
    {"UpperBoundH",       kAir, DiffPressure(4.026F, 133378.890625F, 0.4F), Is(619.09814453125F)},
    {"LowerBoundH",       kAir, DiffPressure(4.026F, 22726.912109375F, 0.6F), Is(2.7876172065734863F)},
    {"UpperBoundBeta",    kAir, Beta(4.026F, 32108.703125F, 100), Is(0.30253F)},
    {"LowerBoundBeta",    kAir, Beta(4.026F, 183516.265625F, 50), Is(0.77135F)},
    {"HundredthStepH",    kAir, DiffPressure(4.026F, 659775.9375F, 0.7F), Is(1792.56494140625F)},
    {"HundredthStepBeta", kAir, Beta(4.026F, 232353.359375F, 50), Is(0.82706F)},
    {"GivesUpH",          kAir, DiffPressure(4.026F, 661399.25F, 0.7F), Says(kGasHUnresolved)},
    {"GivesUpBeta",       kAir, Beta(4.026F, 240926.546875F, 50), Says(kGasBetaUnresolved)},
    {"NegativeYAtOnceH",  Air(kVolume, 0.5F), DiffPressure(4.026F, 10, 0.5F), Says(kHTooHigh)},  // Y is 0 at 44 inches
    {"NegativeYLaterH",   kAir, DiffPressure(4.026F, 446170.59375F, 0.5F), Says(kHTooHigh)},
    {"NegativeYLastH",    kAir, DiffPressure(4.026F, 705420.3125F, 0.7F), Says(kHTooHigh)},
    {"NegativeYBeta",     Air(kVolume, 14.7F), Beta(4.026F, 100000, 1300), Says(kBetaTooHigh)},
    {"NegativeYVolumeB",  Air(kVolume, 14.7F), Beta(4.026F, 1, 1300), Says(kBetaTooHigh)},
    {"NegativeYMassB",    Air(kMass, 14.7F), Beta(4.026F, 1, 1300), Says(kBetaTooHigh)},
    {"BetaAboveOneAtOnce", kAir, Beta(4.026F, 366245.375F, 100), Says(kOver95)},
    {"BetaAboveOneLater", kAir, Beta(4.026F, 360000, 100), Says(kOver95)},
    {"BetaOfExactlyOne",  kAir, Beta(4.026F, 360632.90625F, 100), Says(kOver95)},  // the first s is 2
    {"BetaRoundsToZero",  kAir, Beta(4.026F, 1e-7F, 100), Says(kNotAboveZero)},
    {"SmallestGasBeta",   kAir, Beta(4.026F, 1e-5F, 100), Is(0.00001F)},
    {"BetaUnderflows",    Air(kVolume, 1e20F), Beta(1e4F, 1e-38F, 1e10F), Says(kNotAboveZero)},  // R is 0 at once
    {"SmallZfVolume",     Gas(kVolume, kZf, 114.7F, 519.67F, 1, 0, 1e-44F), Flow(4.026F, 100, 0.5F), kSilent},
    {"SmallZfMass",       Gas(kMass, kZf, 114.7F, 519.67F, 1, 0, 1e-44F), Flow(4.026F, 100, 0.5F), kSilent},
    {"LargeDensityMass",  Gas(kMass, kDensity, 114.7F, 519.67F, 1, kMax, 0), Flow(4.026F, 100, 0.5F), kSilent},
    {"SmallDensityVolume", Gas(kVolume, kDensity, 114.7F, 519.67F, 1, 1e-44F, 0), Flow(4.026F, 100, 0.5F), kSilent},
    // Each fails when the quantity that it is named for is kept in the other precision.
    {"SingleTfTimesDensity", GasOf(442, 253, 1.07F, kDensity, 1.8F), Flow(10.02F, 1.2F, 0.76F), Is(275226.75F)},
    {"SingleImpliedZf",   GasOf(273, 132, 0.34F, kDensity, 0.92F), Flow(1.049F, 83.8F, 0.225F), Is(4049.737060546875F)},
    {"SingleTbOverPb",    GasOf(114, 16, 1.59F, kZf, 0.73F), Flow(3.068F, 142.2F, 0.568F), Is(84423.125F)},
    {"TargetFromLeftToRight", GasOf(257, 9, 1.49F, kZf, 0.9F), DiffPressure(2.067F, 10037, 0.616F), Is(3.535550832748413F)},
    {"SingleBetaOfAStep", GasOf(486, 46, 1.31F, kZf, 0.84F), Beta(2.067F, 1089, 86.2F), Is(0.0791F)},
    {"SingleBetaTwice",   GasOf(460, 243, 1.16F, kDensity, 1.14F), Beta(2.067F, 18713, 3.4F), Is(0.82162F)},
};

const EdgeRow kSteamRows[] = {
    {"LargeFlow",         Steam(1e7F, 11), Flow(4.026F, 1e8F, 0.5F), Is(26307942.0F)},
    {"TooLargeFlow",      Steam(1e12F, 11), Flow(4.026F, 1e12F, 0.9F), kSilent},
    {"SmallFlow",         kSaturated, Flow(4.026F, 1e-5F, 0.01F), Is(0.000559635519F)},
    {"TooSmallFlow",      kSaturated, Flow(4.026F, 1e-12F, 0.01F), kSilent},
    {"NegativeYQ",        Steam(0.5F, 0.25704F), Flow(4.026F, 100, 0.5F), kSilent},
    {"StartH",            kSaturated, DiffPressure(4.026F, 3214.16943F, 0.5F), Is(50)},
    {"StartBeta",         kSaturated, Beta(4.026F, 3214.16943F, 50), Is(0.5F)},
    // The bands are compared in double precision. On the way s is 1.0000001 or 0.99999988, the singles
    // beside the band, for two steps each; 0.999999 of the beta iteration lies outside in double
    // precision, too, and 1.000001 is a little less as a single, and inside.
    {"AboveTheBandH",     kSaturated, DiffPressure(4.026F, 7670.2568359375F, 0.5F), Is(300.3360595703125F)},
    {"BelowTheBandH",     kSaturated, DiffPressure(4.026F, 924.13525390625F, 0.5F), Is(4.093772888183594F)},
    {"BelowTheBandBeta",  kSaturated, Beta(4.026F, 7729.76513671875F, 50), Is(0.72655F)},
    {"InTheBandBeta",     kSaturated, Beta(4.026F, 4611.64208984375F, 50), Is(0.58946F)},
    {"HundredthStepH",    kSaturated, DiffPressure(4.026F, 31320.947265625F, 0.7F), Is(1451.4759521484375F)},
    {"HundredthStepBeta", kSaturated, Beta(4.026F, 22972.4296875F, 200), Is(0.82856F)},
    {"GivesUpH",          kSaturated, DiffPressure(4.026F, 31527.25390625F, 0.7F), Says(kSteamHUnresolved)},
    {"GivesUpBeta",       kSaturated, Beta(4.026F, 17174.03125F, 100), Says(kSteamBetaUnresolved)},
    {"NegativeYAtOnceH",  Steam(0.5F, 0.25704F), DiffPressure(4.026F, 10, 0.5F), Says(kHTooHigh)},
    {"NegativeYLaterH",   kSaturated, DiffPressure(4.026F, 19919.4296875F, 0.5F), Says(kHTooHigh)},
    {"NegativeYBeta",     Steam(14.7F, 0.25704F), Beta(4.026F, 100000, 1300), Says(kBetaTooHigh)},
    // Where gas says that beta has left its range, steam is silent.
    {"BetaAboveOneAtOnce", kSaturated, Beta(4.026F, 26247.59765625F, 200), kSilent},
    {"BetaAboveOneLater", kSaturated, Beta(4.026F, 25000, 200), kSilent},
    {"BetaUnderflows",    Steam(1e20F, 0.25704F), Beta(1e4F, 1e-38F, 1e10F), kSilent},
    {"BetaRoundsToZero",  kSaturated, Beta(4.026F, 1e-7F, 100), Says(kNotAboveZero)},
    {"SmallestBeta",      kSaturated, Beta(4.026F, 1e-5F, 100), Is(0.00002F)},
    {"OverflowQ",         Steam(114.7F, kMax), Flow(4.026F, 100, 0.5F), kSilent},
    {"OverflowB",         Steam(114.7F, kMax), Beta(4.026F, 1000, 100), kSilent},
    // Each fails when the quantity that it is named for is kept in the other precision.
    {"DoubleSquareOfBeta", SteamOf(190, 1.4446F), Beta(4.026F, 7852, 4), Says(kSteamBetaUnresolved)},
    {"SingleRoundedBeta", SteamOf(176, 0.8904F), Beta(2.067F, 1124, 365.1F), Is(0.26288F)},
    {"SingleBetaOfAStep", SteamOf(110, 0.4372F), Beta(0.622F, 266, 32.8F), Is(0.8038F)},
    {"SingleHTimesDensity", SteamOf(237, 0.7364F), Beta(4.026F, 5897, 7.8F), Is(0.75916F)},
};
// clang-format on

// A gas of which no finite number comes out, as a volume and as a mass: no word about a flow.
TEST(EdgeRunOfGas, NoFiniteNumber) {
    struct Row {
        const char* name;
        float pressure, temperature;
        CompCorrection correction;
        float zf;
        const char* ofBeta;
    };
    for (const auto& row : {Row{"below absolute zero", 114.7F, -10, kNone, 0, kGasBetaUnresolved},
                            Row{"at absolute zero", 114.7F, 0, kNone, 0, kNotAboveZero},
                            Row{"no pressure", 0, 519.67F, kNone, 0, kGasBetaUnresolved},
                            Row{"large Zf", 114.7F, 519.67F, kZf, kMax, kGasBetaUnresolved}}) {
        for (const FlowKind kind : {kVolume, kMass}) {
            SCOPED_TRACE(std::string(row.name) + (kind == kMass ? ", mass" : ", volume"));
            const Equation gas =
                Gas(kind, row.correction, row.pressure, row.temperature, 1, 0, row.zf);
            ExpectNothing(gas(Flow(4.026F, 100, 0.5F)));
            ExpectMessage(gas(DiffPressure(4.026F, 1000, 0.5F)), kGasHUnresolved);
            ExpectMessage(gas(Beta(4.026F, 1000, 100)), row.ofBeta);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Liquid, EdgeRun, ::testing::ValuesIn(kLiquidRows), kRowName);
INSTANTIATE_TEST_SUITE_P(Gas, EdgeRun, ::testing::ValuesIn(kGasRows), kRowName);
INSTANTIATE_TEST_SUITE_P(Steam, EdgeRun, ::testing::ValuesIn(kSteamRows), kRowName);

TEST(EdgeRunOfSteam, NoPressureOrNoDensity) {
    for (const Equation& steam : {Steam(0, 0.25704F), Steam(114.7F, 0)}) {
        ExpectNothing(steam(Flow(4.026F, 100, 0.5F)));
        ExpectMessage(steam(DiffPressure(4.026F, 1000, 0.5F)), kSteamHUnresolved);
        ExpectMessage(steam(Beta(4.026F, 1000, 100)), kSteamBetaUnresolved);
    }
}

// A step that lands on a beta of exactly 1 meets an infinite velocity of approach. Of the flows
// around the one that leads there from 0.5 in one step, some hit it, and the others are silent.
TEST(EdgeRunOfSteam, ABetaOfExactlyOneOnTheWayIsUnresolved) {
    int unresolved = 0;
    int silent = 0;
    for (float flow = 25308.0F; flow < 25308.1F; flow = std::nextafter(flow, kMax)) {
        const Outcome outcome = kSaturated(Beta(4.026F, flow, 200));
        ASSERT_EQ(outcome.value, std::nullopt);
        unresolved += outcome.message == kSteamBetaUnresolved ? 1 : 0;
        silent += outcome.message.empty() ? 1 : 0;
    }
    EXPECT_GT(unresolved, 0);
    EXPECT_GT(silent, 0);
}

}  // namespace
}  // namespace tarvix::testing
