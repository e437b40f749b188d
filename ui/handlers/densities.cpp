#include "ui/handlers/densities.h"

#include "app/sheet/solve_sheet.h"
#include "ui/form/input_reader.h"

namespace tarvix {

void Densities::CalcSGf() {
    const MainForm& form = context_.form;
    const InputSheet sheet = ReadInputSheet(context_);
    form.txtSGf->SetText("");
    form.txtSGf->SetText(tarvix::CalcSGf(sheet.density, sheet.densityUnit, context_.module));
}

bool Densities::CalcSteamDensity() {
    const MainForm& form = context_.form;
    const InputSheet sheet = ReadInputSheet(context_);
    form.txtDensity->SetText("");
    const SteamDensityResult result = tarvix::CalcSteamDensity(sheet, context_.module);
    form.txtDensity->SetText(result.density);
    context_.module.MsgText = result.message;
    calculations_.ShowMessage(result.message, BackColor::Yellow);
    if (result.message.empty()) {
        return true;
    }
    calculations_.ClearResult();
    return false;
}

}  // namespace tarvix
