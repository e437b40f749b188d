#pragma once

#include "app/dispatch/do_orifice_calculations.h"

namespace tarvix {

// The flow and time unit boxes, whose lists depend on the fluid.
class FlowUnitBoxes {
  public:
    FlowUnitBoxes(const FormContext& context, OrificeCalculations& calculations);

    // Each fills its box for the current fluid and selects the fluid's own unit.
    void LoadcboFlowUnit();
    void LoadcboTimeUnit();

    void cboFlowUnit_Click();
    void cboTimeUnit_Click();

    // "V" or "M" of the selected flow unit; empty while there is none.
    std::string_view SelectedKind() const;

  private:
    FormContext context_;
    OrificeCalculations& calculations_;
};

}  // namespace tarvix
