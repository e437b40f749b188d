// What entries and conditions that the program does not judge cost, in percent of the flow.
//   cost NAME PERCENT
#include "calc/orifice_steam.h"
#include "tests/core/locales.h"
#include "tests/docs/data_lines.h"
#include "tests/docs/estimate_error.h"
#include "tests/docs/iapws_if97.h"
#include "tests/docs/iso5167.h"
#include "tests/docs/random_sheets.h"
#include "units/bore_and_beta.h"
#include "units/unit_tables.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace tarvix::accuracy {

namespace {

void Print(const char* name, double ratio) {
    std::printf("cost\t%s\t%.6f\n", name, 100 * (ratio - 1));
}

double GasFlow(float psia, float h) {
    return double{SolveGas({SolveFor::FlowRate, 4.026F, 0, h, 0.5F}, GasAt(psia)).value.value()};
}

// The downstream pressure, entered instead of the upstream one.
void PrintDownstream() {
    for (const int percent : {5, 10, 25}) {
        const float h = InchesOf(percent / 100.0);
        const auto downstream = static_cast<float>(double{kPressurePsia} * (100 - percent) / 100);
        const std::string name = "downstream pressure, dp/p 0." +
                                 std::string(percent < 10 ? "0" : "") + std::to_string(percent);
        Print(name.c_str(), GasFlow(downstream, h) / GasFlow(kPressurePsia, h));
        // Of this, by the density alone.
        Print((name + ", density alone").c_str(), std::sqrt((100 - percent) / 100.0));
    }
}

void PrintGas() {
    for (const double zf : {0.95, 0.9, 0.8, 0.7}) {
        char name[32];
        std::snprintf(name, sizeof name, "Zf %.2f", zf);
        Print(name, std::sqrt(zf));
    }
    // The cubic meter of 0 deg C and 101.325 kPa holds more gas than that of 60 deg F and 14.7
    // psia.
    Print("standard against normal cubic meter",
          (519.67 / 491.67) * (101.325 / 6.894757293 / 14.7));
    Print("atmosphere of 12.2 psi, 5 psi gauge", GasFlow(19.7F, 20) / GasFlow(17.2F, 20));
}

// Saturated steam of the table where there is superheated or wet steam.
void PrintSteamStates() {
    for (const double psig : {100.0, 600.0}) {
        const double p = (psig + 14.7) * kPascalPerPsi * 1e-6;
        const double saturated = if97::SaturatedVaporDensity(p);
        for (const int degF : {20, 50, 100, 200}) {
            const double temperature = if97::SaturationTemperature(p) + degF / 1.8;
            char name[64];
            std::snprintf(name, sizeof name, "superheat %d F, %.0f psig", degF, psig);
            Print(name, std::sqrt(saturated * if97::VaporVolume(p, temperature)));
        }
    }
    // As a homogeneous mixture, the water's volume left out.
    Print("wetness 5 percent", std::sqrt(0.95));
    Print("wetness 10 percent", std::sqrt(0.90));
}

// The flow goes with the square of a diameter.
void PrintRounding() {
    for (const float d : {0.622F, 2.067F, 4.026F}) {
        char name[64];
        std::snprintf(name, sizeof name, "pipe in centimeters, %.3f in", double{d});
        Print(name, std::pow(1 + 0.005 / 2.54 / double{d}, 2));
        double worst = 0;
        for (int i = 1000; i <= 7500; ++i) {
            const auto beta = static_cast<float>(i / 10000.0);
            const float bore = BoreFromBeta(beta, d, kLengthUnits[0].factor).value();
            const double shown =
                ValueOfText(FormatNumber(bore, 3, testing::kUnitedStates, Grouping::Off));
            const double back = shown / double{d};
            const auto carried = [](double b) { return b * b / std::sqrt(1 - std::pow(b, 4)); };
            const double ratio = carried(back) / carried(double{beta});
            worst = std::max(worst, std::fabs(ratio - 1));
        }
        std::snprintf(name, sizeof name, "bore of 3 decimals, %.3f in", double{d});
        Print(name, 1 + worst);
    }
}

// ISO 5167-2 carried on beyond its limits: flow of a liquid, 0.6 / C.
void PrintBeyond() {
    const auto print = [](const char* name, double beta, double mm, double reynolds) {
        Print(name,
              0.6 / iso5167::DischargeCoefficient(beta, mm, reynolds, iso5167::FlangeTaps(mm)));
    };
    print("Re 4000, 4 in, beta 0.5", 0.5, 102.26, 4000);
    print("Re 2000, 4 in, beta 0.5", 0.5, 102.26, 2000);
    print("Re 2000, 4 in, beta 0.7", 0.7, 102.26, 2000);
    print("beta 0.80, 4 in, Re 1e5", 0.80, 102.26, 1e5);
    print("beta 0.85, 4 in, Re 1e5", 0.85, 102.26, 1e5);
    print("42 in, beta 0.5, Re 1e7", 0.5, 41.25 * 25.4, 1e7);
    print("42 in, beta 0.7, Re 1e6", 0.7, 41.25 * 25.4, 1e6);
    print("bore 5 mm, 2 in, Re 1e4", 5 / 52.5, 52.5, 1e4);
    print("bore 10 mm, 2 in, Re 1e5", 10 / 52.5, 52.5, 1e5);
    for (const int percent : {40, 60}) {
        for (const double exponent : {1.3, 1.4}) {
            const double y = 1 - (0.41 + 0.35 * std::pow(0.5, 4)) * percent / 100.0 *
                                     kInchesPerPsi / 27.707 / 1.3;
            char name[64];
            std::snprintf(name, sizeof name, "dp/p 0.%d, exponent %.1f", percent, exponent);
            Print(name, y / iso5167::Expansibility(0.5, 1 - percent / 100.0, exponent));
        }
    }
    // Stainless steel, 17.3e-6 / K, a plate bored at 68 deg F.
    Print("thermal expansion, 500 F", 1 / std::pow(1 + 17.3e-6 * (500 - 68) / 1.8, 2));
}

}  // namespace

void PrintCosts() {
    PrintDownstream();
    PrintGas();
    PrintSteamStates();
    PrintRounding();
    PrintBeyond();
}

}  // namespace tarvix::accuracy
