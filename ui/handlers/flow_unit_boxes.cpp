#include "ui/handlers/flow_unit_boxes.h"

#include "ui/handlers/unit_boxes.h"

namespace tarvix {

FlowUnitBoxes::FlowUnitBoxes(const FormContext& context, OrificeCalculations& calculations)
    : context_(context), calculations_(calculations) {
    const MainForm& form = context_.form;
    QObject::connect(form.cboFlowUnit, &QComboBox::activated, form.cboFlowUnit,
                     [this] { cboFlowUnit_Click(); });
    QObject::connect(form.cboTimeUnit, &QComboBox::activated, form.cboTimeUnit,
                     [this] { cboTimeUnit_Click(); });
}

void FlowUnitBoxes::LoadcboFlowUnit() {
    Module1& module = context_.module;
    DropDownList& list = *context_.form.cboFlowUnit;
    const FluidFlowUnits fluid = FlowUnitsOf(module.FluidType);
    if (fluid.units.empty()) {
        module.MsgText = "Orifice flow type not specified.";
        module.FatalError();
    }
    list.Clear();
    context_.state.FlowUnitTable = fluid.units;
    AddUnits(list, fluid.units);
    list.SetListIndex(PositionOf(fluid.units, fluid.defaultFlowUnit));
}

void FlowUnitBoxes::LoadcboTimeUnit() {
    DropDownList& list = *context_.form.cboTimeUnit;
    const FluidFlowUnits fluid = FlowUnitsOf(context_.module.FluidType);
    const std::string toSelect =
        fluid.units.empty() ? list.Text() : std::string(fluid.defaultTimeUnit);
    list.Clear();
    context_.state.TimeUnitTable = kTimeUnits;
    AddUnits(list, kTimeUnits);
    list.SetListIndex(PositionOf(kTimeUnits, toSelect));
}

void FlowUnitBoxes::cboFlowUnit_Click() {
    const MainForm& form = context_.form;
    Module1& module = context_.module;
    const bool isMass = SelectedKind() == kMassKind;
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
    calculations_.CalculateUnlessSuspended();
}

void FlowUnitBoxes::cboTimeUnit_Click() {
    calculations_.CalculateUnlessSuspended();
}

std::string_view FlowUnitBoxes::SelectedKind() const {
    const FlowUnit* unit = SelectedEntry(context_.state.FlowUnitTable, *context_.form.cboFlowUnit);
    return unit != nullptr ? unit->kind : std::string_view();
}

}  // namespace tarvix
