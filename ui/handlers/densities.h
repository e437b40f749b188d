// The densities that the window works out itself.
#pragma once

#include "ui/form/form_state.h"

namespace tarvix {

// Writes the flowing specific gravity of the entered liquid density.
void CalcSGf(const FormContext& context);

// Writes the density of saturated steam at the operating pressure. Returns false, after a message
// and with the result field emptied, for a pressure outside the steam table.
bool CalcSteamDensity(const FormContext& context);

// What follows from a density, or its unit, that is another: the calculated gravity of a liquid,
// the density of steam from the table. Returns false where CalcSteamDensity does.
bool FollowDensity(const FormContext& context);

}  // namespace tarvix
