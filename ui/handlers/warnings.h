// The two warning boxes of the main window.
#pragma once

#include "ui/form/form_state.h"

namespace tarvix {

// Shows or hides the plate deflection warning.
void CheckPlateThicknessWarning(const FormContext& context);

// Shows, words and colors, or hides the compressibility warning.
void CheckZfCompWarning(const FormContext& context);

}  // namespace tarvix
