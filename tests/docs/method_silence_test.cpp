// What docs/method.md says of runs without a result: with which word, or with none.
#include "tests/core/calc/equations.h"
#include "tests/core/outcomes.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tarvix::docs {

namespace {

using namespace testing;

// In a 4 inch pipe, solved for the mode; what is solved for is not read.
MeteringRun RunFor(SolveFor mode) {
    return {mode, 4.026F, 50000.0F, 100.0F, 0.5F};
}

// The flow of a true beta, solved back.
Outcome BetaBack(const Equation& solve, float beta) {
    MeteringRun run = RunFor(SolveFor::FlowRate);
    run.beta = beta;
    run.flow = solve(run).value.value();
    run.solveFor = SolveFor::Beta;
    return solve(run);
}

}  // namespace

// "at or below absolute zero there is no result: no word about a flow rate, 'Unable to resolve'
// about the other two"
TEST(MethodSilence, GasAtOrBelowAbsoluteZero) {
    // -459.67 Deg F in single precision is a little below.
    const auto absoluteZero = static_cast<float>(double{-459.67F} + 459.67);
    for (const float temperature : {absoluteZero, -10.0F}) {
        const Equation air = Air(kVolume, 114.7F, temperature);
        ExpectNothing(air(RunFor(SolveFor::FlowRate)));
        EXPECT_EQ(air(RunFor(SolveFor::DiffPressure)).message,
                  "Unable to resolve differential pressure for conditions.");
        EXPECT_EQ(air(RunFor(SolveFor::Beta)).message, "Unable to resolve beta for conditions.");
    }
}

// 4 inch, 100 psi gauge, 100 inches of water: a true beta of 0.82 is found; at 0.835 both swing
// apart; at 0.85 a gas says that beta is out of range and steam says nothing.
TEST(MethodSilence, LargeBetas) {
    const Equation air = Air(kVolume);
    const Equation steam = Steam(114.7F, 0.25704F);
    for (const Equation& solve : {air, steam}) {
        const Outcome found = BetaBack(solve, 0.82F);
        ASSERT_TRUE(found.value);
        EXPECT_NEAR(*found.value, 0.82F, 1e-5F);
    }
    EXPECT_EQ(BetaBack(air, 0.835F).message, "Unable to resolve beta for conditions.");
    EXPECT_EQ(BetaBack(steam, 0.835F).message, "Unable to resolve Beta Ratio for conditions.");
    EXPECT_EQ(BetaBack(air, 0.85F).message, kBetaTooLarge);
    ExpectNothing(BetaBack(steam, 0.85F));
}

}  // namespace tarvix::docs
