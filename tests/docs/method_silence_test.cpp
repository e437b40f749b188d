// What docs/method.md says of runs without a result: with which word, or with none.
#include "calc/orifice_gas.h"
#include "calc/orifice_steam.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tarvix::docs {

namespace {

Outcome GasAt(SolveFor mode, float flowingTempR) {
    MeteringRun run;
    run.solveFor = mode;
    run.pipeDiameterIn = 4.026F;
    run.flow = 50000.0F;
    run.diffPressInH2O = 100.0F;
    run.beta = 0.5F;
    GasProperties gas;
    gas.pressurePsia = 114.7F;
    gas.basePressurePsia = 14.7F;
    gas.flowingTempR = flowingTempR;
    gas.baseTempR = 519.67F;
    gas.baseSG = 1.0F;
    return SolveGas(run, gas);
}

// The flow of a true beta, solved back.
Outcome BetaBack(bool steam, float beta) {
    MeteringRun run{SolveFor::FlowRate, 4.026F, 0, 100.0F, beta};
    const SteamProperties vapor{114.7F, 0.25704F};
    GasProperties gas;
    gas.pressurePsia = 114.7F;
    gas.basePressurePsia = 14.7F;
    gas.flowingTempR = 519.67F;
    gas.baseTempR = 519.67F;
    gas.baseSG = 1.0F;
    const auto solve = [&] { return steam ? SolveSteam(run, vapor) : SolveGas(run, gas); };
    run.flow = solve().value.value();
    run.solveFor = SolveFor::Beta;
    return solve();
}

}  // namespace

// "at or below absolute zero there is no result: no word about a flow rate, 'Unable to resolve'
// about the other two"
TEST(MethodSilence, GasAtOrBelowAbsoluteZero) {
    // -459.67 Deg F in single precision is a little below.
    const auto absoluteZero = static_cast<float>(double{-459.67F} + 459.67);
    for (const float temperature : {absoluteZero, -10.0F}) {
        const Outcome flow = GasAt(SolveFor::FlowRate, temperature);
        EXPECT_FALSE(flow.value);
        EXPECT_EQ(flow.message, "");
        EXPECT_EQ(GasAt(SolveFor::DiffPressure, temperature).message,
                  "Unable to resolve differential pressure for conditions.");
        EXPECT_EQ(GasAt(SolveFor::Beta, temperature).message,
                  "Unable to resolve beta for conditions.");
    }
}

// 4 inch, 100 psi gauge, 100 inches of water: a true beta of 0.82 is found; at 0.835 both swing
// apart; at 0.85 a gas says that beta is out of range and steam says nothing.
TEST(MethodSilence, LargeBetas) {
    for (const bool steam : {false, true}) {
        const Outcome found = BetaBack(steam, 0.82F);
        ASSERT_TRUE(found.value);
        EXPECT_NEAR(*found.value, 0.82F, 1e-5F);
    }
    EXPECT_EQ(BetaBack(false, 0.835F).message, "Unable to resolve beta for conditions.");
    EXPECT_EQ(BetaBack(true, 0.835F).message, "Unable to resolve Beta Ratio for conditions.");
    EXPECT_EQ(BetaBack(false, 0.85F).message, kBetaTooLarge);
    const Outcome silent = BetaBack(true, 0.85F);
    EXPECT_FALSE(silent.value);
    EXPECT_EQ(silent.message, "");
}

}  // namespace tarvix::docs
