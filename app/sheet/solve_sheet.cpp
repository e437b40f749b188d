#include "app/sheet/solve_sheet.h"

#include "app/sheet/data_checks.h"
#include "calc/orifice_gas.h"
#include "calc/orifice_liquid.h"
#include "calc/orifice_steam.h"
#include "calc/steam_table.h"
#include "numbers/decimal_form.h"
#include "units/flow_units.h"

namespace tarvix {

namespace {

constexpr int kBetaDecimals = 5;
constexpr int kSteamDensityDecimals = 5;
constexpr int kSpecificGravityDecimals = 4;

// The sheet's run in calculation units, and the factors that led there.
struct SheetRun {
    MeteringRun run;
    float flowFactor = 1;
    float deltaPFactor = 1;
};

enum class PerTime { Minute, Hour };

float SingleOrZero(const std::string& text, const Module1& module) {
    return TextToSingle(text, module.locale()).value_or(0.0F);
}

SheetRun RunOf(const InputSheet& sheet, Module1& module, PerTime perTime) {
    if (!sheet.mode) {
        module.MsgText = "No variable to calculate has been selected.";
        module.FatalError();
    }
    SheetRun result;
    result.flowFactor = sheet.flowUnit.factor / sheet.timeUnit.factor;
    if (perTime == PerTime::Hour) {
        result.flowFactor = static_cast<float>(double{result.flowFactor} * kMinutesPerHour);
    }
    result.deltaPFactor = sheet.deltaPUnit.factor;
    result.run.solveFor = *sheet.mode;
    result.run.pipeDiameterIn = SingleOrZero(sheet.pipeDiameter, module);
    result.run.flow = SingleOrZero(sheet.flow, module) * result.flowFactor;
    result.run.diffPressInH2O = SingleOrZero(sheet.deltaP, module) * result.deltaPFactor;
    result.run.beta = SingleOrZero(sheet.beta, module);
    return result;
}

// The result as its field shows it, or the message.
CalculationResult ResultOf(const Outcome& outcome, const SheetRun& sheetRun, Module1& module) {
    module.MsgText = std::string(outcome.message);
    CalculationResult result;
    result.message = module.MsgText;
    if (!outcome.value) {
        return result;
    }
    switch (sheetRun.run.solveFor) {
        case SolveFor::FlowRate:
            result.text = module.FormatResult(*outcome.value / sheetRun.flowFactor);
            break;
        case SolveFor::DiffPressure:
            result.text = module.FormatResult(*outcome.value / sheetRun.deltaPFactor);
            break;
        case SolveFor::Beta:
            result.text = FormatNumber(*outcome.value, kBetaDecimals, module.locale(), Grouping::On,
                                       Negatives::Parentheses);
            break;
    }
    return result;
}

float AbsolutePressure(const InputSheet& sheet, const WorkingValues& working) {
    return sheet.absolutePressure ? working.OperPress : working.OperPress + working.BasePress;
}

float Rankine(float degF) {
    return static_cast<float>(double{degF} + kRankineOffset);
}

// An internal inconsistency; ends the program.
[[noreturn]] void UnknownFluid(Module1& module) {
    module.MsgText = "Orifice type not specified";
    module.FatalError();
}

FlowKind GasFlowKind(const InputSheet& sheet, Module1& module) {
    if (sheet.flowKind == kMassKind) {
        return FlowKind::Mass;
    }
    if (sheet.flowKind == kVolumeKind) {
        return FlowKind::Volume;
    }
    module.MsgText = "Mass or Volumetric flow type not specified.";
    module.FatalError();
}

}  // namespace

int CheckInputs(const InputSheet& sheet, Module1& module) {
    int ok = kDataBad;
    if (sheet.fluidType == "L") {
        ok = DataChkLiquid(sheet, module);
    } else if (sheet.fluidType == "S") {
        ok = DataChkSteam(sheet, module);
    } else if (sheet.fluidType == "G") {
        ok = DataChkGas(sheet, module);
    } else {
        UnknownFluid(module);
    }
    return ok == kDataGood ? OrificeDataCheck(sheet, module) : ok;
}

CalculationResult OrificeCalcLiquid(const InputSheet& sheet, Module1& module) {
    const SheetRun sheetRun = RunOf(sheet, module, PerTime::Minute);
    // A mass rate needs no base condition.
    if (sheet.flowKind == kMassKind) {
        module.working.BaseSG = 1.0F;
    }
    const LiquidProperties liquid{module.working.FlowingSG, module.working.BaseSG};
    return ResultOf(SolveLiquid(sheetRun.run, liquid), sheetRun, module);
}

CalculationResult OrificeCalcGas(const InputSheet& sheet, Module1& module) {
    const WorkingValues& working = module.working;
    GasProperties gas;
    gas.flowKind = GasFlowKind(sheet, module);
    gas.correction = sheet.compCorrection;
    gas.pressurePsia = AbsolutePressure(sheet, working);
    gas.basePressurePsia = working.BasePress;
    gas.flowingTempR = Rankine(working.FlowTempF);
    gas.baseTempR = Rankine(working.BaseTempF);
    gas.baseSG = working.BaseSG;
    gas.operDensity = working.OperDensity;
    gas.userZf = working.UserZf;
    const SheetRun sheetRun = RunOf(sheet, module, PerTime::Hour);
    return ResultOf(SolveGas(sheetRun.run, gas), sheetRun, module);
}

CalculationResult OrificeCalcSteam(const InputSheet& sheet, Module1& module) {
    const SheetRun sheetRun = RunOf(sheet, module, PerTime::Hour);
    const SteamProperties steam{AbsolutePressure(sheet, module.working),
                                module.working.OperDensity};
    return ResultOf(SolveSteam(sheetRun.run, steam), sheetRun, module);
}

CalculationResult CalculateResult(const InputSheet& sheet, Module1& module) {
    if (sheet.fluidType == "L") {
        return OrificeCalcLiquid(sheet, module);
    }
    if (sheet.fluidType == "S") {
        return OrificeCalcSteam(sheet, module);
    }
    if (sheet.fluidType == "G") {
        return OrificeCalcGas(sheet, module);
    }
    UnknownFluid(module);
}

std::string CalcSGf(const std::string& density, const SelectedUnit& unit, const Module1& module) {
    const auto value = TextToSingle(density, module.locale());
    if (!value || !(*value > 0)) {
        return "";
    }
    // The factor enters as the double that its decimal text stands for.
    const auto lbPerFt3 = static_cast<float>(DecimalValue(unit.factor) * double{*value});
    return FormatNumber(lbPerFt3 / kWaterDensityLbPerFt3, kSpecificGravityDecimals, module.locale(),
                        Grouping::On);
}

SteamDensityResult CalcSteamDensity(const InputSheet& sheet, const Module1& module) {
    const auto value = TextToSingle(sheet.pf, module.locale());
    if (!value) {
        return {};
    }
    const float factor = sheet.pressUnit.factor;
    const float offset = sheet.absolutePressure ? kAtmosphericPressurePsi : 0.0F;
    const float gaugePsi = *value * factor - offset;
    const SteamDensity steam = SaturatedSteamDensity(gaugePsi);

    const auto outside = [&](std::string_view text, float limitPsig) {
        return SteamDensityResult{"", std::string(text) +
                                          module.FormatResult((limitPsig + offset) / factor) + " " +
                                          std::string(sheet.pressUnit.text) +
                                          (sheet.absolutePressure ? " (absolute)" : " (gauge)")};
    };
    switch (steam.range) {
        case SteamRange::BelowTable:
            return outside("The Op. Pressure is below the steam table mimimum: ",
                           kSteamTable.front().pressurePsig);
        case SteamRange::AboveTable:
            return outside("The Op. Pressure exceeds the steam table maximum: ",
                           kSteamTable.back().pressurePsig);
        case SteamRange::InTable:
            break;
    }
    return {FormatNumber(steam.density / sheet.densityUnit.factor, kSteamDensityDecimals,
                         module.locale(), Grouping::On),
            ""};
}

CompressibilityWarning CheckZfComp(const InputSheet& sheet, const Module1& module) {
    if (sheet.compCorrection != CompCorrection::None) {
        return CompressibilityWarning::None;
    }
    const auto value = TextToSingle(sheet.pf, module.locale());
    if (!value) {
        return CompressibilityWarning::None;
    }
    float gaugePsi = *value * sheet.pressUnit.factor;
    if (sheet.absolutePressure) {
        gaugePsi = gaugePsi - kAtmosphericPressurePsi;
    }
    if (gaugePsi > 400) {
        return CompressibilityWarning::Will;
    }
    return gaugePsi > 200 ? CompressibilityWarning::May : CompressibilityWarning::None;
}

bool CheckPlateThickness(const std::string& nominalSize, const std::string& deltaP,
                         const SelectedUnit& deltaPUnit, const NumberLocale& locale) {
    float inchesOfWater = 0;
    if (TextToSingle(nominalSize, locale).value_or(0.0F) >= 8) {
        inchesOfWater = TextToSingle(deltaP, locale).value_or(0.0F) * deltaPUnit.factor;
    }
    return inchesOfWater >= 150;
}

}  // namespace tarvix
