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

NumericField& ResultField(const FormContext& context, SolveFor mode) {
    switch (mode) {
        case SolveFor::FlowRate:
            return *context.form.txtFlow;
        case SolveFor::DiffPressure:
            return *context.form.txtDeltaP;
        case SolveFor::Beta:
            break;
    }
    return *context.form.txtBeta;
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
    NumericField& field = ResultField(context, *sheet.mode);
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
    if (form.optCalcFR->Value()) {
        form.txtFlow->SetText("");
    } else if (form.optCalcDP->Value()) {
        form.txtDeltaP->SetText("");
    } else if (form.optCalcBeta->Value()) {
        form.txtBeta->SetText("");
    } else {
        form.txtFlow->SetText("");
        form.txtDeltaP->SetText("");
        form.txtBeta->SetText("");
    }
}

}  // namespace tarvix
