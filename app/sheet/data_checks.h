// Input validation: each check judges an input sheet and says in one line what is missing or wrong.
#pragma once

#include "app/shared/module1.h"
#include "app/sheet/input_sheet.h"

#include <string>

namespace tarvix {

// The status of a check.
inline constexpr int kDataGood = 1;
inline constexpr int kDataBad = 2;

// What a check found.
struct CheckResult {
    std::string message;    // what is missing or wrong, in one line; empty: the data are good
    WorkingValues working;  // as before, with those of the fluid where its data are good

    int status() const { return message.empty() ? kDataGood : kDataBad; }
};

// The inputs of each fluid. `before`: the working values so far.
CheckResult DataChkLiquid(const InputSheet& sheet, const WorkingValues& before,
                          const Module1& module);
CheckResult DataChkSteam(const InputSheet& sheet, const WorkingValues& before,
                         const Module1& module);
CheckResult DataChkGas(const InputSheet& sheet, const WorkingValues& before, Module1& module);

// Flow rate, differential pressure and beta, each only while it is an input. Leaves the working
// values as they are.
CheckResult OrificeDataCheck(const InputSheet& sheet, const WorkingValues& before);

}  // namespace tarvix
