// The units of pressure, differential pressure, density and length, in list order.
#pragma once

#include <array>
#include <string_view>

namespace tarvix {

// A unit as its list shows it. A value in this unit times `factor` is the value in the calculation
// unit of the table.
struct Unit {
    std::string_view text;
    float factor;
};

extern const std::array<Unit, 8> kPressUnits;    // to psi
extern const std::array<Unit, 9> kDeltaPUnits;   // to inches of water
extern const std::array<Unit, 2> kDensityUnits;  // to lb per cubic foot
extern const std::array<Unit, 3> kLengthUnits;   // to inches: pipe ID and orifice bore

inline constexpr std::string_view kInches = "Inches";
inline constexpr std::string_view kMillimeters = "Millimeters";
inline constexpr std::string_view kCentimeters = "Centimeters";

}  // namespace tarvix
