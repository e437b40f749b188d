// Gas runs that the tests of the gas equation share.
#pragma once

#include "calc/orifice_gas.h"

namespace tarvix::testing {

inline constexpr auto kVolume = FlowKind::Volume;
inline constexpr auto kMass = FlowKind::Mass;
inline constexpr auto kNone = CompCorrection::None;
inline constexpr auto kDensity = CompCorrection::Density;
inline constexpr auto kZf = CompCorrection::Zf;

// Air at 60 deg F and 100 psi gauge.
inline GasProperties Air(FlowKind kind = kVolume) {
    return {kind, kNone, 114.7F, 14.7F, 519.67F, 519.67F, 1.0F, 0.0F, 0.0F};
}

// In a 4-inch pipe.
inline Outcome FlowOf(const GasProperties& gas, float beta, float h) {
    return SolveGas({SolveFor::FlowRate, 4.026F, 0.0F, h, beta}, gas);
}
inline Outcome DiffPressureOf(const GasProperties& gas, float flow, float beta) {
    return SolveGas({SolveFor::DiffPressure, 4.026F, flow, 0.0F, beta}, gas);
}
inline Outcome BetaOf(const GasProperties& gas, float flow, float h) {
    return SolveGas({SolveFor::Beta, 4.026F, flow, h, 0.0F}, gas);
}

}  // namespace tarvix::testing
