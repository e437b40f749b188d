// The gas equation.
#include "calc/orifice_gas.h"

#include "calc/gas_runs.h"
#include "named_row.h"
#include "outcomes.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tarvix {

namespace {

using namespace testing;

// Runs there and back -----------------------------------------------------------------------------

struct GasRow : NamedRow {
    FlowKind kind;
    CompCorrection correction;
    float pressure, temperature, gravity, density, zf, diameter, beta, diffPressure;
    float flow;              // in single precision, each stored quantity rounded
    double exactFlow;        // in double precision throughout
    float backDiffPressure;  // of `flow`, within the band
    float backBeta;
};

class GasRun : public ::testing::TestWithParam<GasRow> {
  protected:
    const GasRow& row = GetParam();
    MeteringRun run{SolveFor::Beta, row.diameter, row.flow, row.diffPressure, row.beta};
    GasProperties gas{row.kind, row.correction, row.pressure, 14.7F, row.temperature,
                      519.67F,  row.gravity,    row.density,  row.zf};
};

TEST_P(GasRun, GivesItsFlow) {
    run.solveFor = SolveFor::FlowRate;
    const Outcome outcome = SolveGas(run, gas);
    ExpectValue(outcome, row.flow);
    EXPECT_NEAR(double{outcome.value.value_or(0)}, row.exactFlow, row.exactFlow * 3e-7);
}

TEST_P(GasRun, GivesItsDifferentialPressureBack) {
    run.solveFor = SolveFor::DiffPressure;
    const Outcome outcome = SolveGas(run, gas);
    ExpectValue(outcome, row.backDiffPressure);
    EXPECT_NEAR(double{outcome.value.value_or(0)}, double{row.diffPressure},
                double{row.diffPressure} * 1e-5);
}

TEST_P(GasRun, GivesItsBetaBack) {
    const Outcome outcome = SolveGas(run, gas);
    ExpectValue(outcome, row.backBeta);
    EXPECT_NEAR(double{outcome.value.value_or(0)}, double{row.beta}, 1e-5);
}

// clang-format off
const GasRow kGasRows[] = {
    //                                                  P         Tf       G        rho      Zf       D        beta     h         flow         exact flow   h back       beta back
    {"Air",                   kVolume, kNone,    114.7F, 519.67F , 1.0F    , 0.0F    , 0.0F    , 2.067F, 0.5F    , 100.0F, 23765.0527F, 23765.05233, 99.9997101F, 0.5F},
    {"NaturalGasHot",         kVolume, kNone,    514.7F, 619.67F , 0.6F    , 0.0F    , 0.0F    , 4.026F, 0.6F    , 50.5F   , 242029.312F, 242029.2889, 50.4998474F, 0.600000024F},
    {"HeavyCold",             kVolume, kNone,    29.7F   , 429.67F , 2.1F    , 0.0F    , 0.0F    , 10.02F, 0.35F   , 20.0F   , 46231.2383F, 46231.23755, 20.0000725F, 0.349999994F},
    {"TypedZf",               kVolume, kZf,      514.7F, 579.67F , 0.6F    , 0.0F    , 0.92F   , 6.065F, 0.7F    , 75.0F   , 1050286.5F, 1050286.428, 74.9997787F, 0.699999988F},
    {"TypedZfAboveOne",       kVolume, kZf,      2014.7F , 519.67F , 0.07F   , 0.0F    , 1.15F   , 3.068F, 0.25F   , 300.0F, 327759.219F, 327759.2074, 299.998993F, 0.25F},
    {"TypedDensity",          kVolume, kDensity, 214.7F, 559.67F , 0.65F   , 0.68F   , 0.0F    , 2.067F, 0.55F   , 120.0F, 52789.8008F, 52789.79768, 119.999611F, 0.550000012F},
    {"TypedDensityHeavy",     kVolume, kDensity, 1014.7F , 519.67F , 1.5F    , 9.5F    , 0.0F    , 23.25F, 0.45F   , 60.0F   , 5014972.5F, 5014972.771, 59.9997902F, 0.449999988F},
    {"MassAir",               kMass,   kNone,    114.7F, 519.67F , 1.0F    , 0.0F    , 0.0F    , 2.067F, 0.5F    , 100.0F, 23773.2148F, 23773.21403, 99.9997025F, 0.5F},
    {"MassNaturalGasHot",     kMass,   kNone,    514.7F, 619.67F , 0.6F    , 0.0F    , 0.0F    , 4.026F, 0.6F    , 50.5F   , 145267.469F, 145267.4516, 50.4998436F, 0.600000024F},
    {"MassHeavyCold",         kMass,   kNone,    29.7F   , 429.67F , 2.1F    , 0.0F    , 0.0F    , 10.02F, 0.35F   , 20.0F   , 97118.9531F, 97118.93682, 20.0000763F, 0.349999994F},
    {"MassTypedZf",           kMass,   kZf,      514.7F, 579.67F , 0.6F    , 0.0F    , 0.92F   , 6.065F, 0.7F    , 75.0F   , 630388.375F, 630388.3037, 74.9997711F, 0.699999988F},
    {"MassTypedZfAboveOne",   kMass,   kZf,      2014.7F , 519.67F , 0.07F   , 0.0F    , 1.15F   , 3.068F, 0.25F   , 300.0F, 22951.0254F, 22951.02404, 299.998962F, 0.25F},
    {"MassTypedDensity",      kMass,   kDensity, 214.7F, 559.67F , 0.65F   , 0.68F   , 0.0F    , 2.067F, 0.55F   , 120.0F, 34325.1523F, 34325.15157, 119.999596F, 0.550000012F},
    {"MassTypedDensityHeavy", kMass,   kDensity, 1014.7F , 519.67F , 1.5F    , 9.5F    , 0.0F    , 23.25F, 0.45F   , 60.0F   , 7525043.0F, 7525042.616, 59.999794F, 0.449999988F},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(OrificeGas, GasRun, ::testing::ValuesIn(kGasRows), kRowName);

TEST(OrificeGasTest, BaseConditionsScaleTheStandardVolume) {
    GasProperties gas = Air();
    gas.basePressurePsia = 15.025F;
    gas.baseTempR = 527.67F;
    ExpectValue(FlowOf(gas, 0.5F, 100.0F), 89565.9688F);
    ExpectValue(DiffPressureOf(gas, 89565.9688F, 0.5F), 99.9997025F);
    ExpectValue(BetaOf(gas, 89565.9688F, 100.0F), 0.5F);
    // A mass flow is not asked for them.
    GasProperties massGas = Air(kMass);
    const auto flow = FlowOf(massGas, 0.5F, 100.0F).value;
    massGas.basePressurePsia = 15.025F;
    massGas.baseTempR = 527.67F;
    EXPECT_EQ(FlowOf(massGas, 0.5F, 100.0F).value, flow);
}

TEST(OrificeGasTest, WithoutCorrectionZfIsOneInBothKinds) {
    for (const FlowKind kind : {kVolume, kMass}) {
        GasProperties typed = Air(kind);
        typed.correction = kZf;
        typed.userZf = 1.0F;
        GasProperties none = Air(kind);
        none.userZf = 0.5F;
        none.operDensity = 3.0F;
        EXPECT_EQ(FlowOf(none, 0.5F, 100.0F).value, FlowOf(typed, 0.5F, 100.0F).value);
        EXPECT_NE(FlowOf(none, 0.5F, 100.0F).value, std::nullopt);
    }
}

// The compressibility implied by a density is that of the same density.
TEST(OrificeGasTest, ATypedDensityImpliesItsZf) {
    GasProperties byDensity = Air();
    byDensity.correction = kDensity;
    byDensity.operDensity = 0.661863F;  // 2.698825 x 114.7 / (519.67 x 0.9)
    GasProperties byZf = Air();
    byZf.correction = kZf;
    byZf.userZf = 0.9F;
    EXPECT_NEAR(double{FlowOf(byDensity, 0.5F, 100.0F).value.value_or(0)},
                double{FlowOf(byZf, 0.5F, 100.0F).value.value_or(1)}, 0.1);
}

TEST(OrificeGasTest, TheMassDivisorIsTheDensityOfAirAtBaseConditions) {
    EXPECT_EQ(kBaseAirDensityNumerator, 39.6619322);
    EXPECT_EQ(kBaseAirDensityDenominator, 519.67);
}

TEST(OrificeGasTest, AZeroInAFactorGivesNothing) {
    for (const FlowKind kind : {kVolume, kMass}) {
        const GasProperties gas = Air(kind);
        const MeteringRun full{SolveFor::FlowRate, 4.026F, 1000.0F, 100.0F, 0.5F};
        const auto without = [&](SolveFor solveFor, float MeteringRun::*factor) {
            MeteringRun run = full;
            run.solveFor = solveFor;
            run.*factor = 0.0F;
            return SolveGas(run, gas);
        };
        ExpectNothing(without(SolveFor::FlowRate, &MeteringRun::beta));
        ExpectNothing(without(SolveFor::FlowRate, &MeteringRun::pipeDiameterIn));
        ExpectNothing(without(SolveFor::FlowRate, &MeteringRun::diffPressInH2O));
        ExpectNothing(without(SolveFor::DiffPressure, &MeteringRun::beta));
        ExpectNothing(without(SolveFor::DiffPressure, &MeteringRun::pipeDiameterIn));
        ExpectNothing(without(SolveFor::DiffPressure, &MeteringRun::flow));
        ExpectNothing(without(SolveFor::Beta, &MeteringRun::pipeDiameterIn));
        ExpectNothing(without(SolveFor::Beta, &MeteringRun::flow));
        ExpectNothing(without(SolveFor::Beta, &MeteringRun::diffPressInH2O));
    }
}

TEST(OrificeGasTest, AFlowOutOfItsLimitsGivesNothing) {
    for (const FlowKind kind : {kVolume, kMass}) {
        GasProperties gas = Air(kind);
        gas.pressurePsia = 1e7F;
        EXPECT_TRUE(FlowOf(gas, 0.5F, 1e5F).value.has_value());
        ExpectNothing(FlowOf(gas, 0.9F, 1e6F));
        gas.pressurePsia = 0.001F;
        EXPECT_TRUE(FlowOf(gas, 0.01F, 1e-5F).value.has_value());
        ExpectNothing(FlowOf(gas, 0.01F, 1e-12F));
        // The expansion factor is negative, and with it the flow.
        ExpectNothing(FlowOf(gas, 0.5F, 1.0F));
    }
}

TEST(OrificeGasTest, ABetaOfOneOrMoreIsReported) {
    for (const FlowKind kind : {kVolume, kMass}) {
        for (const float beta : {1.0F, std::nextafter(1.0F, 2.0F), 2.0F, 1e30F}) {
            ExpectMessage(FlowOf(Air(kind), beta, 100.0F), "Beta Ratio must be less than 1.");
            ExpectMessage(DiffPressureOf(Air(kind), 1000.0F, beta),
                          "Beta Ratio must be less than 1.");
        }
        const float belowOne = std::nextafter(1.0F, 0.0F);
        EXPECT_TRUE(FlowOf(Air(kind), belowOne, 100.0F).value.has_value());
        EXPECT_TRUE(DiffPressureOf(Air(kind), 1e8F, belowOne).value.has_value());
    }
}

}  // namespace

}  // namespace tarvix
