// The unit factors against the physical definitions.
//   unit LIST TEXT FACTOR PLAIN DIFFERENCE ON FLOW    PLAIN: worked out from the definitions, in
//   the
//                                                     factor's unit; the differences in percent,
//                                                     that of the flow for an entry in this unit
//                                                     (of a flow unit: of the flow shown)
//   pipe SIZE SCHEDULE TABLE PLAIN DIFFERENCE         inside diameter, inches
// The definitions: inch and pound exact, standard gravity, conventional mercury (13595.1 kg/m3),
// water of 20 deg C (998.2063 kg/m3) for columns of water; for the mass of a liquid, water of
// specific gravity 1 (62.366 lb per cubic foot), and for that of a gas, air of 39.6619322 / 519.67.
#include "calc/orifice_gas.h"
#include "tests/docs/data_lines.h"
#include "tests/docs/estimate_error.h"
#include "units/flow_units.h"
#include "units/nominal_sizes.h"
#include "units/unit_tables.h"

#include <cmath>
#include <cstdio>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tarvix::accuracy {

namespace {

constexpr double kGravity = 9.80665;
constexpr double kMercury = 13595.1;
constexpr double kPascalPerInchMercury = kMercury * kGravity * kMetersPerInch;
constexpr double kPascalPerMmMercury = kMercury * kGravity * 1e-3;
constexpr double kGallonM3 = 231 * kMetersPerInch * kMetersPerInch * kMetersPerInch;
constexpr double kGallonKg = kGallonM3 * kWaterKgPerM3;  // of water
constexpr double kCubicFootM3 = 0.028316846592;

struct Plain {
    std::string_view text;
    double value;
};

constexpr Plain kPressures[] = {
    {"PSI", kPascalPerPsi},
    {"kg/cm2", 98066.5},
    {"kPa", 1000},
    {"bar", 1e5},
    {"mm of Mercury", kPascalPerMmMercury},
    {"Pa", 1},
    {"mbar", 100},
    {"inches of W.C", kPascalPerInchWater},
};
constexpr Plain kDiffPressures[] = {
    {"Inches Water", kPascalPerInchWater},
    {"Inches of Mercury", kPascalPerInchMercury},
    {"PSI", kPascalPerPsi},
    {"mm of Water", kPascalPerInchWater / 25.4},
    {"mm of Mercury", kPascalPerMmMercury},
    {"bar", 1e5},
    {"mbar", 100},
    {"kPa", 1000},
    {"Pa", 1},
};
constexpr Plain kDensities[] = {
    {"lb/cubic foot", 1},
    {"kg/cubic meter", 1 / kKgPerM3PerPoundPerFt3},
};
constexpr Plain kTimes[] = {{"Minute", 1}, {"Hour", 60}, {"Day", 1440}, {"Second", 1.0 / 60}};
constexpr Plain kLiquidFlows[] = {
    {"Gallons", 1},
    {"Imperial Gallons", 0.00454609 / kGallonM3},
    {"Barrels", 42},
    {"Dekaliters", 0.01 / kGallonM3},
    {"Liters", 0.001 / kGallonM3},
    {"Cubic Meters ", 1 / kGallonM3},
    {"Grams", 0.001 / kGallonKg},
    {"Kilograms", 1 / kGallonKg},
    {"Tons", 2000 * kKgPerPound / kGallonKg},
    {"Pounds", kKgPerPound / kGallonKg},
    {"Metric Tons", 1000 / kGallonKg},
    {"Long Tons", 2240 * kKgPerPound / kGallonKg},
    {"Cubic Centimeters", 1e-6 / kGallonM3},
};
constexpr double kFeetPerPoundOfAir = kBaseAirDensityDenominator / kBaseAirDensityNumerator;
constexpr Plain kGasFlows[] = {
    {"Standard Cubic Feet", 1},
    {"Pounds", kFeetPerPoundOfAir},
    {"Kilograms", kFeetPerPoundOfAir / kKgPerPound},
    {"Standard Cubic Meters", 1 / kCubicFootM3},
};
constexpr Plain kSteamFlows[] = {{"Pounds", 1}, {"Kilograms", 1 / kKgPerPound}};

double PlainOf(std::span<const Plain> plains, std::string_view text) {
    for (const Plain& plain : plains) {
        if (plain.text == text) {
            return plain.value;
        }
    }
    throw std::runtime_error("no definition of " + std::string(text));
}

enum class Enters { Root, Flow };  // under the square root, or as the flow itself

// `inUnit`: the definitions' value of the calculation unit.
template <typename UnitList>
void PrintList(const char* list, const UnitList& units, std::span<const Plain> plains,
               double inUnit, Enters enters) {
    for (const auto& unit : units) {
        const double plain = PlainOf(plains, unit.text) / inUnit;
        const double ratio = double{unit.factor} / plain;
        const double onFlow = enters == Enters::Root ? std::sqrt(ratio) : 1 / ratio;
        std::printf("unit\t%s\t%s\t%.7g\t%.7g\t%.6f\t%.6f\n", list, std::string(unit.text).c_str(),
                    double{unit.factor}, plain, 100 * (ratio - 1), 100 * (onFlow - 1));
    }
}

void PrintPipe(const char* size, std::string_view schedule, double outside, double wall) {
    for (const PipeSchedule& pipe : SchedulesOf(size)) {
        if (pipe.text == schedule) {
            const double table = std::stod(std::string(pipe.insideDiameter));
            const double plain = outside - 2 * wall;
            std::printf("pipe\t%s\t%s\t%.3f\t%.3f\t%.6f\n", size, pipe.text.data(), table, plain,
                        100 * (table / plain - 1));
        }
    }
}

}  // namespace

void PrintUnits() {
    PrintList("pressure", kPressUnits, kPressures, kPascalPerPsi, Enters::Root);
    PrintList("differential pressure", kDeltaPUnits, kDiffPressures, kPascalPerInchWater,
              Enters::Root);
    PrintList("density", kDensityUnits, kDensities, 1, Enters::Root);
    PrintList("flow of liquid", FlowUnitsOf(tarvix::Fluid::Liquid).units, kLiquidFlows, 1,
              Enters::Flow);
    PrintList("flow of gas", FlowUnitsOf(tarvix::Fluid::Gas).units, kGasFlows, 1, Enters::Flow);
    PrintList("flow of steam", FlowUnitsOf(tarvix::Fluid::Steam).units, kSteamFlows, 1,
              Enters::Flow);
    // A flow is shown per time unit: a factor too large shows a flow too large.
    for (const Unit& unit : kTimeUnits) {
        const double ratio = double{unit.factor} / PlainOf(kTimes, unit.text);
        std::printf("unit\ttime\t%s\t%.7g\t%.7g\t%.6f\t%.6f\n", std::string(unit.text).c_str(),
                    double{unit.factor}, PlainOf(kTimes, unit.text), 100 * (ratio - 1),
                    100 * (ratio - 1));
    }
    // Outside diameter and wall of ASME B36.10.
    PrintPipe("6", "Sch 160 5.187", 6.625, 0.719);
    PrintPipe("14", "Sch 120", 14, 1.094);
    PrintPipe("16", "Sch 120", 16, 1.219);
}

}  // namespace tarvix::accuracy
