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
    DropDownList& list = *context.form.cboFlowUnit;
    const FluidFlowUnits fluid =
        FlowUnitsOf(context.module.CurrentFluid("Orifice flow type not specified."));
    FillUnits(list, context.state.FlowUnitTable, fluid.units);
    list.SetListIndex(PositionOf(fluid.units, fluid.defaultFlowUnit));
}

void LoadcboTimeUnit(const FormContext& context) {
    DropDownList& list = *context.form.cboTimeUnit;
    const std::optional<Fluid> fluid = FluidOf(context.module.FluidType);
    const std::string toSelect =
        fluid ? std::string(FlowUnitsOf(*fluid).defaultTimeUnit) : list.Text();
    FillUnits(list, context.state.TimeUnitTable, kTimeUnits);
    list.SetListIndex(PositionOf(kTimeUnits, toSelect));
}

void cboFlowUnit_Click(const FormContext& context) {
    const MainForm& form = context.form;
    const bool isMass = SelectedFlowKind(context) == FlowKind::Mass;
    switch (context.module.CurrentFluid()) {
        case Fluid::Liquid:
            // A mass rate needs no gravity at base conditions.
            form.txtSGb->setVisible(!isMass);
            form.lblSGb1->setVisible(!isMass);
            form.lblSGb2->setVisible(!isMass);
            break;
        case Fluid::Gas:
            form.fraGasSG->setVisible(!(form.optCompDensity->Value() && isMass));
            break;
        case Fluid::Steam:
            break;
    }
    CalculateUnlessSuspended(context);
}

void cboTimeUnit_Click(const FormContext& context) {
    CalculateUnlessSuspended(context);
}

std::optional<FlowKind> SelectedFlowKind(const FormContext& context) {
    const FlowUnit* unit =
        SelectedEntry(context, context.state.FlowUnitTable, *context.form.cboFlowUnit);
    return unit != nullptr ? std::optional(unit->kind) : std::nullopt;
}

}  // namespace tarvix
