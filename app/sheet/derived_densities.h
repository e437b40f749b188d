// The densities and gravities that the window works out itself, as the texts of their fields.
#pragma once

#include "app/shared/module1.h"
#include "app/sheet/input_sheet.h"

#include <string>

namespace tarvix {

// The text of txtSGf for a liquid density: 4 decimals, empty when the density is not a number
// above 0.
std::string FlowingGravityText(const EnteredNumber& density, const SelectedUnit& unit,
                               const NumberLocale& locale);

struct SteamDensityText {
    std::string density;  // the text of txtDensity; empty when there is none
    std::string message;  // for the message line; not empty: the pressure is outside the table
};

// The density of saturated steam at the sheet's operating pressure, in the selected density unit,
// 5 decimals.
SteamDensityText SteamDensityTextOf(const InputSheet& sheet, const Module1& module);

}  // namespace tarvix
