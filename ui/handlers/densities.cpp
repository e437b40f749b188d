#include "ui/handlers/densities.h"

#include "app/dispatch/do_orifice_calculations.h"
#include "app/sheet/derived_densities.h"
#include "ui/form/input_reader.h"

namespace tarvix {

void CalcSGf(const FormContext& context) {
    const MainForm& form = context.form;
    const InputSheet sheet = ReadInputSheet(context);
    form.txtSGf->SetText("");
    form.txtSGf->SetText(
        FlowingGravityText(sheet.density, sheet.densityUnit, context.module.locale()));
}

bool CalcSteamDensity(const FormContext& context) {
    const MainForm& form = context.form;
    const InputSheet sheet = ReadInputSheet(context);
    form.txtDensity->SetText("");
    const SteamDensityText result = SteamDensityTextOf(sheet, context.module);
    form.txtDensity->SetText(result.density);
    context.module.MsgText = result.message;
    ShowMessage(context, result.message, BackColor::Yellow);
    if (result.message.empty()) {
        return true;
    }
    ClearResult(context);
    return false;
}

bool FollowDensity(const FormContext& context) {
    const MainForm& form = context.form;
    switch (context.module.CurrentFluid()) {
        case Fluid::Liquid:
            if (form.optSgCalc->Value()) {
                CalcSGf(context);
            }
            break;
        case Fluid::Steam:
            return !form.optSteamTbl->Value() || CalcSteamDensity(context);
        case Fluid::Gas:
            break;
    }
    return true;
}

}  // namespace tarvix
