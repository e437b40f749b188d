// Flow units of each fluid and the time units, in list order.
#pragma once

#include "calc/fluid.h"
#include "units/unit_tables.h"

#include <array>
#include <span>
#include <string_view>

namespace tarvix {

// A flow unit: `factor` US gallons (liquid), pounds (steam) or standard cubic feet (gas) per unit.
struct FlowUnit {
    std::string_view text;
    FlowKind kind;
    float factor;
};

// The flow units of a fluid, and the unit texts selected when the fluid is chosen.
struct FluidFlowUnits {
    std::span<const FlowUnit> units;
    std::string_view defaultFlowUnit;
    std::string_view defaultTimeUnit;
};

FluidFlowUnits FlowUnitsOf(Fluid fluid);

// Factor: minutes per unit.
inline constexpr auto kTimeUnits = std::to_array<Unit>({
    {"Minute", 1.0F},
    {"Hour", 60.0F},
    {"Day", 1440.0F},
    {"Second", 0.0166667F},
});

}  // namespace tarvix
