#include "ui/handlers/bore_and_beta_fields.h"

#include "units/bore_and_beta.h"
#include "units/pipe_id_texts.h"

namespace tarvix {

namespace {

constexpr int kBoreDecimals = 3;
constexpr int kBetaDecimals = 5;
constexpr const char* kLineEnd = "\n\r";

}  // namespace

BoreAndBeta::BoreAndBeta(const FormContext& context, OrificeCalculations& calculations)
    : context_(context), calculations_(calculations) {
    const MainForm& form = context_.form;
    form.txtBeta->onChange = [this] { txtBeta_Change(); };
    form.txtOriBoreDia->onChange = [this] { txtOriBoreDia_Change(); };
    QObject::connect(form.cboOriBoreUnit, &QComboBox::activated, form.cboOriBoreUnit,
                     [this] { cboOriBoreUnit_Click(); });
}

void BoreAndBeta::txtBeta_Change() {
    const MainForm& form = context_.form;
    Module1& module = context_.module;
    const auto beta = TextToSingle(form.txtBeta->Text(), module.locale());
    if (beta && *beta >= kBetaLimit) {
        module.MsgText = BetaLimitMessage();
        module.MsgTitle = "Beta Value";
        module.MsgResult = module.platform().ShowMessageBox(
            {module.MsgText, module.MsgTitle, BoxStyle::Exclamation, BoxButtons::Ok});
        form.txtOriBoreDia->SetText("");
        form.txtBeta->SetText("");
    } else if (beta) {
        // Left alone while the user works on the bore.
        const QWidget* active = form.ActiveControl();
        if (active != form.txtOriBoreDia && active != form.cboOriBoreUnit) {
            WriteBore(*beta);
        }
    }
    if (!form.optCalcBeta->Value()) {
        calculations_.CalculateUnlessSuspended();
    }
    if (form.txtBeta->text().isEmpty()) {
        calculations_.EnablePrinting(false);
    }
}

void BoreAndBeta::txtOriBoreDia_Change() {
    // Only what the user types here changes beta, not what the program writes.
    if (context_.form.ActiveControl() == context_.form.txtOriBoreDia) {
        WriteBeta();
    }
}

void BoreAndBeta::cboOriBoreUnit_Click() {
    const MainForm& form = context_.form;
    form.cboOriBoreUnit->update();
    form.txtOriBoreDia->SetText("");
    const auto beta = TextToSingle(form.txtBeta->Text(), context_.module.locale());
    // The limit itself, which the beta field refuses, is converted here.
    if (beta && *beta <= kBetaLimit) {
        WriteBore(*beta);
    }
}

void BoreAndBeta::FollowPipeDiameter() {
    const MainForm& form = context_.form;
    const NumberLocale& locale = context_.module.locale();
    if (const auto bore = TextToSingle(form.txtOriBoreDia->Text(), locale)) {
        form.txtOriBoreDia->SetText(FormatNumber(*bore, kBoreDecimals, locale, Grouping::Off));
    }
    WriteBeta();
    calculations_.CalculateUnlessSuspended();
}

// Beta from the text of the bore field; empty when there is none.
void BoreAndBeta::WriteBeta() {
    const MainForm& form = context_.form;
    const NumberLocale& locale = context_.module.locale();
    const auto bore = TextToSingle(form.txtOriBoreDia->Text(), locale);
    const auto beta = bore ? BetaFromBore(*bore, PipeDiameterIn(), BoreUnitFactor()) : std::nullopt;
    form.txtBeta->SetText(beta ? FormatNumber(*beta, kBetaDecimals, locale, Grouping::Off) : "");
}

void BoreAndBeta::WriteBore(float beta) {
    const auto bore = BoreFromBeta(beta, PipeDiameterIn(), BoreUnitFactor());
    context_.form.txtOriBoreDia->SetText(
        bore ? FormatNumber(*bore, kBoreDecimals, context_.module.locale(), Grouping::Off) : "");
}

float BoreAndBeta::PipeDiameterIn() const {
    const std::string* diameter =
        SelectedEntry(context_.state.PipeIDTable, *context_.form.cboPipeID);
    return diameter != nullptr ? TextToSingle(*diameter, context_.module.locale()).value_or(0.0F)
                               : 0.0F;
}

float BoreAndBeta::BoreUnitFactor() const {
    const Unit* unit =
        SelectedEntry(context_.state.OriBoreUnitTable, *context_.form.cboOriBoreUnit);
    return unit != nullptr ? unit->factor : 1.0F;
}

std::string BoreAndBeta::BetaLimitMessage() const {
    const MainForm& form = context_.form;
    const NumberLocale& locale = context_.module.locale();
    const Unit* pipeUnit = SelectedEntry(context_.state.PipeIDUnitTable, *form.cboPipeIDUnit);
    const std::string* diameter = SelectedEntry(context_.state.PipeIDTable, *form.cboPipeID);

    std::string pipeText;
    if (pipeUnit != nullptr && diameter != nullptr) {
        const std::string shown =
            PipeDiameterInUnit(pipeUnit->text, *diameter, form.cboPipeID->Text()).value_or("");
        const int decimals = pipeUnit->text == kInches ? 3 : 2;
        if (const auto value = TextToSingle(shown, locale)) {
            pipeText = FormatNumber(*value, decimals, locale, Grouping::Off);
        }
    }

    // The bore is named with the pipe's unit and the pipe with the bore's; the two lists keep step.
    std::string text;
    text += "Orifice Diameter:\t" + form.txtOriBoreDia->Text() + " " + form.cboPipeIDUnit->Text() +
            kLineEnd;
    text += "Pipe Diameter:\t" + pipeText + " " + form.cboOriBoreUnit->Text() + kLineEnd;
    text += "Beta Ratio:\t" + form.txtBeta->Text() + kLineEnd + kLineEnd;
    text += std::string("Beta is a dimensionless ratio of the") + kLineEnd;
    text += std::string("Orifice Diameter divided by the Pipe Diameter.") + kLineEnd + kLineEnd;
    text += std::string("This ratio must be less than 0.95") + kLineEnd;
    return text;
}

}  // namespace tarvix
