#include "ui/handlers/flow_unit_boxes.h"

#include "app/dispatch/do_orifice_calculations.h"
#include "ui/form/handler_links.h"
#include "ui/form/unit_lists.h"

namespace tarvix {

void ConnectFlowUnitBoxes(const FormContext& context) {
    OnClick(context, *context.form.cboFlowUnit, cboFlowUnit_Click);
    OnClick(context, *context.form.cboTimeUnit, cboTimeUnit_Click);
}

void LoadcboFlowUnit(const FormContext& context) {
    Module1& module = context.module;
    DropDownList& list = *context.form.cboFlowUnit;
    const FluidFlowUnits fluid = FlowUnitsOf(module.FluidType);
    if (fluid.units.empty()) {
        module.MsgText = "Orifice flow type not specified.";
        module.FatalError();
    }
    list.Clear();
    context.state.FlowUnitTable = fluid.units;
    AddUnits(list, fluid.units);
    list.SetListIndex(PositionOf(fluid.units, fluid.defaultFlowUnit));
}

void LoadcboTimeUnit(const FormContext& context) {
    DropDownList& list = *context.form.cboTimeUnit;
    const FluidFlowUnits fluid = FlowUnitsOf(context.module.FluidType);
    const std::string toSelect =
        fluid.units.empty() ? list.Text() : std::string(fluid.defaultTimeUnit);
    list.Clear();
    context.state.TimeUnitTable = kTimeUnits;
    AddUnits(list, kTimeUnits);
    list.SetListIndex(PositionOf(kTimeUnits, toSelect));
}

void cboFlowUnit_Click(const FormContext& context) {
    const MainForm& form = context.form;
    Module1& module = context.module;
    const bool isMass = SelectedFlowKind(context) == kMassKind;
    if (module.FluidType == "L") {
        // A mass rate needs no gravity at base conditions.
        form.txtSGb->setVisible(!isMass);
        form.lblSGb1->setVisible(!isMass);
        form.lblSGb2->setVisible(!isMass);
    } else if (module.FluidType == "G") {
        form.fraGasSG->setVisible(!(form.optCompDensity->Value() && isMass));
    } else if (module.FluidType != "S") {
        module.MsgText = "Orifice type not specified";
        module.FatalError();
    }
    CalculateUnlessSuspended(context);
}

void cboTimeUnit_Click(const FormContext& context) {
    CalculateUnlessSuspended(context);
}

std::string_view SelectedFlowKind(const FormContext& context) {
    const FlowUnit* unit = SelectedEntry(context.state.FlowUnitTable, *context.form.cboFlowUnit);
    return unit != nullptr ? unit->kind : std::string_view();
}

}  // namespace tarvix
