#include "tests/report/sample_sheets.h"

namespace tarvix::testing {

namespace {

ReportSheet TwoInchPipe() {
    ReportSheet sheet;
    sheet.inputs.mode = SolveFor::Beta;
    sheet.inputs.pipeDiameter = "2.067";
    sheet.pipeIdText = "2.067\"  Sch 40, STD, Sch 40S";
    sheet.pipeIdUnit = "Inches";
    sheet.oriBoreUnit = "Inches";
    sheet.inputs.deltaPUnit = {"Inches Water", 1};
    sheet.inputs.pressUnit = {"PSI", 1};
    sheet.inputs.densityUnit = {"lb/cubic foot", 1};
    sheet.inputs.zfDensityUnit = {"lb/cubic foot", 1};
    sheet.inputs.timeUnit = {"Minute", 1};
    sheet.date = "05 Mar 2024";
    return sheet;
}

}  // namespace

ReportSheet LiquidSheet() {
    ReportSheet sheet = TwoInchPipe();
    sheet.inputs.fluid = Fluid::Liquid;
    sheet.inputs.flow = "1234.5";
    sheet.inputs.flowUnit = {"Gallons", 1};
    sheet.inputs.deltaP = "100";
    sheet.inputs.beta = "0.53123";
    sheet.inputs.sgb = "1";
    sheet.inputs.sgf = "0.985";
    sheet.oriBoreDia = "1.098";
    return sheet;
}

ReportSheet GasSheet() {
    ReportSheet sheet = TwoInchPipe();
    sheet.inputs.fluid = Fluid::Gas;
    sheet.inputs.flow = "25000";
    sheet.inputs.flowUnit = {"Standard Cubic Feet", 1};
    sheet.inputs.timeUnit = {"Day", 1440};
    sheet.inputs.deltaP = "50.25";
    sheet.inputs.beta = "0.25";
    sheet.inputs.tf = "-20";
    sheet.inputs.pf = "150";
    sheet.inputs.gasSGb = "0.6";
    sheet.inputs.gasSGbVisible = true;
    sheet.oriBoreDia = "0.517";
    return sheet;
}

ReportSheet SteamSheet() {
    ReportSheet sheet = TwoInchPipe();
    sheet.inputs.fluid = Fluid::Steam;
    sheet.inputs.flow = "5000";
    sheet.inputs.flowUnit = {"Pounds", 1};
    sheet.inputs.timeUnit = {"Hour", 60};
    sheet.inputs.deltaP = "100";
    sheet.inputs.beta = "0.6";
    sheet.inputs.density = "0.25683";
    sheet.inputs.pf = "100";
    sheet.saturated = true;
    sheet.oriBoreDia = "1.24";
    return sheet;
}

ReportSheet FullestSheet() {
    ReportSheet sheet = GasSheet();
    sheet.inputs.pf = "450";
    sheet.message = "Warning: Beta value exceeds standard range (0.15 to 0.67).";
    sheet.plateWarning = true;
    sheet.plateWarning1 = "Orifice plate deflection";
    sheet.plateWarning2 = "should be checked.";
    sheet.zfCompWarning = CompressibilityWarning::Will;
    return sheet;
}

void FillCustomer(Module1& module) {
    module.CustLine1 = "Northfield Refinery";
    module.CustLine2 = "Unit 4, Crude Distillation";
    module.TagText = "FE-4102";
}

}  // namespace tarvix::testing
