// The gas equation.
#include "calc/orifice_gas.h"

#include "calc/gas_runs.h"
#include "outcomes.h"

#include <gtest/gtest.h>

namespace tarvix {

namespace {

using namespace testing;

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

}  // namespace

}  // namespace tarvix
