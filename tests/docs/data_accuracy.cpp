// The estimate against ISO 5167-2. Errors in percent, of flow, differential pressure and beta.
//   point FLUID CASE PIPE BETA RE WITHIN FLOW DP BETA      Sch 40 pipes from 2 inches
//   small FLUID CASE PIPE BETA RE FLOW DP BETA             the formula carried on to smaller pipes
//   expansion KAPPA BETA DP/P ERROR                        of Y against epsilon
//   water PIPE INH2O BETA RE WITHIN FLOW DP BETA           water of 1 cP
//   outside SIZE OF SCHEDULE MM                            pipes outside 50 mm to 1000 mm; OF: the
//                                                          schedules that the size has
// CASE is the differential pressure: "normal" 100 inches of water, "high" a quarter of the
// absolute pressure, the most that ISO 5167-2 allows for a gas. WITHIN: the limits of the standard.
#include "calc/equation_terms.h"
#include "tests/docs/data_lines.h"
#include "tests/docs/estimate_error.h"
#include "tests/docs/iso5167.h"
#include "units/nominal_sizes.h"

#include <cstdio>
#include <span>
#include <string>
#include <string_view>

namespace tarvix::accuracy {

namespace {

struct NamedFluid {
    std::string_view name;
    Fluid fluid;
};

struct NamedPipe {
    const char* nominalSize;
    float diameterIn;  // Sch 40
};

constexpr NamedFluid kFluids[] = {{"liquid", Fluid::Liquid},
                                  {"gas", Fluid::Gas},
                                  {"gas 1.67", Fluid::MonatomicGas},
                                  {"steam", Fluid::Steam}};
constexpr NamedPipe kPipes[] = {{"2", 2.067F}, {"4", 4.026F}, {"8", 7.981F}, {"24", 22.624F}};
constexpr NamedPipe kSmallPipes[] = {{"1/2", 0.622F}, {"1", 1.049F}, {"1-1/2", 1.610F}};
constexpr NamedPipe kWaterPipes[] = {{"1", 1.049F}, {"1-1/2", 1.610F}, {"2", 2.067F}, {"3", 3.068F},
                                     {"4", 4.026F}, {"6", 6.065F},     {"8", 7.981F}};
constexpr double kReynolds[] = {5e3, 1e4, 3e4, 1e5, 1e6, 1e7};

constexpr int kFirstBetaPercent = 10;
constexpr int kLastBetaPercent = 75;

constexpr float kNormalDiffPressInH2O = 100.0F;
constexpr double kHighPressureFraction = 0.25;

void PrintErrors(const Comparison& c) {
    std::printf("\t%.6f\t%.6f\t%.6f\n", c.flowErrorPercent, c.diffPressErrorPercent,
                c.betaErrorPercent);
}

void PrintPoints(const char* kind, std::span<const NamedPipe> pipes, const NamedFluid& fluid,
                 const char* caseName, float diffPressInH2O, bool withLimits) {
    for (const NamedPipe& pipe : pipes) {
        for (int percent = kFirstBetaPercent; percent <= kLastBetaPercent; ++percent) {
            const auto beta = static_cast<float>(percent / 100.0);
            for (const double reynolds : kReynolds) {
                const Comparison c =
                    Compare({fluid.fluid, pipe.diameterIn, beta, diffPressInH2O, reynolds});
                std::printf("%s\t%s\t%s\t%s\t%.2f\t%.0f", kind, fluid.name.data(), caseName,
                            pipe.nominalSize, double{beta}, reynolds);
                if (withLimits) {
                    std::printf("\t%d", c.withinLimits ? 1 : 0);
                }
                PrintErrors(c);
            }
        }
    }
}

template <typename Print>
void ForEachCase(Print print) {
    for (const NamedFluid& fluid : kFluids) {
        print(fluid, "normal", kNormalDiffPressInH2O);
        if (fluid.fluid != Fluid::Liquid) {
            print(fluid, "high", InchesOf(kHighPressureFraction));
        }
    }
}

void PrintExpansionAt(double exponent, float beta, double fractionOfPressure) {
    const auto y = double{ExpansionFactor(beta, InchesOf(fractionOfPressure), kPressurePsia)};
    const double epsilon = iso5167::Expansibility(double{beta}, 1 - fractionOfPressure, exponent);
    std::printf("expansion\t%.2f\t%.2f\t%.2f\t%.6f\n", exponent, double{beta}, fractionOfPressure,
                100 * (y / epsilon - 1));
}

// The Reynolds number at which ISO 5167-2 has water of 1 cP pass this plate.
double WaterReynolds(const NamedPipe& pipe, float beta, float diffPressInH2O) {
    constexpr double kPascalSeconds = 1e-3;
    const iso5167::MeteringConditions run{
        .diameterM = double{pipe.diameterIn} * kMetersPerInch,
        .beta = double{beta},
        .diffPressurePa = double{diffPressInH2O} * kPascalPerInchWater,
        .upstreamDensity = kWaterKgPerM3};
    const iso5167::TapSpacing taps = iso5167::FlangeTaps(run.diameterM * 1000);
    return iso5167::Reynolds(iso5167::MassFlow(run, taps, kPascalSeconds), run, kPascalSeconds);
}

void PrintErrorGrid() {
    ForEachCase([](const NamedFluid& fluid, const char* caseName, float h) {
        PrintPoints("point", kPipes, fluid, caseName, h, true);
    });
}

void PrintExpansion() {
    for (const double exponent : {1.1, 1.2, 1.3, 1.4, 1.67}) {
        for (const float beta : {0.2F, 0.5F, 0.67F, 0.75F}) {
            for (const double fraction : {0.01, 0.05, 0.10, 0.25}) {
                PrintExpansionAt(exponent, beta, fraction);
            }
        }
    }
}

void PrintSmallPipes() {
    ForEachCase([](const NamedFluid& fluid, const char* caseName, float h) {
        PrintPoints("small", kSmallPipes, fluid, caseName, h, false);
    });
    for (const NominalSize& size : kNominalSizes) {
        const auto schedules = SchedulesOf(size.value);
        for (const PipeSchedule& schedule : schedules) {
            const double mm = std::stod(std::string(schedule.insideDiameter)) * 25.4;
            if (mm < 50 || mm > 1000) {
                std::printf("outside\t%s\t%zu\t%s\t%.2f\n", size.text.data(), schedules.size(),
                            schedule.text.data(), mm);
            }
        }
    }
}

void PrintWaterLines() {
    for (const NamedPipe& pipe : kWaterPipes) {
        for (const float h : {25.0F, 100.0F}) {
            for (const float beta : {0.3F, 0.45F, 0.6F, 0.67F}) {
                const double reynolds = WaterReynolds(pipe, beta, h);
                const Comparison c = Compare({Fluid::Liquid, pipe.diameterIn, beta, h, reynolds});
                std::printf("water\t%s\t%.0f\t%.2f\t%.0f\t%d", pipe.nominalSize, double{h},
                            double{beta}, reynolds, c.withinLimits ? 1 : 0);
                PrintErrors(c);
            }
        }
    }
}

}  // namespace

void PrintAccuracy() {
    PrintErrorGrid();
    PrintExpansion();
    PrintSmallPipes();
    PrintWaterLines();
}

}  // namespace tarvix::accuracy
