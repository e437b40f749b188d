#include "ui/handlers/numeric_fields.h"

namespace tarvix {

NumericFields::NumericFields(const FormContext& context, OrificeCalculations& calculations,
                             Densities& densities, Warnings& warnings)
    : context_(context), calculations_(calculations), densities_(densities), warnings_(warnings) {
    const MainForm& form = context_.form;
    for (NumericField* field : form.NumericFields()) {
        field->SetDecimalSeparator(context_.module.locale().decimalSeparator);
        field->onGotFocus = [field] { GotFocus(*field); };
        field->onKeyPress = [this, field](int keyCode) { return KeyPress(*field, keyCode); };
    }
    const auto connect = [this](NumericField* field, void (NumericFields::*handler)()) {
        field->onChange = [this, handler] { (this->*handler)(); };
    };
    connect(form.txtFlow, &NumericFields::txtFlow_Change);
    connect(form.txtDeltaP, &NumericFields::txtDeltaP_Change);
    connect(form.txtPf, &NumericFields::txtPf_Change);
    connect(form.txtSGf, &NumericFields::txtSGf_Change);
    connect(form.txtDensity, &NumericFields::txtDensity_Change);
    for (NumericField* plain : {form.txtTf, form.txtSGb, form.txtGasSGb, form.txtZf}) {
        connect(plain, &NumericFields::PlainField_Change);
    }
}

void NumericFields::GotFocus(NumericField& field) {
    field.selectAll();
}

int NumericFields::KeyPress(const NumericField& field, int keyCode) const {
    return context_.module.NumericKeyFilter(keyCode, field.Selection());
}

void NumericFields::PlainField_Change() {
    calculations_.CalculateUnlessSuspended();
}

void NumericFields::txtFlow_Change() {
    const MainForm& form = context_.form;
    if (!form.optCalcFR->Value()) {
        calculations_.CalculateUnlessSuspended();
    }
    if (form.txtFlow->text().isEmpty()) {
        calculations_.EnablePrinting(false);
    }
}

void NumericFields::txtDeltaP_Change() {
    const MainForm& form = context_.form;
    if (!form.optCalcDP->Value()) {
        calculations_.CalculateUnlessSuspended();
    }
    warnings_.CheckPlateThicknessWarning();
    if (form.txtDeltaP->text().isEmpty()) {
        calculations_.EnablePrinting(false);
    }
}

void NumericFields::txtSGf_Change() {
    // A gravity worked out from the density is written while the field is disabled.
    if (context_.form.IsEnabled(*context_.form.txtSGf)) {
        calculations_.CalculateUnlessSuspended();
    }
}

void NumericFields::txtDensity_Change() {
    const MainForm& form = context_.form;
    Module1& module = context_.module;
    if (!form.IsEnabled(*form.txtDensity) || context_.state.SuspendCalc) {
        return;
    }
    module.MsgText.clear();
    if (module.FluidType == "L") {
        if (form.optSgCalc->Value()) {
            densities_.CalcSGf();
        }
    } else if (module.FluidType == "S") {
        if (form.optSteamTbl->Value() && !densities_.CalcSteamDensity()) {
            return;
        }
    } else if (module.FluidType != "G") {
        module.MsgText = "Orifice type not specified";
        module.FatalError();
    }
    calculations_.DoOrificeCalculations();
}

void NumericFields::txtPf_Change() {
    Module1& module = context_.module;
    if (module.FluidType == "S") {
        if (context_.form.optSteamTbl->Value() && !densities_.CalcSteamDensity()) {
            return;
        }
    } else if (module.FluidType == "G") {
        warnings_.CheckZfCompWarning();
    } else if (module.FluidType != "L") {
        module.MsgText = "Orifice type not specified";
        module.FatalError();
    }
    calculations_.CalculateUnlessSuspended();
}

}  // namespace tarvix
