#include "app/dispatch/do_orifice_calculations.h"

#include "app/sheet/solve_sheet.h"
#include "app/sheet/warning_rules.h"
#include "ui/form/input_reader.h"

namespace tarvix {

namespace {

void StandardBetaRangeCheck(const FormContext& context) {
    if (IsBetaOutsideStandardRange(context.form.txtBeta->Number())) {
        context.module.MsgText = kBetaRangeWarning;
        ShowMessage(context, context.module.MsgText, BackColor::Yellow);
    }
}

// The field of the selected mode; null while none is selected.
NumericField* ResultField(const MainForm& form) {
    if (form.optCalcFR->Value()) {
        return form.txtFlow;
    }
    if (form.optCalcDP->Value()) {
        return form.txtDeltaP;
    }
    return form.optCalcBeta->Value() ? form.txtBeta : nullptr;
}

}  // namespace

void CalculateUnlessSuspended(const FormContext& context) {
    if (!context.state.SuspendCalc) {
        DoOrificeCalculations(context);
    }
}

void DoOrificeCalculations(const FormContext& context) {
    ++context.state.calculationRuns;
    Module1& module = context.module;
    EnablePrinting(context, false);

    const InputSheet sheet = ReadInputSheet(context);
    const CheckResult check = CheckInputs(sheet, module.working, module);
    module.working = check.working;
    module.MsgText = check.message;
    ShowMessage(context, module.MsgText, BackColor::Yellow);
    if (check.status() != kDataGood) {
        ClearResult(context);
        return;
    }

    const CalculationResult result = CalculateResult(sheet, module.working, module);
    module.MsgText = result.message;
    // Without a mode there would be no result.
    NumericField& field = *ResultField(context.form);
    field.SetText("");
    if (!result.message.empty()) {
        ShowMessage(context, result.message, BackColor::Red);
    } else if (!result.text.empty()) {
        field.SetText(result.text);
        // Writing the result may have refused it: its own field knows a limit, too.
        EnablePrinting(context, field.Text() == result.text);
    }
    StandardBetaRangeCheck(context);
}

void ShowMessage(const FormContext& context, const std::string& message, BackColor color) {
    context.form.lblMsg->Show(message, color);
}

void EnablePrinting(const FormContext& context, bool enabled) {
    context.form.cmdPrint->setEnabled(enabled);
    context.form.mnuPrint->setEnabled(enabled);
}

void ClearResult(const FormContext& context) {
    const MainForm& form = context.form;
    if (NumericField* field = ResultField(form)) {
        field->SetText("");
        return;
    }
    for (NumericField* field : {form.txtFlow, form.txtDeltaP, form.txtBeta}) {
        field->SetText("");
    }
}

}  // namespace tarvix
