#include "ui/form/input_reader.h"

#include <utility>

namespace tarvix {

namespace {

SelectedUnit SelectedUnitOf(const FormContext& context, std::span<const Unit> table,
                            const DropDownList& list) {
    const Unit* unit = SelectedEntry(context, table, list);
    return unit != nullptr ? *unit : SelectedUnit{"", 1};
}

std::optional<SolveFor> SelectedMode(const MainForm& form) {
    if (form.optCalcFR->Value()) {
        return SolveFor::FlowRate;
    }
    if (form.optCalcDP->Value()) {
        return SolveFor::DiffPressure;
    }
    if (form.optCalcBeta->Value()) {
        return SolveFor::Beta;
    }
    return std::nullopt;
}

CompCorrection SelectedCorrection(const MainForm& form) {
    if (form.optCompDensity->Value()) {
        return CompCorrection::Density;
    }
    return form.optCompZf->Value() ? CompCorrection::Zf : CompCorrection::None;
}

Field ActiveField(const MainForm& form) {
    const std::pair<const NumericField*, Field> fields[] = {
        {form.txtFlow, Field::Flow},       {form.txtDeltaP, Field::DeltaP},
        {form.txtBeta, Field::Beta},       {form.txtOriBoreDia, Field::OriBoreDia},
        {form.txtPf, Field::Pf},           {form.txtTf, Field::Tf},
        {form.txtDensity, Field::Density}, {form.txtSGb, Field::SGb},
        {form.txtSGf, Field::SGf},         {form.txtGasSGb, Field::GasSGb},
        {form.txtZf, Field::Zf},
    };
    const QWidget* active = form.ActiveControl();
    for (const auto& [control, field] : fields) {
        if (control == active) {
            return field;
        }
    }
    return Field::None;
}

std::string Caption(const QLabel& label) {
    return label.text().toStdString();
}

}  // namespace

InputSheet ReadInputSheet(const FormContext& context) {
    const MainForm& form = context.form;
    const FormState& state = context.state;
    InputSheet sheet;
    sheet.fluid = context.module.CurrentFluid();
    sheet.mode = SelectedMode(form);

    sheet.flow = form.txtFlow->Number();
    sheet.deltaP = form.txtDeltaP->Number();
    sheet.beta = form.txtBeta->Number();
    sheet.pf = form.txtPf->Number();
    sheet.tf = form.txtTf->Number();
    sheet.density = form.txtDensity->Number();
    sheet.sgb = form.txtSGb->Number();
    sheet.sgf = form.txtSGf->Number();
    sheet.gasSGb = form.txtGasSGb->Number();
    sheet.zf = form.txtZf->Number();

    if (const FlowUnit* unit = SelectedEntry(context, state.FlowUnitTable, *form.cboFlowUnit)) {
        sheet.flowUnit = {unit->text, unit->factor};
        sheet.flowKind = unit->kind;
    }
    sheet.timeUnit = SelectedUnitOf(context, state.TimeUnitTable, *form.cboTimeUnit);
    sheet.deltaPUnit = SelectedUnitOf(context, state.DeltaPUnitTable, *form.cboDeltaPunit);
    sheet.pressUnit = SelectedUnitOf(context, state.PressUnitTable, *form.cboPressUnit);
    sheet.densityUnit = SelectedUnitOf(context, state.DensityUnitTable, *form.cboDensityUnit);
    sheet.zfDensityUnit = SelectedUnitOf(context, state.ZfDensityUnitTable, *form.cboZfDensityUnit);
    if (const EnteredNumber* diameter =
            SelectedEntry(context, state.PipeIDTable, *form.cboPipeID)) {
        sheet.pipeDiameter = *diameter;
    }

    sheet.sgCalculated = form.optSgCalc->Value();
    sheet.steamFromTable = form.optSteamTbl->Value();
    sheet.absolutePressure = form.optPabsolute->Value();
    sheet.degC = form.optDegC->Value();
    sheet.compCorrection = SelectedCorrection(form);
    sheet.sgbVisible = form.IsVisible(*form.txtSGb);
    sheet.gasSGbVisible = form.IsVisible(*form.txtGasSGb);
    sheet.zfVisible = form.IsVisible(*form.txtZf);
    sheet.activeField = ActiveField(form);
    return sheet;
}

ReportSheet ReadReportSheet(const FormContext& context) {
    const MainForm& form = context.form;
    ReportSheet sheet;
    sheet.inputs = ReadInputSheet(context);
    sheet.oriBoreDia = form.txtOriBoreDia->Number();
    sheet.oriBoreUnit = form.cboOriBoreUnit->Text();
    if (const Unit* unit =
            SelectedEntry(context, context.state.PipeIDUnitTable, *form.cboPipeIDUnit)) {
        sheet.pipeIdUnit = unit->text;
    }
    sheet.pipeIdText = form.cboPipeID->Text();
    sheet.saturated = form.optSaturated->Value();
    sheet.message = Caption(*form.lblMsg);
    sheet.plateWarning = form.IsVisible(*form.fraPlateThicknessWarning);
    sheet.plateWarning1 = Caption(*form.lbl1PlateThicknessWarning);
    sheet.plateWarning2 = Caption(*form.lbl2PlateThicknessWarning);
    sheet.zfCompWarning = context.state.zfCompWarning;
    return sheet;
}

}  // namespace tarvix
