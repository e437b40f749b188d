// Published figures beside the program's and the reference calculations' own.
//   constant NAME OURS PUBLISHED WORKED    of the flow equations; WORKED: from SI units with an
//                                          inch of water of 60 deg F, and the molar mass of air
//   example NAME VALUE                     water-like fluid through 50 mm in 73.66 mm, 17 kPa, kg/s
//   annex TAPS BETA RE PUBLISHED OURS      discharge coefficients of ISO 5167-2:2003
//   if97 WHAT PUBLISHED OURS               the release's own verification values
#include "app/sheet/derived_densities.h"
#include "tests/core/locales.h"
#include "tests/core/recording_platform.h"
#include "tests/docs/data_lines.h"
#include "tests/docs/estimate_error.h"
#include "tests/docs/iapws_if97.h"
#include "tests/docs/iso5167.h"
#include "tests/docs/random_sheets.h"
#include "units/flow_units.h"
#include "units/pipe_id_texts.h"
#include "units/unit_tables.h"

#include <cmath>
#include <cstdio>
#include <numbers>

namespace tarvix::accuracy {

namespace {

// Water of 60 deg F, 999.016 kg/m3.
constexpr double kPascalPerInchAt60F = 999.016 * 9.80665 * 0.0254;
constexpr double kAirMolarMass = 28.9625;
constexpr double kGasConstant = 10.7316;

double MassConstant(double pascalPerInch) {
    return std::numbers::pi / 4 * std::sqrt(2.0) * kMetersPerInch * kMetersPerInch *
           std::sqrt(pascalPerInch * kKgPerM3PerPoundPerFt3) / kKgPerPound * 3600;
}

void PrintConstants() {
    const double mass = MassConstant(kPascalPerInchAt60F);
    std::printf("constant\tKM\t358.927\t359.072\t%.4f\n", mass);
    std::printf("constant\tKV\t218.468\t218.573\t%.4f\n",
                mass / std::sqrt(kAirMolarMass / kGasConstant));
    std::printf("inchwater\t%.3f\t%.3f\n", kPascalPerInchWater, kPascalPerInchAt60F);
}

constexpr double kExampleMm = 73.66;
constexpr double kExampleViscosity = 0.0011;  // Pa s
constexpr iso5167::MeteringConditions kExample{.diameterM = kExampleMm / 1000,
                                               .beta = 50 / kExampleMm,
                                               .diffPressurePa = 17000,
                                               .upstreamDensity = 999.1};

// The same run as typed into the window.
std::string ExampleInTheWindow() {
    InputSheet sheet;
    sheet.fluid = tarvix::Fluid::Liquid;
    sheet.mode = SolveFor::FlowRate;
    const FlowUnit& kilograms = FlowUnitsOf(tarvix::Fluid::Liquid).units[7];
    sheet.flowUnit = {kilograms.text, kilograms.factor};
    sheet.flowKind = kilograms.kind;
    sheet.timeUnit = kTimeUnits[3];  // a second
    sheet.deltaPUnit = kDeltaPUnits[7];
    sheet.pressUnit = kPressUnits[0];
    sheet.densityUnit = kDensityUnits[1];
    sheet.sgCalculated = true;
    sheet.density = "999.1";
    sheet.sgf = Entry(FlowingGravityText(sheet.density, sheet.densityUnit, testing::kUnitedStates));
    sheet.pipeDiameter =
        Entry(UserEnteredPipeOf(kExampleMm, kLengthUnits[1], testing::kUnitedStates)->diameterText);
    sheet.deltaP = "17";
    sheet.beta = "0.67879";  // 50 mm / 73.66 mm
    return ShownResult(sheet).value();
}

void PrintExample() {
    const iso5167::TapSpacing flange = iso5167::FlangeTaps(kExampleMm);
    const auto print = [](const char* name, double value) {
        std::printf("example\t%s\t%.6f\n", name, value);
    };
    const auto flow = [](iso5167::TapSpacing taps, double expansibility) {
        iso5167::MeteringConditions run = kExample;
        run.expansibility = expansibility;
        return iso5167::MassFlow(run, taps, kExampleViscosity);
    };
    const double epsilon = iso5167::Expansibility(kExample.beta, 183.0 / 200, 1.33);
    const double reynolds = iso5167::Reynolds(flow(flange, 1), kExample, kExampleViscosity);
    print("published", 7.702338);
    print("D taps, expansibility", flow(iso5167::kDAndHalfDTaps, epsilon));
    print("D taps, liquid", flow(iso5167::kDAndHalfDTaps, 1));
    print("flange taps, liquid", flow(flange, 1));
    std::printf("example\twindow\t%s\n", ExampleInTheWindow().c_str());
    print("C", iso5167::DischargeCoefficient(kExample.beta, kExampleMm, reynolds, flange));
    print("epsilon", epsilon);
}

void PrintCoefficients() {
    // Annex A, table A.1 (corner taps), the row of beta 0.10.
    struct Cell {
        double reynolds;
        double published;
    };
    constexpr Cell kRow[] = {{5e3, 0.6006}, {1e4, 0.5990}, {2e4, 0.5980}, {3e4, 0.5976},
                             {5e4, 0.5972}, {7e4, 0.5970}, {1e5, 0.5969}, {3e5, 0.5966},
                             {1e6, 0.5965}, {1e7, 0.5964}, {1e8, 0.5964}};
    for (const Cell& cell : kRow) {
        std::printf("annex\tcorner\t0.10\t%.0f\t%.4f\t%.6f\n", cell.reynolds, cell.published,
                    iso5167::DischargeCoefficient(0.1, 100, cell.reynolds, iso5167::kCornerTaps));
    }
    // Air, 22.2 mm in 73.91 mm; published to 16 digits with the open library "fluids".
    constexpr double kDiameterMm = 73.91;
    const double beta = 22.2 / kDiameterMm;
    const double reynolds =
        4 * 0.124431876 / (std::numbers::pi * kDiameterMm / 1000 * 1.85861753095e-5);
    const struct {
        const char* taps = nullptr;
        iso5167::TapSpacing spacing;
        double published = 0;
    } arrangements[] = {
        {"corner", iso5167::kCornerTaps, 0.6000085121444034},
        {"D and D/2", iso5167::kDAndHalfDTaps, 0.5988219225153976},
        {"flange", iso5167::FlangeTaps(kDiameterMm), 0.5990042535666878},
    };
    for (const auto& a : arrangements) {
        std::printf("library\t%s\t%.4f\t%.0f\t%.10f\t%.10f\n", a.taps, beta, reynolds, a.published,
                    iso5167::DischargeCoefficient(beta, kDiameterMm, reynolds, a.spacing));
    }
}

void PrintIf97() {
    const auto print = [](const char* what, double published, double ours) {
        std::printf("if97\t%s\t%.9g\t%.9g\n", what, published, ours);
    };
    using namespace if97;
    print("region 2, v at 0.0035 MPa, 300 K", 39.4913866, VaporVolume(0.0035, 300));
    print("region 2, v at 0.0035 MPa, 700 K", 92.3015898, VaporVolume(0.0035, 700));
    print("region 2, v at 30 MPa, 700 K", 0.00542946619, VaporVolume(30, 700));
    print("region 3, p at 500 kg/m3, 650 K", 25.5837018, PressureNearCritical(500, 650));
    print("region 3, p at 200 kg/m3, 650 K", 22.2930643, PressureNearCritical(200, 650));
    print("region 3, p at 500 kg/m3, 750 K", 78.3095639, PressureNearCritical(500, 750));
    print("region 4, p at 300 K", 0.00353658941, SaturationPressure(300));
    print("region 4, p at 500 K", 2.63889776, SaturationPressure(500));
    print("region 4, p at 600 K", 12.3443146, SaturationPressure(600));
    print("region 4, T at 0.1 MPa", 372.755919, SaturationTemperature(0.1));
    print("region 4, T at 1 MPa", 453.035632, SaturationTemperature(1));
    print("region 4, T at 10 MPa", 584.149488, SaturationTemperature(10));
}

}  // namespace

void PrintPublished() {
    PrintConstants();
    PrintExample();
    PrintCoefficients();
    PrintIf97();
}

}  // namespace tarvix::accuracy
