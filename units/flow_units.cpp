#include "units/flow_units.h"

namespace tarvix {

namespace {

// US gallons per unit; for a mass, US gallons of water.
constexpr std::array<FlowUnit, 13> kLiquidFlowUnits{{
    {"Gallons", kVolumeKind, 1.0F},
    {"Imperial Gallons", kVolumeKind, 1.20095F},
    {"Barrels", kVolumeKind, 42.0F},
    {"Dekaliters", kVolumeKind, 2.64172F},
    {"Liters", kVolumeKind, 0.264172F},
    {"Cubic Meters ", kVolumeKind, 264.172F},  // the text ends in a blank
    {"Grams", kMassKind, 0.000264717F},
    {"Kilograms", kMassKind, 0.2647168F},
    {"Tons", kMassKind, 240.147F},
    {"Pounds", kMassKind, 0.120074F},
    {"Metric Tons", kMassKind, 264.762F},  // not quite 1000 kilograms; kept
    {"Long Tons", kMassKind, 268.965F},
    {"Cubic Centimeters", kVolumeKind, 0.000264172F},
}};

// Pounds per unit.
constexpr std::array<FlowUnit, 2> kSteamFlowUnits{{
    {"Pounds", kMassKind, 1.0F},
    {"Kilograms", kMassKind, 2.204614F},
}};

// Standard cubic feet per unit.
constexpr std::array<FlowUnit, 4> kGasFlowUnits{{
    {"Standard Cubic Feet", kVolumeKind, 1.0F},
    {"Pounds", kMassKind, 13.10249F},                   // 1 / (2.698825 x 14.696 / (459.67 + 60))
    {"Kilograms", kMassKind, 28.88056F},                // 13.1 / 0.4535924, from the rounded 13.1
    {"Standard Cubic Meters", kVolumeKind, 35.31466F},  // 1 / 0.02831685
}};

}  // namespace

const std::array<Unit, 4> kTimeUnits{{
    {"Minute", 1.0F},
    {"Hour", 60.0F},
    {"Day", 1440.0F},
    {"Second", 0.0166667F},
}};

FluidFlowUnits FlowUnitsOf(std::string_view fluidType) {
    if (fluidType == "L") {
        return {kLiquidFlowUnits, "Gallons", "Minute"};
    }
    if (fluidType == "S") {
        return {kSteamFlowUnits, "Pounds", "Hour"};
    }
    if (fluidType == "G") {
        return {kGasFlowUnits, "Standard Cubic Feet", "Day"};
    }
    return {};
}

}  // namespace tarvix
