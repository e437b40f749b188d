#include "ui/handlers/warnings.h"

#include "app/sheet/solve_sheet.h"
#include "ui/controls/accessible_roles.h"
#include "ui/form/input_reader.h"

namespace tarvix {

void Warnings::CheckPlateThicknessWarning() {
    const MainForm& form = context_.form;
    const std::string* nominalSize = SelectedEntry(context_.state.NomSizeTable, *form.cboNomSize);
    const Unit* unit = SelectedEntry(context_.state.DeltaPUnitTable, *form.cboDeltaPunit);
    const bool warn =
        nominalSize != nullptr && unit != nullptr &&
        CheckPlateThickness(*nominalSize, form.txtDeltaP->Text(), *unit, context_.module.locale());
    form.fraPlateThicknessWarning->setVisible(warn);
}

void Warnings::CheckZfCompWarning() {
    const MainForm& form = context_.form;
    const CompressibilityWarning warning = CheckZfComp(ReadInputSheet(context_), context_.module);
    form.fraZfCompWarning->setVisible(warning != CompressibilityWarning::None);
    if (warning == CompressibilityWarning::None) {
        return;
    }
    const bool will = warning == CompressibilityWarning::Will;
    SetBackColor(*form.fraZfCompWarning, will ? BackColor::Red : BackColor::Yellow);
    const QString words = will ? QStringLiteral("will result in erroneous computations.")
                               : QStringLiteral("may result in erroneous computations.");
    if (form.lbl2ZfCompWarning->text() != words) {
        form.lbl2ZfCompWarning->setText(words);
        AnnounceAlert(*form.fraZfCompWarning);
    }
}

}  // namespace tarvix
