// Input validation: each check judges an input sheet and says in one line what is missing or wrong.
#pragma once

#include "app/shared/module1.h"
#include "app/sheet/input_sheet.h"

#include <string>
#include <string_view>

namespace tarvix {

// The states of the message line, colours as 0xBBGGRR.
inline constexpr int kMessageNone = 0xE0E0E0;
inline constexpr int kMessageCheck = 0x00FFFF;
inline constexpr int kMessageCalculation = 0x0000FF;

// What the checks return.
inline constexpr int kDataGood = 1;
inline constexpr int kDataBad = 2;

// Each fluid check returns kDataGood and stores the working values of its fluid in `module`, or
// returns kDataBad; module.MsgText then holds the message, else it is empty.
int DataChkLiquid(const InputSheet& sheet, Module1& module);
int DataChkSteam(const InputSheet& sheet, Module1& module);
int DataChkGas(const InputSheet& sheet, Module1& module);

// The same for flow rate, differential pressure and beta, each only while it is an input.
int OrificeDataCheck(const InputSheet& sheet, Module1& module);

inline constexpr std::string_view kBetaRangeWarning =
    "Warning: Beta value exceeds standard range (0.15 to 0.67).";

// True when `beta`, the text of the beta field, is a number outside the standard range.
bool IsBetaOutsideStandardRange(std::string_view beta, const NumberLocale& locale);

}  // namespace tarvix
