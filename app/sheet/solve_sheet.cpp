#include "app/sheet/solve_sheet.h"

#include "calc/constants.h"
#include "calc/orifice_gas.h"
#include "calc/orifice_liquid.h"
#include "calc/orifice_steam.h"

namespace tarvix {

namespace {

// The sheet's run in calculation units, and the factors that led there.
struct SheetRun {
    MeteringRun run;
    float flowFactor = 1;
    float deltaPFactor = 1;
};

enum class PerTime { Minute, Hour };

SheetRun RunOf(const InputSheet& sheet, Module1& module, PerTime perTime) {
    if (!sheet.mode) {
        module.FatalError("No variable to calculate has been selected.");
    }
    SheetRun result;
    result.flowFactor = sheet.flowUnit.factor / sheet.timeUnit.factor;
    if (perTime == PerTime::Hour) {
        result.flowFactor = static_cast<float>(double{result.flowFactor} * kMinutesPerHour);
    }
    result.deltaPFactor = sheet.deltaPUnit.factor;
    result.run.solveFor = *sheet.mode;
    result.run.pipeDiameterIn = sheet.pipeDiameter.SingleOrZero();
    result.run.flow = sheet.flow.SingleOrZero() * result.flowFactor;
    result.run.diffPressInH2O = sheet.deltaP.SingleOrZero() * result.deltaPFactor;
    result.run.beta = sheet.beta.SingleOrZero();
    return result;
}

// The result as its field shows it, or the message.
CalculationResult ResultOf(const Outcome& outcome, const SheetRun& sheetRun,
                           const Module1& module) {
    if (!outcome.value) {
        return {"", std::string(outcome.message)};
    }
    switch (sheetRun.run.solveFor) {
        case SolveFor::FlowRate:
            return {module.FormatResult(*outcome.value / sheetRun.flowFactor), ""};
        case SolveFor::DiffPressure:
            return {module.FormatResult(*outcome.value / sheetRun.deltaPFactor), ""};
        case SolveFor::Beta:
            break;
    }
    return {FormatNumber(*outcome.value, kBetaDecimals, module.locale(), Grouping::On,
                         Negatives::Parentheses),
            ""};
}

float AbsolutePressure(const InputSheet& sheet, const WorkingValues& working) {
    return sheet.absolutePressure ? working.OperPress : working.OperPress + working.BasePress;
}

float Rankine(float degF) {
    return static_cast<float>(double{degF} + kRankineOffset);
}

CheckResult CheckFluid(const InputSheet& sheet, const WorkingValues& before, Module1& module) {
    switch (sheet.fluid) {
        case Fluid::Liquid:
            return DataChkLiquid(sheet, before, module);
        case Fluid::Steam:
            return DataChkSteam(sheet, before, module);
        case Fluid::Gas:
            break;
    }
    return DataChkGas(sheet, before, module);
}

}  // namespace

CheckResult CheckInputs(const InputSheet& sheet, const WorkingValues& before, Module1& module) {
    CheckResult result = CheckFluid(sheet, before, module);
    return result.status() == kDataGood ? OrificeDataCheck(sheet, result.working) : result;
}

CalculationResult OrificeCalcLiquid(const InputSheet& sheet, const WorkingValues& working,
                                    Module1& module) {
    const SheetRun sheetRun = RunOf(sheet, module, PerTime::Minute);
    // A mass rate needs no base condition.
    const float baseSG = sheet.flowKind == FlowKind::Mass ? 1.0F : working.BaseSG;
    return ResultOf(SolveLiquid(sheetRun.run, {working.FlowingSG, baseSG}), sheetRun, module);
}

CalculationResult OrificeCalcGas(const InputSheet& sheet, const WorkingValues& working,
                                 Module1& module) {
    if (!sheet.flowKind) {
        module.FatalError("Mass or Volumetric flow type not specified.");
    }
    GasProperties gas;
    gas.flowKind = *sheet.flowKind;
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

CalculationResult OrificeCalcSteam(const InputSheet& sheet, const WorkingValues& working,
                                   Module1& module) {
    const SheetRun sheetRun = RunOf(sheet, module, PerTime::Hour);
    const SteamProperties steam{AbsolutePressure(sheet, working), working.OperDensity};
    return ResultOf(SolveSteam(sheetRun.run, steam), sheetRun, module);
}

CalculationResult CalculateResult(const InputSheet& sheet, const WorkingValues& working,
                                  Module1& module) {
    switch (sheet.fluid) {
        case Fluid::Liquid:
            return OrificeCalcLiquid(sheet, working, module);
        case Fluid::Steam:
            return OrificeCalcSteam(sheet, working, module);
        case Fluid::Gas:
            break;
    }
    return OrificeCalcGas(sheet, working, module);
}

}  // namespace tarvix
