#include "app/window/mode_options.h"

namespace tarvix {

ModeOptions::ModeOptions(const FormContext& context, OrificeCalculations& calculations)
    : context_(context), calculations_(calculations) {
    const MainForm& form = context_.form;
    const auto connect = [this](OptionButton* option, void (ModeOptions::*handler)()) {
        QObject::connect(option, &QAbstractButton::clicked, option,
                         [this, handler] { (this->*handler)(); });
    };
    connect(form.optCalcBeta, &ModeOptions::optCalcBeta_Click);
    connect(form.optCalcDP, &ModeOptions::optCalcDP_Click);
    connect(form.optCalcFR, &ModeOptions::optCalcFR_Click);
}

void ModeOptions::optCalcBeta_Click() {
    const MainForm& form = context_.form;
    ReformatFormerResult(*form.optCalcFR, *form.txtFlow);
    ReformatFormerResult(*form.optCalcDP, *form.txtDeltaP);
    SelectModeColors(form.optCalcBeta);
    MakeInput(*form.txtFlow);
    MakeInput(*form.txtDeltaP);
    MakeResult(*form.txtBeta);
    MakeResult(*form.txtOriBoreDia);
    form.txtBeta->SetText("");
    calculations_.CalculateUnlessSuspended();
}

void ModeOptions::optCalcDP_Click() {
    const MainForm& form = context_.form;
    ReformatFormerResult(*form.optCalcFR, *form.txtFlow);
    SelectModeColors(form.optCalcDP);
    MakeInput(*form.txtFlow);
    MakeResult(*form.txtDeltaP);
    MakeInput(*form.txtBeta);
    MakeInput(*form.txtOriBoreDia);
    form.txtDeltaP->SetText("");
    calculations_.CalculateUnlessSuspended();
}

void ModeOptions::optCalcFR_Click() {
    const MainForm& form = context_.form;
    ReformatFormerResult(*form.optCalcDP, *form.txtDeltaP);
    SelectModeColors(form.optCalcFR);
    MakeResult(*form.txtFlow);
    MakeInput(*form.txtDeltaP);
    MakeInput(*form.txtBeta);
    MakeInput(*form.txtOriBoreDia);
    form.txtFlow->SetText("");
    calculations_.CalculateUnlessSuspended();
}

void ModeOptions::ReformatFormerResult(const OptionButton& formerMode, NumericField& field) const {
    if (BackColorOf(formerMode) != BackColor::Green) {
        return;
    }
    if (const auto value = TextToSingle(field.Text(), context_.module.locale())) {
        field.SetText(context_.module.FormatEntry(*value));
    }
}

void ModeOptions::SelectModeColors(const OptionButton* selected) const {
    const MainForm& form = context_.form;
    for (OptionButton* option : {form.optCalcBeta, form.optCalcDP, form.optCalcFR}) {
        SetBackColor(*option, option == selected ? BackColor::Green : BackColor::LightGrey);
    }
}

void ModeOptions::MakeResult(NumericField& field) {
    SetBackColor(field, BackColor::Green);
    field.SetLocked(true);
    field.SetTabStop(false);
}

void ModeOptions::MakeInput(NumericField& field) {
    SetBackColor(field, BackColor::WindowBackground);
    field.SetLocked(false);
    field.SetTabStop(true);
}

}  // namespace tarvix
