// Random runs through the program's checks, equations and number texts, against the solver in
// double precision.
//   random FLUID MODE RUNS SHOWN LARGEST     the largest difference that the last shown digit does
//                                            not explain: of flow and differential pressure as a
//                                            share of the value, of beta as it is
//   trip FLUID RUNS DP BETA                  the flow of a run, solved back in calculation units:
//                                            largest relative difference of the differential
//                                            pressure, largest difference of beta
//   invariance LIST UNITS LARGEST            the same run in every unit of a list
#include "calc/orifice_liquid.h"
#include "calc/orifice_steam.h"
#include "tests/docs/data_lines.h"
#include "tests/docs/estimate_error.h"
#include "tests/docs/random_sheets.h"
#include "units/flow_units.h"
#include "units/unit_tables.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <span>
#include <stdexcept>

namespace tarvix::accuracy {

namespace {

struct NamedMode {
    const char* name;
    SolveFor mode;
};
constexpr NamedMode kModes[] = {
    {"flow", SolveFor::FlowRate}, {"dp", SolveFor::DiffPressure}, {"beta", SolveFor::Beta}};
struct NamedFluid {
    const char* name;
    tarvix::Fluid code;
};
constexpr NamedFluid kFluids[] = {{"liquid", tarvix::Fluid::Liquid},
                                  {"gas", tarvix::Fluid::Gas},
                                  {"steam", tarvix::Fluid::Steam}};

const UnitFactors& Units() {
    static const UnitFactors units(TARVIX_UNITS);
    return units;
}

// What the last digit does not explain.
double Unexplained(const std::string& shown, double exact, SolveFor mode) {
    const double difference =
        std::max(std::fabs(ValueOfText(shown) - exact) - HalfOfLastDigit(shown), 0.0);
    return mode == SolveFor::Beta ? difference : difference / exact;
}

void PrintRuns(const NamedFluid& fluid, const NamedMode& mode, std::uint32_t seed, int runs) {
    RandomSheets sheets(seed, Units());
    int shown = 0;
    double largest = 0;
    for (int i = 0; i < runs; ++i) {
        const InputSheet sheet = sheets.Next(fluid.code, mode.mode);
        if (const auto text = ShownResult(sheet)) {
            ++shown;
            largest = std::max(largest, Unexplained(*text, ExactResult(sheet, Units()), mode.mode));
        }
    }
    std::printf("random\t%s\t%s\t%d\t%d\t%.3e\n", fluid.name, mode.name, runs, shown, largest);
}

// A run of each fluid whose flow has 6 digits or more, in the first unit of each list but that of
// the differential pressure, which is inches of water.
InputSheet PlainSheet(tarvix::Fluid fluid) {
    InputSheet sheet;
    sheet.fluid = fluid;
    sheet.flowUnit = {FlowUnitsOf(fluid).units[0].text, FlowUnitsOf(fluid).units[0].factor};
    sheet.flowKind = FlowUnitsOf(fluid).units[0].kind;
    sheet.timeUnit = kTimeUnits[2];  // a day
    sheet.deltaPUnit = kDeltaPUnits[0];
    sheet.pressUnit = kPressUnits[0];
    sheet.densityUnit = kDensityUnits[0];
    sheet.zfDensityUnit = kDensityUnits[0];
    sheet.pipeDiameter = "4.026";
    sheet.sgf = "1.1";
    sheet.sgb = "1";
    sheet.sgbVisible = true;
    sheet.tf = "60";
    sheet.pf = "100";
    sheet.gasSGb = "1";
    sheet.gasSGbVisible = true;
    sheet.zf = "0.6";
    sheet.zfVisible = true;
    sheet.compCorrection = CompCorrection::Density;
    sheet.density = "0.25704";
    sheet.deltaP = "123.4";
    sheet.beta = "0.5";
    return sheet;
}

// The largest difference of all modes, for this fluid, when `change` has put the sheet's entry of a
// list into another of its units.
double LargestOfModes(tarvix::Fluid fluid, const std::function<void(InputSheet&)>& change) {
    double largest = 0;
    for (const NamedMode& mode : kModes) {
        InputSheet sheet = PlainSheet(fluid);
        change(sheet);
        sheet.flow = Typed(ExactResult(sheet, SolveFor::FlowRate, Units()), 9);
        sheet.mode = mode.mode;
        const double wanted = ExactResult(sheet, Units());
        const auto text = ShownResult(sheet);
        if (!text) {
            throw std::runtime_error("no result in a unit");
        }
        largest = std::max(largest, Unexplained(*text, wanted, mode.mode));
    }
    return largest;
}

// The entry, given in the first unit, in a unit with this factor.
EnteredNumber InUnit(const EnteredNumber& entry, double factor) {
    return Typed(ValueOfText(entry.text()) / factor, 9);
}

template <typename UnitList, typename Change>
void PrintInvariance(const char* list, std::span<const NamedFluid> fluids, const UnitList& units,
                     Change change) {
    double largest = 0;
    for (const NamedFluid& fluid : fluids) {
        for (const auto& unit : units) {
            largest = std::max(largest, LargestOfModes(fluid.code, [&](InputSheet& sheet) {
                                   change(sheet, unit);
                               }));
        }
    }
    std::printf("invariance\t%s\t%zu\t%.3e\n", list, std::size(units), largest);
}

void PrintInvariances() {
    const std::span<const NamedFluid> all(kFluids);
    PrintInvariance("pressure", all.subspan(1), kPressUnits,
                    [](InputSheet& sheet, const Unit& unit) {
                        sheet.pf = InUnit(sheet.pf, Units().Of("press", unit.text));
                        sheet.pressUnit = unit;
                    });
    PrintInvariance("differential pressure", all, kDeltaPUnits,
                    [](InputSheet& sheet, const Unit& unit) {
                        sheet.deltaP = InUnit(sheet.deltaP, Units().Of("deltaP", unit.text));
                        sheet.deltaPUnit = unit;
                    });
    PrintInvariance("density", all.subspan(1), kDensityUnits,
                    [](InputSheet& sheet, const Unit& unit) {
                        const double factor = Units().Of("density", unit.text);
                        sheet.zf = InUnit(sheet.zf, factor);
                        sheet.density = InUnit(sheet.density, factor);
                        sheet.zfDensityUnit = unit;
                        sheet.densityUnit = unit;
                    });
    PrintInvariance("time", all, kTimeUnits,
                    [](InputSheet& sheet, const Unit& unit) { sheet.timeUnit = unit; });
    for (const NamedFluid& fluid : kFluids) {
        const std::string list = std::string("flow of ") + fluid.name;
        PrintInvariance(list.c_str(), std::span(&fluid, 1), FlowUnitsOf(fluid.code).units,
                        [](InputSheet& sheet, const FlowUnit& unit) {
                            sheet.flowUnit = {unit.text, unit.factor};
                            sheet.flowKind = unit.kind;
                        });
    }
}

Outcome SolveTrip(const NamedFluid& fluid, const MeteringRun& run, float psia, float density) {
    if (fluid.code == tarvix::Fluid::Liquid) {
        return SolveLiquid(run, {density, density});
    }
    if (fluid.code == tarvix::Fluid::Steam) {
        return SolveSteam(run, {psia, density});
    }
    return SolveGas(run, GasAt(psia, density));
}

void PrintTrips(const NamedFluid& fluid) {
    int runs = 0;
    double largestH = 0;
    double largestBeta = 0;
    for (const float d : {0.622F, 2.067F, 4.026F, 10.02F, 41.25F}) {
        for (int betaPercent = 10; betaPercent <= 75; ++betaPercent) {
            for (int percent = 1; percent <= 25; ++percent) {
                const float psia = 114.7F;
                const float h = psia * 27.7F * static_cast<float>(percent) / 100.0F;
                const auto beta = static_cast<float>(betaPercent / 100.0);
                MeteringRun run{SolveFor::FlowRate, d, 0, h, beta};
                run.flow = SolveTrip(fluid, run, psia, 0.7F).value.value();
                run.solveFor = SolveFor::DiffPressure;
                const float backH = SolveTrip(fluid, run, psia, 0.7F).value.value();
                run.solveFor = SolveFor::Beta;
                const float backBeta = SolveTrip(fluid, run, psia, 0.7F).value.value();
                largestH = std::max(largestH, std::fabs(double{backH} / double{h} - 1));
                largestBeta = std::max(largestBeta, std::fabs(double{backBeta} - double{beta}));
                ++runs;
            }
        }
    }
    std::printf("trip\t%s\t%d\t%.3e\t%.3e\n", fluid.name, runs, largestH, largestBeta);
}

}  // namespace

void PrintRandomRuns(int runsPerMode) {
    std::uint32_t seed = 1;
    for (const NamedFluid& fluid : kFluids) {
        for (const NamedMode& mode : kModes) {
            PrintRuns(fluid, mode, seed++, runsPerMode);
        }
    }
    PrintInvariances();
    for (const NamedFluid& fluid : kFluids) {
        PrintTrips(fluid);
    }
}

}  // namespace tarvix::accuracy
