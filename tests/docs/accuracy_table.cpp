// Prints the data of docs/accuracy.md and its plot as comma-separated lines, two kinds:
//   point,FLUID,CASE,PIPE,BETA,REYNOLDS,WITHIN LIMITS,FLOW ERROR %,BETA ERROR %
//   expansion,KAPPA,BETA,DIFFERENTIAL PRESSURE / PRESSURE,ERROR OF Y AGAINST EPSILON %
// CASE is the differential pressure: "normal" 100 inches of water, "high" a quarter of the
// absolute pressure, the most that ISO 5167-2 allows for a gas.
#include "calc/equation_terms.h"
#include "tests/docs/estimate_error.h"
#include "tests/docs/iso5167.h"

#include <cstdio>
#include <exception>
#include <string_view>

namespace tarvix::accuracy {

namespace {

struct NamedFluid {
    std::string_view name;
    Fluid fluid;
};

struct NamedPipe {
    int nominalSize;
    float diameterIn;  // Sch 40
};

constexpr NamedFluid kFluids[] = {
    {"liquid", Fluid::Liquid}, {"gas", Fluid::Gas}, {"steam", Fluid::Steam}};
constexpr NamedPipe kPipes[] = {{2, 2.067F}, {4, 4.026F}, {8, 7.981F}, {24, 22.624F}};
constexpr double kReynolds[] = {1e4, 3e4, 1e5, 1e6, 1e7};

constexpr int kFirstBetaPercent = 15;
constexpr int kLastBetaPercent = 67;

constexpr float kNormalDiffPressInH2O = 100.0F;
constexpr double kHighPressureFraction = 0.25;

void PrintPoints(const NamedFluid& fluid, const char* caseName, float diffPressInH2O) {
    for (const NamedPipe& pipe : kPipes) {
        for (int percent = kFirstBetaPercent; percent <= kLastBetaPercent; ++percent) {
            const auto beta = static_cast<float>(percent / 100.0);
            for (const double reynolds : kReynolds) {
                const Comparison c =
                    Compare({fluid.fluid, pipe.diameterIn, beta, diffPressInH2O, reynolds});
                std::printf("point,%s,%s,%d,%.2f,%.0f,%d,%.6f,%.6f\n", fluid.name.data(), caseName,
                            pipe.nominalSize, double{beta}, reynolds, c.withinLimits ? 1 : 0,
                            c.flowErrorPercent, c.betaErrorPercent);
            }
        }
    }
}

float DiffPressureOf(double fractionOfPressure) {  // inches of water
    return static_cast<float>(fractionOfPressure * double{kPressurePsia} * kPascalPerPsi /
                              kPascalPerInchWater);
}

void PrintExpansionAt(double exponent, float beta, double fractionOfPressure) {
    const auto y = double{ExpansionFactor(beta, DiffPressureOf(fractionOfPressure), kPressurePsia)};
    const double epsilon = iso5167::Expansibility(double{beta}, 1 - fractionOfPressure, exponent);
    std::printf("expansion,%.2f,%.2f,%.2f,%.6f\n", exponent, double{beta}, fractionOfPressure,
                100 * (y / epsilon - 1));
}

void PrintExpansion() {
    for (const double exponent : {1.1, 1.2, 1.3, 1.4, 1.67}) {
        for (const float beta : {0.2F, 0.5F, 0.67F}) {
            for (const double fraction : {0.01, 0.05, 0.10, 0.25}) {
                PrintExpansionAt(exponent, beta, fraction);
            }
        }
    }
}

void PrintAll() {
    for (const NamedFluid& fluid : kFluids) {
        PrintPoints(fluid, "normal", kNormalDiffPressInH2O);
        if (fluid.fluid != Fluid::Liquid) {
            PrintPoints(fluid, "high", DiffPressureOf(kHighPressureFraction));
        }
    }
    PrintExpansion();
}

}  // namespace

}  // namespace tarvix::accuracy

int main() {
    try {
        tarvix::accuracy::PrintAll();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "accuracy_table: %s\n", error.what());
        return 1;
    }
    return 0;
}
