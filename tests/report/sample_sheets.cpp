#include "tests/report/sample_sheets.h"

namespace tarvix::testing {

namespace {

// Solved for the bore of a plate in a 2 inch pipe, all units but those of the flow American.
ReportSheet TwoInchPipe(Fluid fluid, const char* flow, const SelectedUnit& flowUnit,
                        const SelectedUnit& timeUnit, const char* deltaP, const char* beta,
                        const char* bore) {
    ReportSheet sheet;
    sheet.inputs.fluid = fluid;
    sheet.inputs.mode = SolveFor::Beta;
    sheet.inputs.flow = flow;
    sheet.inputs.flowUnit = flowUnit;
    sheet.inputs.timeUnit = timeUnit;
    sheet.inputs.deltaP = deltaP;
    sheet.inputs.deltaPUnit = {"Inches Water", 1};
    sheet.inputs.beta = beta;
    sheet.inputs.pipeDiameter = "2.067";
    sheet.inputs.pressUnit = {"PSI", 1};
    sheet.inputs.densityUnit = sheet.inputs.zfDensityUnit = {"lb/cubic foot", 1};
    sheet.pipeIdText = "2.067\"  Sch 40, STD, Sch 40S";
    sheet.pipeIdUnit = sheet.oriBoreUnit = "Inches";
    sheet.oriBoreDia = bore;
    sheet.date = "05 Mar 2024";
    return sheet;
}

}  // namespace

ReportSheet LiquidSheet() {
    ReportSheet sheet = TwoInchPipe(Fluid::Liquid, "1234.5", {"Gallons", 1}, {"Minute", 1}, "100",
                                    "0.53123", "1.098");
    sheet.inputs.sgb = "1";
    sheet.inputs.sgf = "0.985";
    return sheet;
}

ReportSheet GasSheet() {
    ReportSheet sheet = TwoInchPipe(Fluid::Gas, "25000", {"Standard Cubic Feet", 1}, {"Day", 1440},
                                    "50.25", "0.25", "0.517");
    sheet.inputs.tf = "-20";
    sheet.inputs.pf = "150";
    sheet.inputs.gasSGb = "0.6";
    sheet.inputs.gasSGbVisible = true;
    return sheet;
}

ReportSheet SteamSheet() {
    ReportSheet sheet =
        TwoInchPipe(Fluid::Steam, "5000", {"Pounds", 1}, {"Hour", 60}, "100", "0.6", "1.24");
    sheet.inputs.density = "0.25683";
    sheet.inputs.pf = "100";
    sheet.saturated = true;
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
