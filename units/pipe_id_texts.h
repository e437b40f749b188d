// The texts of the nominal size and pipe ID lists in inches, millimeters and centimeters.
#pragma once

#include "numbers/number_text.h"
#include "units/unit_tables.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarvix {

inline constexpr std::string_view kUserEntered = "(User Entered)";
inline constexpr std::string_view kOtherUserEntered = "Other (User Entered)";
inline constexpr std::string_view kNoDiameterYet = "0";

// Ends the program where a unit is none of the three; it names the user-entered pipe, whatever pipe
// it is.
inline constexpr const char* kUnknownPipeUnit =
    "Unrecognized pipe ID unit for 'User Entered' pipe ID";

// How `sizeText` (as shown in inches) with the value `sizeIn` is shown in a unit of length: in
// inches as it stands, else converted, with 1 decimal.
std::string NominalSizeText(std::string_view sizeText, float sizeIn, const Unit& unit,
                            const NumberLocale& locale);

// A schedule in the pipe ID list: 2.067"  Sch 40, or with the metric diameter in parentheses.
// `diameterText` is the inside diameter in inches as the locale writes it. Nothing when the unit is
// none of the three.
std::optional<std::string> ScheduleText(std::string_view diameterText, std::string_view schedule,
                                        const Unit& unit, const NumberLocale& locale);

// The longest text that the list of nominal sizes, and that the pipe ID list, shows of its table in
// any unit, written with a decimal point.
std::string LongestNominalSizeText();
std::string LongestScheduleText();

struct UserEnteredPipe {
    std::string diameterText;  // inches, 3 decimals, as the locale writes it
    std::string shownText;
};

// What the user-entered entry becomes for this answer (a positive number in `unit`). Nothing when
// the unit is none of the three.
std::optional<UserEnteredPipe> UserEnteredPipeOf(double answer, const Unit& unit,
                                                 const NumberLocale& locale);

// The pipe's inside diameter in the unit named, as number text: of inches the table's text itself,
// else what stands in the list's text between the first "(" and " mm" or " cm" (empty when it
// isn't there). Nothing when the unit is none of the three.
std::optional<std::string> PipeDiameterInUnit(std::string_view unitName,
                                              std::string_view diameterText,
                                              std::string_view pipeIdText);

// With how many decimals that diameter is told outside of the list: 3 in inches, else 2.
int PipeDiameterDecimals(std::string_view unitName);

}  // namespace tarvix
