#include "ui/handlers/unit_boxes.h"

#include "app/dispatch/do_orifice_calculations.h"
#include "ui/form/handler_links.h"
#include "ui/form/unit_lists.h"
#include "ui/handlers/densities.h"
#include "ui/handlers/numeric_fields.h"
#include "ui/handlers/warnings.h"

namespace tarvix {

void ConnectUnitBoxes(const FormContext& context) {
    const MainForm& form = context.form;
    OnClick(context, *form.cboPressUnit, cboPressUnit_Click);
    OnClick(context, *form.cboDeltaPunit, cboDeltaPunit_Click);
    OnClick(context, *form.cboDensityUnit, cboDensityUnit_Click);
    OnClick(context, *form.cboZfDensityUnit, cboZfDensityUnit_Click);
}

void LoadcboPressUnit(const FormContext& context) {
    ReloadUnits(*context.form.cboPressUnit, context.state.PressUnitTable, kPressUnits);
}

void LoadcboDeltaPUnit(const FormContext& context) {
    ReloadUnits(*context.form.cboDeltaPunit, context.state.DeltaPUnitTable, kDeltaPUnits);
}

void LoadcboDensityUnit(const FormContext& context) {
    DropDownList& zfList = *context.form.cboZfDensityUnit;
    FillUnits(zfList, context.state.ZfDensityUnitTable, kDensityUnits);
    ReloadUnits(*context.form.cboDensityUnit, context.state.DensityUnitTable, kDensityUnits);
    zfList.SetListIndex(context.form.cboDensityUnit->ListIndex());
}

void cboPressUnit_Click(const FormContext& context) {
    txtPf_Change(context);
}

void cboDeltaPunit_Click(const FormContext& context) {
    CalculateUnlessSuspended(context);
    CheckPlateThicknessWarning(context);
}

void cboDensityUnit_Click(const FormContext& context) {
    if (FollowDensity(context)) {
        CalculateUnlessSuspended(context);
    }
}

void cboZfDensityUnit_Click(const FormContext& context) {
    CalculateUnlessSuspended(context);
}

}  // namespace tarvix
