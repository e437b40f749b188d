#include "units/flow_units.h"

namespace tarvix {

namespace {

// US gallons per unit; for a mass, US gallons of water.
constexpr auto kLiquidFlowUnits = std::to_array<FlowUnit>({
    {"Gallons", FlowKind::Volume, 1.0F},
    {"Imperial Gallons", FlowKind::Volume, 1.20095F},
    {"Barrels", FlowKind::Volume, 42.0F},
    {"Dekaliters", FlowKind::Volume, 2.64172F},
    {"Liters", FlowKind::Volume, 0.264172F},
    {"Cubic Meters ", FlowKind::Volume, 264.172F},  // the text ends in a blank
    {"Grams", FlowKind::Mass, 0.000264717F},
    {"Kilograms", FlowKind::Mass, 0.2647168F},
    {"Tons", FlowKind::Mass, 240.147F},
    {"Pounds", FlowKind::Mass, 0.120074F},
    {"Metric Tons", FlowKind::Mass, 264.762F},  // not quite 1000 kilograms; kept
    {"Long Tons", FlowKind::Mass, 268.965F},
    {"Cubic Centimeters", FlowKind::Volume, 0.000264172F},
});

// Pounds per unit.
constexpr auto kSteamFlowUnits = std::to_array<FlowUnit>({
    {"Pounds", FlowKind::Mass, 1.0F},
    {"Kilograms", FlowKind::Mass, 2.204614F},
});

// Standard cubic feet per unit.
constexpr auto kGasFlowUnits = std::to_array<FlowUnit>({
    {"Standard Cubic Feet", FlowKind::Volume, 1.0F},
    {"Pounds", FlowKind::Mass, 13.10249F},     // 1 / (2.698825 x 14.696 / (459.67 + 60))
    {"Kilograms", FlowKind::Mass, 28.88056F},  // 13.1 / 0.4535924, from the rounded 13.1
    {"Standard Cubic Meters", FlowKind::Volume, 35.31466F},  // 1 / 0.02831685
});

}  // namespace

FluidFlowUnits FlowUnitsOf(Fluid fluid) {
    switch (fluid) {
        case Fluid::Liquid:
            return {kLiquidFlowUnits, "Gallons", "Minute"};
        case Fluid::Steam:
            return {kSteamFlowUnits, "Pounds", "Hour"};
        case Fluid::Gas:
            break;
    }
    return {kGasFlowUnits, "Standard Cubic Feet", "Day"};
}

}  // namespace tarvix
