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

extern const std::array<NominalSize, 24> kNominalSizes;

// The schedules of the nominal size with this value text, compared letter by letter, in list order.
// Empty when there is no such size.
std::span<const PipeSchedule> SchedulesOf(std::string_view sizeValue);

}  // namespace tarvix
