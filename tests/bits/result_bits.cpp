// Solves random sheets and writes every result as its bit pattern, a line a sheet:
//
//   result_bits [SHEETS [SEED]]      number of the sheet, fluid, mode, what came of it
//
// Two builds of the program calculate the same exactly where they write the same. A sheet goes the
// whole way of one edit: texts, checks, equation, result text; beside it stand the bits of what the
// equations give for the same seed without the rounding to a text.
#include "app/shared/module1.h"
#include "app/sheet/data_checks.h"
#include "app/sheet/solve_sheet.h"
#include "calc/orifice_gas.h"
#include "calc/orifice_liquid.h"
#include "calc/orifice_steam.h"
#include "calc/steam_table.h"
#include "tests/core/recording_platform.h"
#include "units/flow_units.h"
#include "units/nominal_sizes.h"
#include "units/unit_tables.h"

#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <random>
#include <string>

namespace tarvix {
namespace {

// The same choices for a seed with every standard library: whole numbers and one division.
class Choices {
  public:
    explicit Choices(std::uint64_t seed) : engine_(seed) {}

    std::uint64_t Below(std::uint64_t limit) { return engine_() % limit; }
    bool Half() { return Below(2) == 0; }
    template <typename List>
    const auto& Pick(const List& list) {
        return list[static_cast<std::size_t>(Below(std::size(list)))];
    }
    // `least` to `most` in steps of 1 / `steps`, at least; a digit more now and then.
    float Between(int least, int most, int steps) {
        const auto span = static_cast<std::uint64_t>(most - least) * static_cast<unsigned>(steps);
        return static_cast<float>(least) +
               static_cast<float>(Below(span + 1)) / static_cast<float>(steps);
    }

  private:
    std::mt19937_64 engine_;
};

EnteredNumber Text(double value) {
    char text[48];
    std::snprintf(text, sizeof text, "%.7g", value);
    return text;
}

constexpr SolveFor kModes[] = {SolveFor::Beta, SolveFor::DiffPressure, SolveFor::FlowRate};
constexpr CompCorrection kCorrections[] = {CompCorrection::None, CompCorrection::Density,
                                           CompCorrection::Zf};
constexpr Fluid kFluids[] = {Fluid::Liquid, Fluid::Gas, Fluid::Steam};

InputSheet SheetOf(Choices& choices) {
    InputSheet sheet;
    sheet.fluid = choices.Pick(kFluids);
    sheet.mode = choices.Pick(kModes);
    const FlowUnit& flowUnit = choices.Pick(FlowUnitsOf(sheet.fluid).units);
    sheet.flowUnit = {flowUnit.text, flowUnit.factor};
    sheet.flowKind = flowUnit.kind;
    sheet.timeUnit = choices.Pick(kTimeUnits);
    sheet.deltaPUnit = choices.Pick(kDeltaPUnits);
    sheet.pressUnit = choices.Pick(kPressUnits);
    sheet.densityUnit = choices.Pick(kDensityUnits);
    sheet.zfDensityUnit = choices.Pick(kDensityUnits);
    sheet.pipeDiameter = {
        std::string(choices.Pick(SchedulesOf(choices.Pick(kNominalSizes).value)).insideDiameter),
        NumberLocale{}};
    // Quantities that mostly make a run: chosen in calculation units, written in the sheet's.
    sheet.deltaP = Text(choices.Between(1, 400, 1000) / sheet.deltaPUnit.factor);
    sheet.pf = Text(choices.Between(0, 600, 1000) / sheet.pressUnit.factor);
    sheet.flow = Text(choices.Between(0, 5000, 1000) * choices.Between(0, 100, 100));
    sheet.beta = Text(choices.Between(0, 1, 100000));
    sheet.tf = Text(choices.Between(-50, 500, 100));
    sheet.density = Text(choices.Between(0, 3, 10000) / sheet.densityUnit.factor);
    sheet.sgb = Text(choices.Between(0, 2, 10000));
    sheet.sgf = Text(choices.Between(0, 2, 10000));
    sheet.gasSGb = Text(choices.Between(0, 2, 10000));
    sheet.absolutePressure = choices.Half();
    sheet.degC = choices.Half();
    sheet.steamFromTable = choices.Half();
    sheet.compCorrection = choices.Pick(kCorrections);
    sheet.sgbVisible = sheet.fluid != Fluid::Steam && choices.Half();
    sheet.gasSGbVisible = sheet.fluid == Fluid::Gas;
    sheet.zfVisible = sheet.fluid == Fluid::Gas && sheet.compCorrection != CompCorrection::None;
    sheet.zf = sheet.compCorrection == CompCorrection::Density
                   ? Text(choices.Between(0, 2, 10000) / sheet.zfDensityUnit.factor)
                   : Text(choices.Between(0, 2, 10000));
    return sheet;
}

std::string Bits(float value) {
    char text[16];
    std::snprintf(text, sizeof text, "%08x",
                  static_cast<unsigned>(std::bit_cast<std::uint32_t>(value)));
    return text;
}

// The bits of what an equation gives; "-" for nothing.
std::string Bits(const Outcome& outcome) {
    return outcome.value ? Bits(*outcome.value) : outcome.message.empty() ? "-" : "message";
}

// The equations on values that no text has rounded.
std::string EquationBits(Choices& choices, SolveFor mode) {
    MeteringRun run;
    run.solveFor = mode;
    run.pipeDiameterIn = choices.Between(1, 30, 100000);
    run.diffPressInH2O = choices.Between(0, 700, 100000);
    run.beta = choices.Between(0, 1, 1000000);
    run.flow = choices.Between(0, 3000, 100000) * run.pipeDiameterIn;
    LiquidProperties liquid;
    liquid.flowingSG = choices.Between(0, 2, 1000000);
    liquid.baseSG = choices.Between(0, 2, 1000000);
    GasProperties gas;
    gas.flowKind = choices.Half() ? FlowKind::Volume : FlowKind::Mass;
    gas.correction = choices.Pick(kCorrections);
    gas.pressurePsia = choices.Between(0, 700, 100000);
    gas.basePressurePsia = choices.Between(10, 20, 100000);
    gas.flowingTempR = choices.Between(300, 1000, 100000);
    gas.baseTempR = choices.Between(450, 600, 100000);
    gas.baseSG = choices.Between(0, 2, 1000000);
    gas.operDensity = choices.Between(0, 3, 1000000);
    gas.userZf = choices.Between(0, 2, 1000000);
    const SteamProperties steam{choices.Between(0, 700, 100000), choices.Between(0, 3, 1000000)};
    const SteamDensity table = SaturatedSteamDensity(choices.Between(0, 600, 100000));
    MeteringRun large = run;  // gas and steam flow in other units
    large.flow *= 40;
    return Bits(SolveLiquid(run, liquid)) + ' ' + Bits(SolveGas(large, gas)) + ' ' +
           Bits(SolveSteam(large, steam)) + ' ' + Bits(table.density);
}

// The working values of the checks, in the order of their declaration.
std::string WorkingBits(const WorkingValues& working) {
    std::string all;
    for (const float value :
         {working.FlowingSG, working.BaseSG, working.FlowTempF, working.BaseTempF,
          working.OperPress, working.BasePress, working.OperDensity, working.UserZf}) {
        all += ' ' + Bits(value);
    }
    return all;
}

void WriteSheets(std::uint64_t sheets, std::uint64_t seed) {
    testing::RecordingPlatform platform;
    Choices choices(seed);
    for (std::uint64_t number = 0; number < sheets; ++number) {
        Module1 module(platform, NumberLocale{});
        const InputSheet sheet = SheetOf(choices);
        std::string result;
        const CheckResult check = CheckInputs(sheet, {}, module);
        if (check.status() == kDataGood) {
            const CalculationResult solved = CalculateResult(sheet, check.working, module);
            result = solved.text.empty() ? "nothing: " + solved.message : "text: " + solved.text;
        } else {
            result = "refused: " + check.message;
        }
        std::printf("%llu %d%d%s %s | %s\n", static_cast<unsigned long long>(number),
                    static_cast<int>(sheet.fluid), static_cast<int>(*sheet.mode),
                    WorkingBits(check.working).c_str(), EquationBits(choices, *sheet.mode).c_str(),
                    result.c_str());
    }
}

}  // namespace
}  // namespace tarvix

int main(int argc, char* argv[]) {
    const auto argument = [&](int index, std::uint64_t otherwise) {
        return argc > index ? std::strtoull(argv[index], nullptr, 10) : otherwise;
    };
    tarvix::WriteSheets(argument(1, 100000), argument(2, 20240229));
    return 0;
}
