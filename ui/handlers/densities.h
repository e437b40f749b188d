#pragma once

#include "app/dispatch/do_orifice_calculations.h"

namespace tarvix {

// The densities that the window works out itself.
class Densities {
  public:
    Densities(const FormContext& context, OrificeCalculations& calculations)
        : context_(context), calculations_(calculations) {}

    // Writes the flowing specific gravity of the entered liquid density.
    void CalcSGf();

    // Writes the density of saturated steam at the operating pressure. Returns false, after a
    // message and with the result field emptied, for a pressure outside the steam table.
    bool CalcSteamDensity();

  private:
    FormContext context_;
    OrificeCalculations& calculations_;
};

}  // namespace tarvix
