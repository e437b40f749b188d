#include "ui/handlers/warnings.h"

#include "app/sheet/warning_rules.h"
#include "ui/controls/accessible_roles.h"
#include "ui/form/input_reader.h"

namespace tarvix {

void CheckPlateThicknessWarning(const FormContext& context) {
    const MainForm& form = context.form;
    const EnteredNumber* nominalSize =
        SelectedEntry(context, context.state.NomSizeTable, *form.cboNomSize);
    const Unit* unit = SelectedEntry(context, context.state.DeltaPUnitTable, *form.cboDeltaPunit);
    const bool warn = nominalSize != nullptr && unit != nullptr &&
                      CheckPlateThickness(*nominalSize, form.txtDeltaP->Number(), *unit);
    const bool appears = warn && !form.IsVisible(*form.fraPlateThicknessWarning);
    form.fraPlateThicknessWarning->setVisible(warn);
    if (appears) {
        context.form.announcements.Say(AlertText(*form.fraPlateThicknessWarning));
    }
}

void CheckZfCompWarning(const FormContext& context) {
    const MainForm& form = context.form;
    const CompressibilityWarning warning = CheckZfComp(ReadInputSheet(context));
    context.state.zfCompWarning = warning;
    const bool appears = !form.IsVisible(*form.fraZfCompWarning);
    form.fraZfCompWarning->setVisible(warning != CompressibilityWarning::None);
    if (warning == CompressibilityWarning::None) {
        return;
    }
    const bool will = warning == CompressibilityWarning::Will;
    SetBackColor(*form.fraZfCompWarning, will ? BackColor::Red : BackColor::Yellow);
    const QString words = will ? QStringLiteral("will result in erroneous computations.")
                               : QStringLiteral("may result in erroneous computations.");
    const bool isNew = form.lbl2ZfCompWarning->text() != words;
    if (isNew) {
        form.lbl2ZfCompWarning->setText(words);
        AnnounceName(*form.fraZfCompWarning);
    }
    if (appears || isNew) {
        context.form.announcements.Say(AlertText(*form.fraZfCompWarning));
    }
}

}  // namespace tarvix
