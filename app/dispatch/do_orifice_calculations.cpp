#include "app/dispatch/do_orifice_calculations.h"

#include "app/sheet/data_checks.h"
#include "app/sheet/solve_sheet.h"
#include "ui/form/input_reader.h"

namespace tarvix {

void OrificeCalculations::CalculateUnlessSuspended() {
    if (!context_.state.SuspendCalc) {
        DoOrificeCalculations();
    }
}

void OrificeCalculations::DoOrificeCalculations() {
    ++runs_;
    Module1& module = context_.module;
    EnablePrinting(false);

    const InputSheet sheet = ReadInputSheet(context_);
    const int ok = CheckInputs(sheet, module);
    ShowMessage(module.MsgText, BackColor::Yellow);
    if (ok != kDataGood) {
        ClearResult();
        return;
    }

    const CalculationResult result = CalculateResult(sheet, module);
    NumericField& field = ResultField(*sheet.mode);
    field.SetText("");
    if (!result.message.empty()) {
        ShowMessage(result.message, BackColor::Red);
    } else if (!result.text.empty()) {
        field.SetText(result.text);
        // Writing the result may have refused it: its own field knows a limit, too.
        EnablePrinting(field.Text() == result.text);
    }
    StandardBetaRangeCheck();
}

void OrificeCalculations::StandardBetaRangeCheck() {
    Module1& module = context_.module;
    if (IsBetaOutsideStandardRange(context_.form.txtBeta->Text(), module.locale())) {
        module.MsgText = kBetaRangeWarning;
        ShowMessage(module.MsgText, BackColor::Yellow);
    }
}

void OrificeCalculations::ShowMessage(const std::string& message, BackColor color) {
    context_.form.lblMsg->Show(message, color);
}

void OrificeCalculations::EnablePrinting(bool enabled) {
    context_.form.cmdPrint->setEnabled(enabled);
    context_.form.mnuPrint->setEnabled(enabled);
}

void OrificeCalculations::ClearResult() {
    const MainForm& form = context_.form;
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

NumericField& OrificeCalculations::ResultField(SolveFor mode) const {
    switch (mode) {
        case SolveFor::FlowRate:
            return *context_.form.txtFlow;
        case SolveFor::DiffPressure:
            return *context_.form.txtDeltaP;
        case SolveFor::Beta:
            break;
    }
    return *context_.form.txtBeta;
}

}  // namespace tarvix
