#include "app/calculation_modes.h"

namespace tarvix {

CalculationModes::CalculationModes(const FormContext& context, OrificeCalculations& calculations)
    : context_(context), calculations_(calculations) {
    const MainForm& form = context_.form;
    const auto connect = [this](OptionButton* option, void (CalculationModes::*handler)()) {
        QObject::connect(option, &QAbstractButton::clicked, option,
                         [this, handler] { (this->*handler)(); });
    };
    connect(form.optCalcBeta, &CalculationModes::optCalcBeta_Click);
    connect(form.optCalcDP, &CalculationModes::optCalcDP_Click);
    connect(form.optCalcFR, &CalculationModes::optCalcFR_Click);
}

void CalculationModes::optCalcBeta_Click() {
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

void CalculationModes::optCalcDP_Click() {
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

void CalculationModes::optCalcFR_Click() {
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

void CalculationModes::ReformatFormerResult(const OptionButton& formerMode,
                                            NumericField& field) const {
    if (BackColorOf(formerMode) != BackColor::Green) {
        return;
    }
    if (const auto value = TextToSingle(field.Text(), context_.module.locale())) {
        field.SetText(context_.module.FormatEntry(*value));
    }
}

void CalculationModes::SelectModeColors(const OptionButton* selected) const {
    const MainForm& form = context_.form;
    for (OptionButton* option : {form.optCalcBeta, form.optCalcDP, form.optCalcFR}) {
        SetBackColor(*option, option == selected ? BackColor::Green : BackColor::LightGrey);
    }
}

void CalculationModes::MakeResult(NumericField& field) {
    SetBackColor(field, BackColor::Green);
    field.SetLocked(true);
    field.SetTabStop(false);
}

void CalculationModes::MakeInput(NumericField& field) {
    SetBackColor(field, BackColor::WindowBackground);
    field.SetLocked(false);
    field.SetTabStop(true);
}

}  // namespace tarvix
