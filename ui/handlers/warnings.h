#pragma once

#include "ui/form/form_state.h"

namespace tarvix {

// The two warning boxes of the main window.
class Warnings {
  public:
    explicit Warnings(const FormContext& context) : context_(context) {}

    // Shows or hides the plate deflection warning.
    void CheckPlateThicknessWarning();

    // Shows, words and colors, or hides the compressibility warning.
    void CheckZfCompWarning();

  private:
    FormContext context_;
};

}  // namespace tarvix
