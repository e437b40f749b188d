// One recalculation, from the sheet to the text of the result: checks, equation, number text.
//
// What these find, they return. They read the locale and the formats of `module`, and end the
// program through its FatalError where the sheet can't be: with no mode, with no kind of flow.
#pragma once

#include "app/shared/module1.h"
#include "app/sheet/data_checks.h"
#include "app/sheet/input_sheet.h"

#include <string>

namespace tarvix {

// What the equation of the sheet's fluid wrote: the text of the result field (empty: no result),
// or a message for the message line.
struct CalculationResult {
    std::string text;
    std::string message;
};

// Runs the checks of the sheet's fluid, in order, until one finds a fault.
CheckResult CheckInputs(const InputSheet& sheet, const WorkingValues& before, Module1& module);

// Solves for the unknown of a sheet that has passed its checks, from the working values that they
// found.
CalculationResult OrificeCalcLiquid(const InputSheet& sheet, const WorkingValues& working,
                                    Module1& module);
CalculationResult OrificeCalcGas(const InputSheet& sheet, const WorkingValues& working,
                                 Module1& module);
CalculationResult OrificeCalcSteam(const InputSheet& sheet, const WorkingValues& working,
                                   Module1& module);

// The same, by the sheet's fluid.
CalculationResult CalculateResult(const InputSheet& sheet, const WorkingValues& working,
                                  Module1& module);

}  // namespace tarvix
