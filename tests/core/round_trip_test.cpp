// A sweep over pipes, betas, differential pressures and pressures for each fluid: the flow is
// solved forward, differential pressure and beta are solved back from it, and each is held against
// roots found by bisection in double precision.
//
// The damped iteration does not find every root. Where it does not, the sweep says why:
// - The expansion factor bends the curve of flow over h. It rises to a peak, where Y has lost a
//   third, and falls from there on. The root below the peak attracts, the one beyond repels. So
//   - a run beyond the peak comes back as the run below it that has the same flow ("twin"), except
//     when its h is the very start of the iteration, 50 inches of water;
//   - at a pressure so low that 50 inches lie beyond the peak, a flow larger than that at 50 inches
//     is driven away from its root and up to a negative Y; where Y is negative at 50 inches
//     already, every flow ends there at the first step;
//   - near the peak the steps become so small that 100 of them are not enough.
// - Over beta, a step overshoots by beta^4 / (1 - beta^4) of the error: above 0.84 it grows from
// step
//   to step, and beta leaves its range or swings to the end. Only where Y is close to zero does
//   the flow fall again with beta; from there the iteration goes to the smaller beta with that
//   flow.
#include "calc/orifice_gas.h"
#include "calc/orifice_liquid.h"
#include "calc/orifice_steam.h"
#include "named_row.h"
#include "reference_meter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>

namespace tarvix {

namespace {

using namespace testing;

constexpr float kPipes[] = {0.252F, 2.067F, 10.02F, 23.25F};
constexpr float kBetas[] = {0.1F, 0.15F, 0.25F, 0.4F, 0.5F, 0.6F, 0.67F, 0.75F, 0.8F, 0.9F, 0.95F};
constexpr float kDiffPressures[] = {0.5F, 5.0F, 45.0F, 50.0F, 100.0F, 400.0F, 2000.0F};
constexpr float kPressures[] = {0.4F, 1.5F, 14.7F, 114.7F, 1014.7F};

constexpr double kBetaDigit = 1.2e-5;  // the fifth decimal, and what rounding adds to it
// A step's s is single precision, and so are the numbers that it is made of.
constexpr double kSingleNoise = 2.5e-7;

// Between the largest contraction that settles within 100 steps and the smallest that does not, no
// run of the grid lies.
constexpr double kSlowContraction = 0.87;

// Liquid ------------------------------------------------------------------------------------------

TEST(RoundTripTest, Liquid) {
    const struct {
        float flowing, base;
    } gravities[] = {{1.0F, 1.0F}, {0.82F, 0.85F}, {1.84F, 1.9F}, {0.5F, 1.0F}};
    int runs = 0;
    for (const auto& g : gravities) {
        const LiquidProperties liquid{g.flowing, g.base};
        for (const float d : kPipes) {
            const ReferenceMeter meter(5.66646 / double{g.base}, std::sqrt(double{g.flowing}), 0,
                                       double{d});
            for (const float beta : kBetas) {
                for (const float h : kDiffPressures) {
                    MeteringRun run{SolveFor::FlowRate, d, 0.0F, h, beta};
                    const auto flow = SolveLiquid(run, liquid).value;
                    ASSERT_TRUE(flow.has_value());
                    const double exactFlow = meter.Flow(double{beta}, double{h});
                    EXPECT_NEAR(double{*flow}, exactFlow, exactFlow * 3e-7);

                    run = {SolveFor::DiffPressure, d, *flow, 0.0F, beta};
                    const auto backH = SolveLiquid(run, liquid).value;
                    ASSERT_TRUE(backH.has_value());
                    EXPECT_NEAR(double{*backH}, double{h}, double{h} * 1e-6);
                    const double exactH = meter.DiffPressure(double{*flow}, double{beta});
                    EXPECT_NEAR(double{*backH}, exactH, exactH * 1e-6);

                    run = {SolveFor::Beta, d, *flow, h, 0.0F};
                    const auto backBeta = SolveLiquid(run, liquid).value;
                    ASSERT_TRUE(backBeta.has_value());
                    EXPECT_NEAR(double{*backBeta}, double{beta}, kBetaDigit);
                    EXPECT_NEAR(double{*backBeta}, meter.Beta(double{*flow}, double{h}),
                                kBetaDigit);
                    ++runs;
                }
            }
        }
    }
    EXPECT_EQ(runs, 4 * 4 * 11 * 7);
}

// Gas and steam -----------------------------------------------------------------------------------

// What became of the runs of a sweep.
struct Tally {
    int runs = 0;    // with a positive expansion factor
    int noFlow = 0;  // the others

    int backToDiffPressure = 0;
    int twinBelowPeak = 0;
    int startIsRoot = 0;
    int startHasNegativeY = 0;
    int drivenFromStartBeyondPeak = 0;
    int tooSlowNearPeak = 0;

    int backToBeta = 0;
    int smallerBetaOfSameFlow = 0;
    int betaOvershoots = 0;
};

// A fluid at some pressure: how the program solves it, and its reference.
struct SweptFluid {
    const char* name;
    Outcome (*solve)(const MeteringRun& run, float pressure);
    ReferenceMeter (*reference)(float pressure, float diameter);
    double band;  // half the width of the band of s for the differential pressure
    std::string_view diffPressureUnresolved;
    std::string_view betaOutOfRange;
    std::string_view betaUnresolved;
    Tally tally;
};

std::ostream& operator<<(std::ostream& out, const SweptFluid& fluid) {
    return out << fluid.name;
}

constexpr std::string_view kFlowTooHigh =
    "Unable to calculate differential pressure for conditions (Flow rate too high).";

class GasAndSteam : public ::testing::TestWithParam<SweptFluid> {
  protected:
    static void SolveDiffPressureBack(const ReferenceMeter& meter, const MeteringRun& forward,
                                      float flow, float pressure, Tally& tally) {
        const SweptFluid& fluid = GetParam();
        const double beta{forward.beta};
        const double h{forward.diffPressInH2O};
        const double start = meter.Expansion(beta, 50);
        const double exactH = meter.DiffPressure(double{flow}, beta);
        const double contraction = exactH == 0 ? 1 : meter.DiffPressureContraction(beta, exactH);

        MeteringRun run{SolveFor::DiffPressure, forward.pipeDiameterIn, flow, 0.0F, forward.beta};
        const Outcome outcome = fluid.solve(run, pressure);
        if (!outcome.value) {
            if (start >= 1) {
                EXPECT_EQ(outcome.message, kFlowTooHigh);
                ++tally.startHasNegativeY;
            } else if (outcome.message == kFlowTooHigh) {
                EXPECT_GT(start, 1.0 / 3) << "the start lies beyond the peak";
                EXPECT_GT(double{flow}, meter.Flow(beta, 50) * 0.999999);
                EXPECT_GT(exactH, 0) << "though there is a root";
                ++tally.drivenFromStartBeyondPeak;
            } else {
                EXPECT_EQ(outcome.message, fluid.diffPressureUnresolved);
                EXPECT_GT(contraction, kSlowContraction);
                ++tally.tooSlowNearPeak;
            }
            return;
        }
        if (*outcome.value == 50.0F) {
            EXPECT_EQ(h, 50);
            ++tally.startIsRoot;
            return;
        }
        EXPECT_NEAR(double{*outcome.value} / exactH, 1,
                    (fluid.band + kSingleNoise) / (1 - contraction));
        if (meter.Expansion(beta, h) < 1.0 / 3) {
            EXPECT_NEAR(exactH / h, 1, 2e-6);
            ++tally.backToDiffPressure;
        } else {
            EXPECT_LT(exactH, h);
            ++tally.twinBelowPeak;
        }
    }

    static void SolveBetaBack(const ReferenceMeter& meter, const MeteringRun& forward, float flow,
                              float pressure, Tally& tally) {
        const SweptFluid& fluid = GetParam();
        const double beta{forward.beta};
        const double h{forward.diffPressInH2O};
        const double contraction = meter.BetaContraction(beta, h);

        const MeteringRun run{SolveFor::Beta, forward.pipeDiameterIn, flow, forward.diffPressInH2O,
                              0.0F};
        const Outcome outcome = fluid.solve(run, pressure);
        if (!outcome.value) {
            EXPECT_TRUE(outcome.message == fluid.betaOutOfRange ||
                        outcome.message == fluid.betaUnresolved)
                << outcome.message;
            EXPECT_GT(std::fabs(contraction), 1);
            ++tally.betaOvershoots;
            return;
        }
        const double found{*outcome.value};
        if (std::fabs(found - beta) <= kBetaDigit) {
            EXPECT_LT(std::fabs(contraction), 1);
            ++tally.backToBeta;
            return;
        }
        EXPECT_GT(contraction, 1) << "the flow falls with beta";
        EXPECT_LT(found, beta);
        EXPECT_NEAR(meter.Flow(found, h) / double{flow}, 1, 5e-5);
        ++tally.smallerBetaOfSameFlow;
    }
};

TEST_P(GasAndSteam, ThereAndBack) {
    const SweptFluid& fluid = GetParam();
    Tally tally;
    for (const float d : kPipes) {
        for (const float beta : kBetas) {
            for (const float h : kDiffPressures) {
                for (const float pressure : kPressures) {
                    SCOPED_TRACE(std::to_string(d) + " in, beta " + std::to_string(beta) + ", " +
                                 std::to_string(h) + " inH2O, " + std::to_string(pressure));
                    const ReferenceMeter meter = fluid.reference(pressure, d);
                    const MeteringRun run{SolveFor::FlowRate, d, 0.0F, h, beta};
                    const Outcome flow = fluid.solve(run, pressure);
                    if (meter.Expansion(double{beta}, double{h}) > 1) {
                        EXPECT_EQ(flow.value, std::nullopt);
                        ++tally.noFlow;
                        continue;
                    }
                    ASSERT_TRUE(flow.value.has_value());
                    // A small Y is the difference of two numbers near 1.
                    const double exactFlow = meter.Flow(double{beta}, double{h});
                    const double y = 1 - meter.Expansion(double{beta}, double{h});
                    EXPECT_NEAR(double{*flow.value}, exactFlow, exactFlow / y * 4e-7);
                    ++tally.runs;
                    SolveDiffPressureBack(meter, run, *flow.value, pressure, tally);
                    SolveBetaBack(meter, run, *flow.value, pressure, tally);
                }
            }
        }
    }
    EXPECT_EQ(tally.runs, fluid.tally.runs);
    EXPECT_EQ(tally.noFlow, fluid.tally.noFlow);
    EXPECT_EQ(tally.backToDiffPressure, fluid.tally.backToDiffPressure);
    EXPECT_EQ(tally.twinBelowPeak, fluid.tally.twinBelowPeak);
    EXPECT_EQ(tally.startIsRoot, fluid.tally.startIsRoot);
    EXPECT_EQ(tally.startHasNegativeY, fluid.tally.startHasNegativeY);
    EXPECT_EQ(tally.drivenFromStartBeyondPeak, fluid.tally.drivenFromStartBeyondPeak);
    EXPECT_EQ(tally.tooSlowNearPeak, fluid.tally.tooSlowNearPeak);
    EXPECT_EQ(tally.backToBeta, fluid.tally.backToBeta);
    EXPECT_EQ(tally.smallerBetaOfSameFlow, fluid.tally.smallerBetaOfSameFlow);
    EXPECT_EQ(tally.betaOvershoots, fluid.tally.betaOvershoots);
}

// A light gas, warm; its density and Zf where they are typed.
constexpr float kFlowingTempR = 559.67F;
constexpr float kGravity = 0.6F;
constexpr float kTypedZf = 0.93F;
float TypedDensity(float pressure) {
    return pressure * 0.0031F;
}

template <FlowKind kind, CompCorrection correction>
Outcome SolveGas(const MeteringRun& run, float pressure) {
    return SolveGas(run, {kind, correction, pressure, 14.7F, kFlowingTempR, 519.67F, kGravity,
                          TypedDensity(pressure), kTypedZf});
}

double IdealDensity(float pressure) {
    return 2.698825 * double{pressure} * double{kGravity} / double{kFlowingTempR};
}

template <CompCorrection correction>
double ZfOf(float pressure) {
    switch (correction) {
        case CompCorrection::Density:
            return IdealDensity(pressure) / double{TypedDensity(pressure)};
        case CompCorrection::Zf:
            return double{kTypedZf};
        case CompCorrection::None:
            break;
    }
    return 1;
}

template <CompCorrection correction>
ReferenceMeter MassMeter(float pressure, float diameter) {
    return {358.927 / (39.6619322 / 519.67),
            std::sqrt(IdealDensity(pressure) / ZfOf<correction>(pressure)), double{pressure},
            double{diameter}};
}

template <CompCorrection correction>
ReferenceMeter VolumeMeter(float pressure, float diameter) {
    return {218.468 * 519.67 / 14.7,
            std::sqrt(double{pressure} /
                      (double{kFlowingTempR} * double{kGravity} * ZfOf<correction>(pressure))),
            double{pressure}, double{diameter}};
}

float SteamDensity(float pressure) {
    return pressure * 0.0025F;
}
Outcome SolveSteam(const MeteringRun& run, float pressure) {
    return SolveSteam(run, {pressure, SteamDensity(pressure)});
}
ReferenceMeter SteamMeter(float pressure, float diameter) {
    return {358.927, std::sqrt(double{SteamDensity(pressure)}), double{pressure}, double{diameter}};
}

constexpr std::string_view kGasDpUnresolved =
    "Unable to resolve differential pressure for conditions.";
constexpr std::string_view kGasBetaUnresolved = "Unable to resolve beta for conditions.";
constexpr std::string_view kSteamDpUnresolved =
    "Unable to resolve Differential Pressure for conditions.";
constexpr std::string_view kSteamBetaUnresolved = "Unable to resolve Beta Ratio for conditions.";

// What Y allows does not depend on the form of the equation, nor on the pipe. The narrow band of
// steam needs more steps.
constexpr Tally kGasTally{1176, 364, 768, 40, 176, 88, 44, 60, 964, 8, 204};
constexpr Tally kSteamTally{1176, 364, 748, 36, 176, 88, 44, 84, 964, 8, 204};

template <FlowKind kind, CompCorrection correction>
SweptFluid Gas(const char* name) {
    return {name,
            SolveGas<kind, correction>,
            kind == FlowKind::Mass ? MassMeter<correction> : VolumeMeter<correction>,
            1e-6,
            kGasDpUnresolved,
            kBetaTooLarge,
            kGasBetaUnresolved,
            kGasTally};
}

const SweptFluid kSweptFluids[] = {
    Gas<FlowKind::Volume, CompCorrection::None>("GasVolume"),
    Gas<FlowKind::Volume, CompCorrection::Zf>("GasVolumeZf"),
    Gas<FlowKind::Volume, CompCorrection::Density>("GasVolumeDensity"),
    Gas<FlowKind::Mass, CompCorrection::None>("GasMass"),
    Gas<FlowKind::Mass, CompCorrection::Zf>("GasMassZf"),
    Gas<FlowKind::Mass, CompCorrection::Density>("GasMassDensity"),
    {"Steam", SolveSteam, SteamMeter, 1e-7, kSteamDpUnresolved, "", kSteamBetaUnresolved,
     kSteamTally},
};

INSTANTIATE_TEST_SUITE_P(RoundTrip, GasAndSteam, ::testing::ValuesIn(kSweptFluids), kRowName);

}  // namespace

}  // namespace tarvix
