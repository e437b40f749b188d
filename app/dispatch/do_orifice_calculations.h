// The single procedure through which every recalculation passes, and what it writes.
#pragma once

#include "ui/form/form_state.h"

#include <string>

namespace tarvix {

// Checks the inputs of the current fluid, solves for what the mode leaves open and writes it into
// its field, or writes what is missing into the message line. Printing is enabled only by a result
// that stands in its field at the end.
void DoOrificeCalculations(const FormContext& context);

// The same, unless the window is reconfiguring itself.
void CalculateUnlessSuspended(const FormContext& context);

void EnablePrinting(const FormContext& context, bool enabled);
void ShowMessage(const FormContext& context, const std::string& message, BackColor color);

// Empties the result field of the current mode.
void ClearResult(const FormContext& context);

}  // namespace tarvix
