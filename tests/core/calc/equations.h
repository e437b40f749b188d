// The equations of the three fluids in one form, with their fluid's properties.
#pragma once

#include "calc/orifice_gas.h"
#include "calc/orifice_liquid.h"
#include "calc/orifice_steam.h"

#include <functional>

namespace tarvix::testing {

inline constexpr auto kVolume = FlowKind::Volume;
inline constexpr auto kMass = FlowKind::Mass;
inline constexpr auto kNone = CompCorrection::None;
inline constexpr auto kDensity = CompCorrection::Density;
inline constexpr auto kZf = CompCorrection::Zf;

using Equation = std::function<Outcome(const MeteringRun& run)>;

inline Equation Liquid(float flowingSG, float baseSG) {
    return [=](const MeteringRun& run) { return SolveLiquid(run, {flowingSG, baseSG}); };
}

inline Equation GasAt(float basePressure, float baseTemperature, GasProperties gas) {
    gas.basePressurePsia = basePressure;
    gas.baseTempR = baseTemperature;
    return [gas](const MeteringRun& run) { return SolveGas(run, gas); };
}

// Psia, deg R.
inline Equation Gas(FlowKind kind, CompCorrection correction, float pressure, float temperature,
                    float gravity, float density, float zf) {
    return GasAt(14.7F, 519.67F,
                 {kind, correction, pressure, 0, temperature, 0, gravity, density, zf});
}

// Air without correction.
inline Equation Air(FlowKind kind, float pressure = 114.7F, float temperature = 519.67F) {
    return Gas(kind, kNone, pressure, temperature, 1.0F, 0.0F, 0.0F);
}

inline Equation Steam(float pressure, float density) {
    return [=](const MeteringRun& run) { return SolveSteam(run, {pressure, density}); };
}

}  // namespace tarvix::testing
