// Nominal pipe sizes and the schedules of each size with their inside diameters.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace tarvix {

struct NominalSize {
    std::string_view text;   // as shown in inches
    std::string_view value;  // the size in inches, decimal text with "."
};

struct PipeSchedule {
    std::string_view text;
    std::string_view insideDiameter;  // inches, decimal text with "."
};

inline constexpr std::string_view kDefaultNominalSize = "2";

inline constexpr auto kNominalSizes = std::to_array<NominalSize>({
    {"1/2", "0.5"}, {"3/4", "0.75"}, {"1", "1"},   {"1-1/2", "1.5"}, {"2", "2"},   {"2-1/2", "2.5"},
    {"3", "3"},     {"4", "4"},      {"5", "5"},   {"6", "6"},       {"8", "8"},   {"10", "10"},
    {"12", "12"},   {"14", "14"},    {"16", "16"}, {"18", "18"},     {"20", "20"}, {"22", "22"},
    {"24", "24"},   {"26", "26"},    {"30", "30"}, {"34", "34"},     {"36", "36"}, {"42", "42"},
});

// The schedules of the nominal size with this value text, compared letter by letter, in list order.
// Empty when there is no such size.
std::span<const PipeSchedule> SchedulesOf(std::string_view sizeValue);

}  // namespace tarvix
