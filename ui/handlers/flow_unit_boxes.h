// The flow and time unit boxes, whose lists depend on the fluid.
#pragma once

#include "ui/form/form_state.h"

namespace tarvix {

void ConnectFlowUnitBoxes(const FormContext& context);

// Each fills its box for the current fluid and selects the fluid's own unit.
void LoadcboFlowUnit(const FormContext& context);
void LoadcboTimeUnit(const FormContext& context);

void cboFlowUnit_Click(const FormContext& context);
void cboTimeUnit_Click(const FormContext& context);

// Whether the selected flow unit measures volume or mass; nothing while there is none.
std::optional<FlowKind> SelectedFlowKind(const FormContext& context);

}  // namespace tarvix
