// Flow units of each fluid and the time units, in list order.
#pragma once

#include "units/unit_tables.h"

#include <array>
#include <span>
#include <string_view>

namespace tarvix {

// A flow unit: `factor` US gallons (liquid), pounds (steam) or standard cubic feet (gas) per unit.
struct FlowUnit {
    std::string_view text;
    std::string_view kind;  // kVolumeKind or kMassKind
    float factor;
};

inline constexpr std::string_view kVolumeKind = "V";  // volume; of a gas standard volume
inline constexpr std::string_view kMassKind = "M";

// The flow units of "L" liquid, "S" steam or "G" gas, and the unit texts selected when the fluid is
// chosen.
struct FluidFlowUnits {
    std::span<const FlowUnit> units;
    std::string_view defaultFlowUnit;
    std::string_view defaultTimeUnit;
};

// Empty units for any other fluid code.
FluidFlowUnits FlowUnitsOf(std::string_view fluidType);

extern const std::array<Unit, 4> kTimeUnits;  // factor: minutes per unit

}  // namespace tarvix
