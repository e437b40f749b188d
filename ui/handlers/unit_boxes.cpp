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
    DropDownList& list = *context.form.cboPressUnit;
    const std::string previous = list.Text();
    list.Clear();
    context.state.PressUnitTable = kPressUnits;
    AddUnits(list, kPressUnits);
    list.SetListIndex(PositionOf(kPressUnits, previous));
}

void LoadcboDeltaPUnit(const FormContext& context) {
    DropDownList& list = *context.form.cboDeltaPunit;
    const std::string previous = list.Text();
    list.Clear();
    context.state.DeltaPUnitTable = kDeltaPUnits;
    AddUnits(list, kDeltaPUnits);
    list.SetListIndex(PositionOf(kDeltaPUnits, previous));
}

void LoadcboDensityUnit(const FormContext& context) {
    DropDownList& list = *context.form.cboDensityUnit;
    DropDownList& zfList = *context.form.cboZfDensityUnit;
    const std::string previous = list.Text();
    list.Clear();
    context.state.DensityUnitTable = kDensityUnits;
    context.state.ZfDensityUnitTable = kDensityUnits;
    AddUnits(list, kDensityUnits);
    AddUnits(zfList, kDensityUnits);
    const int position = PositionOf(kDensityUnits, previous);
    list.SetListIndex(position);
    zfList.SetListIndex(position);
}

void cboPressUnit_Click(const FormContext& context) {
    txtPf_Change(context);
}

void cboDeltaPunit_Click(const FormContext& context) {
    CalculateUnlessSuspended(context);
    CheckPlateThicknessWarning(context);
}

void cboDensityUnit_Click(const FormContext& context) {
    const MainForm& form = context.form;
    switch (context.module.CurrentFluid()) {
        case Fluid::Liquid:
            if (form.optSgCalc->Value()) {
                CalcSGf(context);
            }
            break;
        case Fluid::Steam:
            if (form.optSteamTbl->Value() && !CalcSteamDensity(context)) {
                return;
            }
            break;
        case Fluid::Gas:
            break;
    }
    CalculateUnlessSuspended(context);
}

void cboZfDensityUnit_Click(const FormContext& context) {
    CalculateUnlessSuspended(context);
}

}  // namespace tarvix
