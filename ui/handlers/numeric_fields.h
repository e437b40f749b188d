#pragma once

#include "app/dispatch/do_orifice_calculations.h"
#include "ui/handlers/densities.h"
#include "ui/handlers/warnings.h"

namespace tarvix {

// The fields for numbers: what they do on focus, on keys and on every change of their text (the
// bore and beta excepted: BoreAndBeta).
class NumericFields {
  public:
    NumericFields(const FormContext& context, OrificeCalculations& calculations,
                  Densities& densities, Warnings& warnings);

    // Selects the whole text, so that typing replaces it.
    static void GotFocus(NumericField& field);

    // The key code to keep, or 0.
    int KeyPress(const NumericField& field, int keyCode) const;

    void txtFlow_Change();
    void txtDeltaP_Change();
    void txtPf_Change();
    void txtSGf_Change();
    void txtDensity_Change();
    // txtTf, txtSGb, txtGasSGb, txtZf
    void PlainField_Change();

  private:
    FormContext context_;
    OrificeCalculations& calculations_;
    Densities& densities_;
    Warnings& warnings_;
};

}  // namespace tarvix
