#include "tests/fuzz/sheets.h"

#include "units/flow_units.h"
#include "units/nominal_sizes.h"
#include "units/pipe_id_texts.h"

namespace tarvix::fuzz {

namespace {

template <typename List>
const auto& Pick(FuzzedDataProvider& data, const List& list) {
    return list[data.ConsumeIntegralInRange<std::size_t>(0, std::size(list) - 1)];
}

}  // namespace

InputSheet AnySheet(FuzzedDataProvider& data, const NumberLocale& locale) {
    InputSheet sheet;
    sheet.fluid = data.PickValueInArray({Fluid::Liquid, Fluid::Steam, Fluid::Gas});
    sheet.mode =
        data.PickValueInArray({SolveFor::Beta, SolveFor::DiffPressure, SolveFor::FlowRate});
    for (EnteredNumber* entry :
         {&sheet.flow, &sheet.deltaP, &sheet.beta, &sheet.pf, &sheet.tf, &sheet.density, &sheet.sgb,
          &sheet.sgf, &sheet.gasSGb, &sheet.zf}) {
        *entry = EnteredNumber(AnyText(data, locale), locale);
    }
    const FlowUnit& flowUnit = Pick(data, FlowUnitsOf(sheet.fluid).units);
    sheet.flowUnit = {flowUnit.text, flowUnit.factor};
    sheet.flowKind = flowUnit.kind;
    sheet.timeUnit = Pick(data, kTimeUnits);
    sheet.deltaPUnit = Pick(data, kDeltaPUnits);
    sheet.pressUnit = Pick(data, kPressUnits);
    sheet.densityUnit = Pick(data, kDensityUnits);
    sheet.zfDensityUnit = Pick(data, kDensityUnits);
    // A pipe of the table, or the user's own.
    sheet.pipeDiameter = {
        data.ConsumeBool()
            ? std::string(Pick(data, SchedulesOf(Pick(data, kNominalSizes).value)).insideDiameter)
            : FormatNumber(AnySingle(data), 3, locale, Grouping::Off),
        locale};
    for (bool* choice :
         {&sheet.sgCalculated, &sheet.steamFromTable, &sheet.absolutePressure, &sheet.degC}) {
        *choice = data.ConsumeBool();
    }
    sheet.compCorrection =
        data.PickValueInArray({CompCorrection::None, CompCorrection::Density, CompCorrection::Zf});
    sheet.sgbVisible = data.ConsumeBool();
    sheet.gasSGbVisible = data.ConsumeBool();
    sheet.zfVisible = sheet.fluid == Fluid::Gas && sheet.compCorrection != CompCorrection::None;
    sheet.activeField = static_cast<Field>(
        data.ConsumeIntegralInRange(static_cast<int>(Field::None), static_cast<int>(Field::Zf)));
    return sheet;
}

ReportSheet AnyReportSheet(FuzzedDataProvider& data, const NumberLocale& locale) {
    ReportSheet sheet;
    sheet.inputs = AnySheet(data, locale);
    sheet.oriBoreDia = {AnyText(data, locale), locale};
    sheet.oriBoreUnit = std::string(Pick(data, kLengthUnits).text);
    const Unit& pipeUnit = Pick(data, kLengthUnits);
    sheet.pipeIdUnit = std::string(pipeUnit.text);
    sheet.pipeIdText = data.ConsumeBool() ? data.ConsumeRandomLengthString(60)
                                          : ScheduleText(sheet.inputs.pipeDiameter.text(), "Sch 40",
                                                         pipeUnit, locale)
                                                .value_or("");
    sheet.saturated = data.ConsumeBool();
    sheet.message = data.ConsumeRandomLengthString(80);
    sheet.plateWarning = data.ConsumeBool();
    sheet.plateWarning1 = "Orifice plate deflection";
    sheet.plateWarning2 = "should be checked.";
    sheet.zfCompWarning = data.PickValueInArray(
        {CompressibilityWarning::None, CompressibilityWarning::May, CompressibilityWarning::Will});
    sheet.date = "05 Mar 2024";
    return sheet;
}

}  // namespace tarvix::fuzz
