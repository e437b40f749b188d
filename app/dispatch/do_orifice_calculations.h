// The single procedure through which every recalculation passes.
#pragma once

#include "calc/equation_terms.h"
#include "ui/form/form_state.h"

namespace tarvix {

class OrificeCalculations {
  public:
    explicit OrificeCalculations(const FormContext& context) : context_(context) {}

    // Checks the inputs of the current fluid, solves for what the mode leaves open and writes it
    // into its field, or writes what is missing into the message line. Printing is enabled only by
    // a result that stands in its field at the end.
    void DoOrificeCalculations();

    // The same, unless the window is reconfiguring itself.
    void CalculateUnlessSuspended();

    // How often DoOrificeCalculations has run.
    int runs() const { return runs_; }

    void EnablePrinting(bool enabled);
    void ShowMessage(const std::string& message, BackColor color);

    // Empties the result field of the current mode.
    void ClearResult();

  private:
    void StandardBetaRangeCheck();
    NumericField& ResultField(SolveFor mode) const;

    FormContext context_;
    int runs_ = 0;
};

}  // namespace tarvix
