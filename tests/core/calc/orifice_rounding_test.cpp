// Metering runs in which one rounding to single more, or one less, changes the last shown digit:
// each row fails when the quantity that it is named for is kept in the other precision.
#include "calc/gas_runs.h"
#include "calc/orifice_liquid.h"
#include "calc/orifice_steam.h"
#include "outcomes.h"

#include <gtest/gtest.h>

namespace tarvix {

namespace {

using namespace testing;

Outcome Liquid(const MeteringRun& run, float flowingSG, float baseSG) {
    LiquidProperties liquid;
    liquid.flowingSG = flowingSG;
    liquid.baseSG = baseSG;
    return SolveLiquid(run, liquid);
}

MeteringRun BetaRun(float d, float h, float q) {
    MeteringRun run;
    run.solveFor = SolveFor::Beta;
    run.pipeDiameterIn = d;
    run.diffPressInH2O = h;
    run.flow = q;
    return run;
}

MeteringRun FlowRun(float d, float h, float beta) {
    MeteringRun run = BetaRun(d, h, 0);
    run.solveFor = SolveFor::FlowRate;
    run.beta = beta;
    return run;
}

MeteringRun DiffPressureRun(float d, float q, float beta) {
    MeteringRun run = BetaRun(d, 0, q);
    run.solveFor = SolveFor::DiffPressure;
    run.beta = beta;
    return run;
}

// A gas in standard volume, by its gauge pressure and its temperature in deg F.
GasProperties Gas(float psiGauge, float degF, float baseSG, CompCorrection correction,
                  float value) {
    GasProperties gas = Air(kVolume);
    gas.correction = correction;
    gas.pressurePsia = psiGauge + 14.7F;
    gas.flowingTempR = static_cast<float>(double{degF} + 459.67);
    gas.baseSG = baseSG;
    gas.operDensity = correction == CompCorrection::Density ? value : 0;
    gas.userZf = correction == CompCorrection::Zf ? value : 0;
    return gas;
}

Outcome Steam(float psiGauge, float density, float d, float h, float q) {
    SteamProperties steam;
    steam.pressurePsia = psiGauge + 14.7F;
    steam.density = density;
    return SolveSteam(BetaRun(d, h, q), steam);
}

// Liquid ------------------------------------------------------------------------------------------

TEST(LiquidRounding, AIsASingle) {
    ExpectValue(Liquid(BetaRun(4.026F, 328.1F, 186.5F), 1.01F, 0.67F), 0.35157F);
}

TEST(LiquidRounding, TheSquareOfTheDischargeCoefficientIsASingle) {
    ExpectValue(Liquid(BetaRun(2.067F, 4.4F, 5.1F), 0.96F, 0.53F), 0.30028F);
}

TEST(LiquidRounding, BetaIsRoundedToDecimalsAsADouble) {
    ExpectValue(Liquid(BetaRun(6.065F, 9.5F, 36.9F), 1.09F, 1.18F), 0.32797F);
}

TEST(LiquidRounding, TheSquareOfAIsADouble) {
    ExpectValue(Liquid(BetaRun(1.049F, 4.4F, 3.1F), 0.66F, 0.89F), 0.63021F);
}

TEST(LiquidRounding, PressureTimesGravityIsASingle) {
    ExpectValue(Liquid(FlowRun(10.02F, 4.6F, 0.428F), 1.04F, 1.07F), 130.0198516845703F);
}

TEST(LiquidRounding, GravityTimesFlowIsASingle) {
    ExpectValue(Liquid(DiffPressureRun(3.068F, 584.8F, 0.619F), 1.44F, 1.24F), 2072.191162109375F);
}

// Gas ---------------------------------------------------------------------------------------------

TEST(GasRounding, TemperatureTimesDensityIsASingle) {
    const GasProperties gas = Gas(442, 253, 1.07F, kDensity, 1.8F);
    ExpectValue(SolveGas(FlowRun(10.02F, 1.2F, 0.76F), gas), 275226.75F);
}

TEST(GasRounding, TheImpliedZfIsASingle) {
    const GasProperties gas = Gas(273, 132, 0.34F, kDensity, 0.92F);
    ExpectValue(SolveGas(FlowRun(1.049F, 83.8F, 0.225F), gas), 4049.737060546875F);
}

TEST(GasRounding, TheQuotientOfTheBaseConditionsIsASingle) {
    const GasProperties gas = Gas(114, 16, 1.59F, kZf, 0.73F);
    ExpectValue(SolveGas(FlowRun(3.068F, 142.2F, 0.568F), gas), 84423.125F);
}

TEST(GasRounding, TheTargetOfTheDifferentialPressureIsReadFromLeftToRight) {
    const GasProperties gas = Gas(257, 9, 1.49F, kZf, 0.9F);
    const Outcome h = SolveGas(DiffPressureRun(2.067F, 10037, 0.616F), gas);
    ExpectValue(h, 3.535550832748413F);
}

TEST(GasRounding, EachBetaOfTheIterationIsASingle) {
    const GasProperties gas = Gas(486, 46, 1.31F, kZf, 0.84F);
    const Outcome beta = SolveGas(BetaRun(2.067F, 86.2F, 1089), gas);
    ExpectValue(beta, 0.0791F);
}

TEST(GasRounding, BetaIsMultipliedTwiceAsASingle) {
    const GasProperties gas = Gas(460, 243, 1.16F, kDensity, 1.14F);
    ExpectValue(SolveGas(BetaRun(2.067F, 3.4F, 18713), gas), 0.82162F);
}

// Steam -------------------------------------------------------------------------------------------

TEST(SteamRounding, TheSquareOfBetaIsADouble) {
    ExpectMessage(Steam(190, 1.4446F, 4.026F, 4, 7852),
                  "Unable to resolve Beta Ratio for conditions.");
}

TEST(SteamRounding, BetaIsRoundedToDecimalsAsASingle) {
    ExpectValue(Steam(176, 0.8904F, 2.067F, 365.1F, 1124), 0.26288F);
}

TEST(SteamRounding, EachBetaOfTheIterationIsASingle) {
    ExpectValue(Steam(110, 0.4372F, 0.622F, 32.8F, 266), 0.8038F);
}

TEST(SteamRounding, PressureTimesDensityIsASingle) {
    ExpectValue(Steam(237, 0.7364F, 4.026F, 7.8F, 5897), 0.75916F);
}

}  // namespace

}  // namespace tarvix
