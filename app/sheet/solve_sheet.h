// One recalculation, from the sheet to the text of the result: checks, equation, number text.
#pragma once

#include "app/shared/module1.h"
#include "app/sheet/input_sheet.h"

#include <optional>
#include <string>

namespace tarvix {

// What the equation of the sheet's fluid wrote: the text of the result field (empty: no result),
// or a message for the message line.
struct CalculationResult {
    std::string text;
    std::string message;
};

// Runs the checks of the sheet's fluid, in order. Returns kDataGood or kDataBad and leaves the
// message in module.MsgText. An unknown fluid ends the program.
int CheckInputs(const InputSheet& sheet, Module1& module);

// Solves for the unknown of a sheet that has passed its checks, from the working values in
// `module`. No selected mode, an unknown flow kind or an unknown fluid ends the program.
CalculationResult OrificeCalcLiquid(const InputSheet& sheet, Module1& module);
CalculationResult OrificeCalcGas(const InputSheet& sheet, Module1& module);
CalculationResult OrificeCalcSteam(const InputSheet& sheet, Module1& module);
CalculationResult CalculateResult(const InputSheet& sheet, Module1& module);

// The text of txtSGf for a liquid density: 4 decimals, empty when the density is not a number
// above 0.
std::string CalcSGf(const std::string& density, const SelectedUnit& unit, const Module1& module);

struct SteamDensityResult {
    std::string density;  // the text of txtDensity; empty when there is none
    std::string message;  // for the message line; not empty: the pressure is outside the table
};

// The density of saturated steam at the sheet's operating pressure, in the selected density unit,
// 5 decimals.
SteamDensityResult CalcSteamDensity(const InputSheet& sheet, const Module1& module);

enum class CompressibilityWarning { None, May, Will };

// Whether a gas without compressibility correction at this pressure may or will be computed
// wrongly: above 200 and above 400 psi gauge.
CompressibilityWarning CheckZfComp(const InputSheet& sheet, const Module1& module);

// Whether the plate may deflect: nominal size (inches, number text) 8 or more, and 150 inches of
// water or more.
bool CheckPlateThickness(const std::string& nominalSize, const std::string& deltaP,
                         const SelectedUnit& deltaPUnit, const NumberLocale& locale);

}  // namespace tarvix
