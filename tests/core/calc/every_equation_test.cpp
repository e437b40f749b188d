// What the equations of liquid, gas and steam have in common: runs there and back, what gives
// nothing, a beta of 1 or more.
#include "calc/equations.h"
#include "named_row.h"
#include "outcomes.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

struct RunRow : NamedRow {
    Equation solve;
    float diameter, beta, diffPressure;
    float flow;              // in single precision, each stored quantity rounded
    double exactFlow;        // in double precision throughout
    float backDiffPressure;  // of `flow`; of gas and steam within the band
    float backBeta;
};

class EveryEquation : public ::testing::TestWithParam<RunRow> {
  protected:
    const RunRow& row = GetParam();

    // The run, solved for its flow, differential pressure or beta; what is solved for is not read.
    MeteringRun Run(SolveFor solveFor) const {
        MeteringRun run{solveFor, row.diameter, row.flow, row.diffPressure, row.beta};
        run.*Unknown(solveFor) = 7.0F;
        return run;
    }

    static float MeteringRun::*Unknown(SolveFor solveFor) {
        return solveFor == SolveFor::FlowRate       ? &MeteringRun::flow
               : solveFor == SolveFor::DiffPressure ? &MeteringRun::diffPressInH2O
                                                    : &MeteringRun::beta;
    }

    // The value is the expected one to the last bit, and that is near the exact one.
    static void ExpectNear(const Outcome& outcome, float value, double exact, double difference) {
        ExpectValue(outcome, value);
        EXPECT_NEAR(double{value}, exact, difference);
    }
};

constexpr SolveFor kModes[] = {SolveFor::FlowRate, SolveFor::DiffPressure, SolveFor::Beta};

TEST_P(EveryEquation, LeadsThereAndBack) {
    ExpectNear(row.solve(Run(SolveFor::FlowRate)), row.flow, row.exactFlow, row.exactFlow * 3e-7);
    ExpectNear(row.solve(Run(SolveFor::DiffPressure)), row.backDiffPressure,
               double{row.diffPressure}, double{row.diffPressure} * 1e-5);
    ExpectNear(row.solve(Run(SolveFor::Beta)), row.backBeta, double{row.beta}, 1e-5);
}

TEST_P(EveryEquation, GivesNothingWhereAFactorIsZero) {
    for (const SolveFor solveFor : kModes) {
        for (float MeteringRun::*factor : {&MeteringRun::beta, &MeteringRun::pipeDiameterIn,
                                           &MeteringRun::diffPressInH2O, &MeteringRun::flow}) {
            MeteringRun run = Run(solveFor);
            run.*factor = 0.0F;
            if (factor != Unknown(solveFor)) {
                ExpectNothing(row.solve(run));
            }
        }
    }
}

TEST_P(EveryEquation, ReportsABetaOfOneOrMore) {
    for (const SolveFor solveFor : {SolveFor::FlowRate, SolveFor::DiffPressure}) {
        MeteringRun run = Run(solveFor);
        for (const float beta : {1.0F, std::nextafter(1.0F, 2.0F), 2.0F, 1e30F}) {
            run.beta = beta;
            ExpectMessage(row.solve(run), "Beta Ratio must be less than 1.");
        }
        // A zero beside it is still silent.
        run.pipeDiameterIn = 0.0F;
        ExpectNothing(row.solve(run));
    }
    MeteringRun run = Run(SolveFor::FlowRate);
    run.beta = std::nextafter(1.0F, 0.0F);
    EXPECT_EQ(row.solve(run).message, "");
}

constexpr float kOdd[] = {0.0F, 1e-45F, 1e-38F, 1e-20F, 0.001F, 0.5F,  0.999999F,
                          1.0F, 50.0F,  1e5F,   1e20F,  3e38F,  -1.0F, -1e30F};

// Whatever the inputs: a finite value or a message or neither. Returns how many values there are.
int ValuesOfOddRuns(const Equation& solve, float diameter) {
    int values = 0;
    for (const SolveFor solveFor : kModes) {
        for (const float a : kOdd) {
            for (const float b : kOdd) {
                const Outcome outcome = solve({solveFor, diameter, a, b, a < 0 ? 0.5F : a});
                EXPECT_FALSE(outcome.value && !outcome.message.empty()) << a << ' ' << b;
                EXPECT_TRUE(!outcome.value || std::isfinite(*outcome.value)) << a << ' ' << b;
                values += outcome.value ? 1 : 0;
            }
        }
    }
    return values;
}

TEST_P(EveryEquation, IsBrokenByNoInput) {
    EXPECT_GT(ValuesOfOddRuns(row.solve, row.diameter), 30);
}

TEST(EquationsTest, AreBrokenByNoPressure) {
    int values = 0;
    for (const float pressure : kOdd) {
        for (const Equation& equation :
             {Air(kVolume, pressure), Air(kMass, pressure), Steam(pressure, 0.3F)}) {
            values += ValuesOfOddRuns(equation, 2.067F);
        }
    }
    EXPECT_GT(values, 1500);
}

// clang-format off
const RunRow kRuns[] = {
    // Liquid: flowing and base gravity.                      D       beta   h        flow           exact flow     h back        beta back
    {"FourInchWater",  Liquid(1.0F, 1.0F),                    4.026F, 0.5F,  100.0F,  142.286926F,   142.2869252,   99.9999924F,  0.5F},
    {"TwoInchOil",     Liquid(0.82F, 0.85F),                  2.067F, 0.65F, 50.25F,  51.1357422F,   51.13574132,   50.25F,       0.65F},
    {"HalfInchBrine",  Liquid(1.2F, 1.18F),                   0.622F, 0.2F,  1.5F,    0.0598695278F, 0.05986952454, 1.5F,         0.2F},
    {"FortyTwoInch",   Liquid(0.7F, 0.72F),                   41.25F, 0.75F, 400.0F,  91470.4844F,   91470.48186,   400.0F,       0.75F},
    {"SmallBeta",      Liquid(1.0F, 1.0F),                    10.02F, 0.02F, 9000.0F, 12.9532824F,   12.95328204,   8999.99902F,  0.02F},
    {"LargeBeta",      Liquid(0.5F, 0.6F),                    7.981F, 0.95F, 25.0F,   2674.01562F,   2674.015644,   24.9999981F,  0.95F},
    {"LightOverHeavy", Liquid(0.6F, 1.4F),                    6.065F, 0.4F,  250.0F,  177.334686F,   177.3346755,   250.0F,       0.4F},
    {"TinyPressure",   Liquid(1.0F, 1.0F),                    1.049F, 0.3F,  0.0004F, 0.00676165009F, 0.006761649644, 0.000400000019F, 0.3F},
    // Gas: P, Tf, G, density, Zf.
    {"Air",                   Gas(kVolume, kNone,    114.7F,  519.67F, 1.0F,  0.0F,  0.0F),  2.067F, 0.5F,  100.0F, 23765.0527F, 23765.05233, 99.9997101F, 0.5F},
    {"NaturalGasHot",         Gas(kVolume, kNone,    514.7F,  619.67F, 0.6F,  0.0F,  0.0F),  4.026F, 0.6F,  50.5F,  242029.312F, 242029.2889, 50.4998474F, 0.600000024F},
    {"HeavyCold",             Gas(kVolume, kNone,    29.7F,   429.67F, 2.1F,  0.0F,  0.0F),  10.02F, 0.35F, 20.0F,  46231.2383F, 46231.23755, 20.0000725F, 0.349999994F},
    {"TypedZf",               Gas(kVolume, kZf,      514.7F,  579.67F, 0.6F,  0.0F,  0.92F), 6.065F, 0.7F,  75.0F,  1050286.5F,  1050286.428, 74.9997787F, 0.699999988F},
    {"TypedZfAboveOne",       Gas(kVolume, kZf,      2014.7F, 519.67F, 0.07F, 0.0F,  1.15F), 3.068F, 0.25F, 300.0F, 327759.219F, 327759.2074, 299.998993F, 0.25F},
    {"TypedDensity",          Gas(kVolume, kDensity, 214.7F,  559.67F, 0.65F, 0.68F, 0.0F),  2.067F, 0.55F, 120.0F, 52789.8008F, 52789.79768, 119.999611F, 0.550000012F},
    {"TypedDensityHeavy",     Gas(kVolume, kDensity, 1014.7F, 519.67F, 1.5F,  9.5F,  0.0F),  23.25F, 0.45F, 60.0F,  5014972.5F,  5014972.771, 59.9997902F, 0.449999988F},
    {"MassAir",               Gas(kMass,   kNone,    114.7F,  519.67F, 1.0F,  0.0F,  0.0F),  2.067F, 0.5F,  100.0F, 23773.2148F, 23773.21403, 99.9997025F, 0.5F},
    {"MassNaturalGasHot",     Gas(kMass,   kNone,    514.7F,  619.67F, 0.6F,  0.0F,  0.0F),  4.026F, 0.6F,  50.5F,  145267.469F, 145267.4516, 50.4998436F, 0.600000024F},
    {"MassHeavyCold",         Gas(kMass,   kNone,    29.7F,   429.67F, 2.1F,  0.0F,  0.0F),  10.02F, 0.35F, 20.0F,  97118.9531F, 97118.93682, 20.0000763F, 0.349999994F},
    {"MassTypedZf",           Gas(kMass,   kZf,      514.7F,  579.67F, 0.6F,  0.0F,  0.92F), 6.065F, 0.7F,  75.0F,  630388.375F, 630388.3037, 74.9997711F, 0.699999988F},
    {"MassTypedZfAboveOne",   Gas(kMass,   kZf,      2014.7F, 519.67F, 0.07F, 0.0F,  1.15F), 3.068F, 0.25F, 300.0F, 22951.0254F, 22951.02404, 299.998962F, 0.25F},
    {"MassTypedDensity",      Gas(kMass,   kDensity, 214.7F,  559.67F, 0.65F, 0.68F, 0.0F),  2.067F, 0.55F, 120.0F, 34325.1523F, 34325.15157, 119.999596F, 0.550000012F},
    {"MassTypedDensityHeavy", Gas(kMass,   kDensity, 1014.7F, 519.67F, 1.5F,  9.5F,  0.0F),  23.25F, 0.45F, 60.0F,  7525043.0F,  7525042.616, 59.999794F,  0.449999988F},
    // Steam: P and density.
    {"HundredPsigSaturated",  Steam(114.7F,  0.25704F),       2.067F, 0.5F,  100.0F, 1191.87097F, 1191.87092,  99.9999847F, 0.5F},
    {"Atmospheric",           Steam(14.7F,   0.03738F),       4.026F, 0.6F,  25.0F,  1274.08496F, 1274.084883, 25.0000038F, 0.600000024F},
    {"HighPressure",          Steam(3014.7F, 11.86182F),      10.02F, 0.4F,  500.0F, 269380.562F, 269380.5676, 499.999847F, 0.400000006F},
    {"Superheated",           Steam(214.7F,  0.35F),          6.065F, 0.7F,  80.5F,  23514.168F,  23514.16703, 80.4999847F, 0.699999988F},
    {"SteamAtSmallBeta",      Steam(64.7F,   0.14969F),       1.049F, 0.15F, 10.0F,  6.51376724F, 6.51376693,  10.0000029F, 0.150000006F},
    {"LargePipe",             Steam(164.7F,  0.36283F),       41.25F, 0.75F, 150.0F, 1814970.88F, 1814970.858, 149.999954F, 0.75F},
    {"AboveStandardRange",    Steam(114.7F,  0.25704F),       3.068F, 0.8F,  40.0F,  5384.83301F, 5384.833043, 40.0000076F, 0.800000012F},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Equations, EveryEquation, ::testing::ValuesIn(kRuns), kRowName);

}  // namespace
}  // namespace tarvix::testing
