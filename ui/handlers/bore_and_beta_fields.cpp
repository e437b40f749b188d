#include "ui/handlers/bore_and_beta_fields.h"

#include "app/dispatch/do_orifice_calculations.h"
#include "calc/constants.h"
#include "ui/form/handler_links.h"
#include "units/bore_and_beta.h"
#include "units/pipe_id_texts.h"

namespace tarvix {

namespace {

constexpr int kBoreDecimals = 3;

float PipeDiameterIn(const FormContext& context) {
    const EnteredNumber* diameter =
        SelectedEntry(context, context.state.PipeIDTable, *context.form.cboPipeID);
    return diameter != nullptr ? diameter->SingleOrZero() : 0.0F;
}

float BoreUnitFactor(const FormContext& context) {
    const Unit* unit =
        SelectedEntry(context, context.state.OriBoreUnitTable, *context.form.cboOriBoreUnit);
    return unit != nullptr ? unit->factor : 1.0F;
}

// Beta from the text of the bore field; empty when there is none.
void WriteBeta(const FormContext& context) {
    const MainForm& form = context.form;
    const NumberLocale& locale = context.module.locale();
    const auto bore = form.txtOriBoreDia->Number().Single();
    const auto beta =
        bore ? BetaFromBore(*bore, PipeDiameterIn(context), BoreUnitFactor(context)) : std::nullopt;
    form.txtBeta->SetText(beta ? FormatNumber(*beta, kBetaDecimals, locale, Grouping::Off) : "");
}

void WriteBore(const FormContext& context, float beta) {
    const auto bore = BoreFromBeta(beta, PipeDiameterIn(context), BoreUnitFactor(context));
    context.form.txtOriBoreDia->SetText(
        bore ? FormatNumber(*bore, kBoreDecimals, context.module.locale(), Grouping::Off) : "");
}

// The bore is a result of the beta mode together with beta. When beta can't be solved, the bore
// keeps its text, which belongs to the inputs from before.
void ShowWhetherBoreIsCurrent(const MainForm& form) {
    form.txtOriBoreDia->SetCurrent(!form.optCalcBeta->Value() || !form.txtBeta->text().isEmpty() ||
                                   form.txtOriBoreDia->text().isEmpty());
}

std::string BetaLimitMessage(const FormContext& context) {
    const MainForm& form = context.form;
    const NumberLocale& locale = context.module.locale();
    const Unit* pipeUnit =
        SelectedEntry(context, context.state.PipeIDUnitTable, *form.cboPipeIDUnit);
    const EnteredNumber* diameter =
        SelectedEntry(context, context.state.PipeIDTable, *form.cboPipeID);

    std::string pipeText;
    if (pipeUnit != nullptr && diameter != nullptr) {
        const std::string shown =
            PipeDiameterInUnit(pipeUnit->text, diameter->text(), form.cboPipeID->Text())
                .value_or("");
        if (const auto value = TextToSingle(shown, locale)) {
            pipeText =
                FormatNumber(*value, PipeDiameterDecimals(pipeUnit->text), locale, Grouping::Off);
        }
    }

    // The bore is named with the pipe's unit and the pipe with the bore's; the two lists keep step.
    return "Orifice Diameter:\t" + form.txtOriBoreDia->Text() + " " + form.cboPipeIDUnit->Text() +
           "\n\rPipe Diameter:\t" + pipeText + " " + form.cboOriBoreUnit->Text() +
           "\n\rBeta Ratio:\t" + form.txtBeta->Text() +
           "\n\r\n\rBeta is a dimensionless ratio of the"
           "\n\rOrifice Diameter divided by the Pipe Diameter.\n\r"
           "\n\rThis ratio must be less than 0.95\n\r";
}

}  // namespace

void ConnectBoreAndBeta(const FormContext& context) {
    const MainForm& form = context.form;
    for (NumericField* field : {form.txtBeta, form.txtOriBoreDia}) {
        QObject::connect(field, &QLineEdit::textChanged, field,
                         [&form] { ShowWhetherBoreIsCurrent(form); });
    }
    for (OptionButton* mode : {form.optCalcBeta, form.optCalcDP, form.optCalcFR}) {
        QObject::connect(mode, &QAbstractButton::clicked, mode,
                         [&form] { ShowWhetherBoreIsCurrent(form); });
    }
    OnChange(context, *form.txtBeta, txtBeta_Change);
    OnChange(context, *form.txtOriBoreDia, txtOriBoreDia_Change);
    OnClick(context, *form.cboOriBoreUnit, cboOriBoreUnit_Click);
}

void txtBeta_Change(const FormContext& context) {
    const MainForm& form = context.form;
    const auto beta = form.txtBeta->Number().Single();
    if (beta && *beta >= kMaxBeta) {
        Module1& module = context.module;
        module.MsgText = BetaLimitMessage(context);
        module.MsgTitle = "Beta Value";
        module.MsgResult = module.platform().ShowMessageBox(
            {module.MsgText, module.MsgTitle, BoxStyle::Exclamation, BoxButtons::Ok});
        form.txtOriBoreDia->SetText("");
        form.txtBeta->SetText("");
    } else if (beta) {
        // Left alone while the user works on the bore.
        const QWidget* active = form.ActiveControl();
        if (active != form.txtOriBoreDia && active != form.cboOriBoreUnit) {
            WriteBore(context, *beta);
        }
    }
    if (!form.optCalcBeta->Value()) {
        CalculateUnlessSuspended(context);
    }
    if (form.txtBeta->text().isEmpty()) {
        EnablePrinting(context, false);
    }
}

void txtOriBoreDia_Change(const FormContext& context) {
    // Only what the user types here changes beta, not what the program writes.
    if (context.form.ActiveControl() == context.form.txtOriBoreDia) {
        WriteBeta(context);
    }
}

void cboOriBoreUnit_Click(const FormContext& context) {
    const MainForm& form = context.form;
    form.cboOriBoreUnit->repaint();
    form.txtOriBoreDia->SetText("");
    const auto beta = form.txtBeta->Number().Single();
    // The limit itself, which the beta field refuses, is converted here.
    if (beta && *beta <= kMaxBeta) {
        WriteBore(context, *beta);
    }
}

void FollowPipeDiameter(const FormContext& context) {
    const MainForm& form = context.form;
    const NumberLocale& locale = context.module.locale();
    if (const auto bore = form.txtOriBoreDia->Number().Single()) {
        form.txtOriBoreDia->SetText(FormatNumber(*bore, kBoreDecimals, locale, Grouping::Off));
    }
    WriteBeta(context);
    CalculateUnlessSuspended(context);
}

}  // namespace tarvix
