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

extern const std::array<Unit, 4> kTimeUnits;  // factor: minutes per unit

}  // namespace tarvix
