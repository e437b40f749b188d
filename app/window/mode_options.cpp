#include "app/window/mode_options.h"

#include "app/dispatch/do_orifice_calculations.h"
#include "ui/form/handler_links.h"

namespace tarvix {

namespace {

// Turns a former result into a plain input: without grouping, so that it can be typed over. The
// green mode option tells which mode was selected until now.
void ReformatFormerResult(const FormContext& context, const OptionButton& formerMode,
                          NumericField& field) {
    if (BackColorOf(formerMode) != BackColor::Green) {
        return;
    }
    if (const auto value = field.Number().Single()) {
        field.SetText(context.module.FormatEntry(*value));
    }
}

void SelectModeColors(const FormContext& context, const OptionButton* selected) {
    const MainForm& form = context.form;
    for (OptionButton* option : {form.optCalcBeta, form.optCalcDP, form.optCalcFR}) {
        SetBackColor(*option, option == selected ? BackColor::Green : BackColor::LightGrey);
    }
}

void MakeResult(NumericField& field) {
    SetBackColor(field, BackColor::Green);
    field.SetLocked(true);
    field.SetTabStop(false);
}

void MakeInput(NumericField& field) {
    SetBackColor(field, BackColor::WindowBackground);
    field.SetLocked(false);
    field.SetTabStop(true);
}

}  // namespace

void ConnectModeOptions(const FormContext& context) {
    const MainForm& form = context.form;
    OnClick(context, *form.optCalcBeta, optCalcBeta_Click);
    OnClick(context, *form.optCalcDP, optCalcDP_Click);
    OnClick(context, *form.optCalcFR, optCalcFR_Click);
}

void optCalcBeta_Click(const FormContext& context) {
    const MainForm& form = context.form;
    ReformatFormerResult(context, *form.optCalcFR, *form.txtFlow);
    ReformatFormerResult(context, *form.optCalcDP, *form.txtDeltaP);
    SelectModeColors(context, form.optCalcBeta);
    MakeInput(*form.txtFlow);
    MakeInput(*form.txtDeltaP);
    MakeResult(*form.txtBeta);
    MakeResult(*form.txtOriBoreDia);
    form.txtBeta->SetText("");
    CalculateUnlessSuspended(context);
}

void optCalcDP_Click(const FormContext& context) {
    const MainForm& form = context.form;
    ReformatFormerResult(context, *form.optCalcFR, *form.txtFlow);
    SelectModeColors(context, form.optCalcDP);
    MakeInput(*form.txtFlow);
    MakeResult(*form.txtDeltaP);
    MakeInput(*form.txtBeta);
    MakeInput(*form.txtOriBoreDia);
    form.txtDeltaP->SetText("");
    CalculateUnlessSuspended(context);
}

void optCalcFR_Click(const FormContext& context) {
    const MainForm& form = context.form;
    ReformatFormerResult(context, *form.optCalcDP, *form.txtDeltaP);
    SelectModeColors(context, form.optCalcFR);
    MakeResult(*form.txtFlow);
    MakeInput(*form.txtDeltaP);
    MakeInput(*form.txtBeta);
    MakeInput(*form.txtOriBoreDia);
    form.txtFlow->SetText("");
    CalculateUnlessSuspended(context);
}

}  // namespace tarvix
