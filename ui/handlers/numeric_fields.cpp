#include "ui/handlers/numeric_fields.h"

#include "app/dispatch/do_orifice_calculations.h"
#include "ui/form/handler_links.h"
#include "ui/handlers/densities.h"
#include "ui/handlers/warnings.h"

namespace tarvix {

void ConnectNumericFields(const FormContext& context) {
    const MainForm& form = context.form;
    for (NumericField* field : form.NumericFields()) {
        field->SetLocale(context.module.locale());
        field->onGotFocus = [field] { NumericField_GotFocus(*field); };
        field->onKeyPress = [context, field](int keyCode) {
            return NumericField_KeyPress(context, *field, keyCode);
        };
    }
    OnChange(context, *form.txtFlow, txtFlow_Change);
    OnChange(context, *form.txtDeltaP, txtDeltaP_Change);
    OnChange(context, *form.txtPf, txtPf_Change);
    OnChange(context, *form.txtTf, txtTf_Change);
    OnChange(context, *form.txtSGf, txtSGf_Change);
    OnChange(context, *form.txtSGb, txtSGb_Change);
    OnChange(context, *form.txtGasSGb, txtGasSGb_Change);
    OnChange(context, *form.txtZf, txtZf_Change);
    OnChange(context, *form.txtDensity, txtDensity_Change);
}

void NumericField_GotFocus(NumericField& field) {
    field.selectAll();
}

int NumericField_KeyPress(const FormContext& context, const NumericField& field, int keyCode) {
    return context.module.NumericKeyFilter(keyCode, field.Selection());
}

void txtFlow_Change(const FormContext& context) {
    const MainForm& form = context.form;
    if (!form.optCalcFR->Value()) {
        CalculateUnlessSuspended(context);
    }
    if (form.txtFlow->text().isEmpty()) {
        EnablePrinting(context, false);
    }
}

void txtDeltaP_Change(const FormContext& context) {
    const MainForm& form = context.form;
    if (!form.optCalcDP->Value()) {
        CalculateUnlessSuspended(context);
    }
    CheckPlateThicknessWarning(context);
    if (form.txtDeltaP->text().isEmpty()) {
        EnablePrinting(context, false);
    }
}

void txtTf_Change(const FormContext& context) {
    CalculateUnlessSuspended(context);
}

void txtSGb_Change(const FormContext& context) {
    CalculateUnlessSuspended(context);
}

void txtGasSGb_Change(const FormContext& context) {
    CalculateUnlessSuspended(context);
}

void txtZf_Change(const FormContext& context) {
    CalculateUnlessSuspended(context);
}

void txtSGf_Change(const FormContext& context) {
    // A gravity worked out from the density is written while the field is disabled.
    if (context.form.IsEnabled(*context.form.txtSGf)) {
        CalculateUnlessSuspended(context);
    }
}

void txtDensity_Change(const FormContext& context) {
    if (!context.form.IsEnabled(*context.form.txtDensity) || context.state.SuspendCalc) {
        return;
    }
    context.module.MsgText.clear();
    if (FollowDensity(context)) {
        DoOrificeCalculations(context);
    }
}

void txtPf_Change(const FormContext& context) {
    switch (context.module.CurrentFluid()) {
        case Fluid::Steam:
            if (context.form.optSteamTbl->Value() && !CalcSteamDensity(context)) {
                return;
            }
            break;
        case Fluid::Gas:
            CheckZfCompWarning(context);
            break;
        case Fluid::Liquid:
            break;
    }
    CalculateUnlessSuspended(context);
}

}  // namespace tarvix
