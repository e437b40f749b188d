#pragma once

#include "calc/equation_terms.h"

namespace tarvix {

// How the gas's deviation from the ideal gas law enters.
enum class CompCorrection { None, Density, Zf };

// What is read of them depends on the kind of flow and the correction.
struct GasProperties {
    FlowKind flowKind = FlowKind::Volume;
    CompCorrection correction = CompCorrection::None;
    float pressurePsia = 0;      // P, operating pressure, absolute
    float basePressurePsia = 0;  // Pb; read with FlowKind::Volume
    float flowingTempR = 0;      // Tf, deg R; not read for a mass with CompCorrection::Density
    float baseTempR = 0;         // Tb, deg R; read with FlowKind::Volume
    float baseSG = 0;            // G, relative to air; not read for a mass with that correction
    float operDensity = 0;       // lb per cubic foot; read with CompCorrection::Density
    float userZf = 0;            // read with CompCorrection::Zf
};

// Solves for the unknown of `run`, flows in standard cubic feet per hour:
//   mass             qm = 358.927 E Y beta^2 D^2 sqrt(h rho)                              (lb/h)
//   standard volume  Qv = 218.468 E Y beta^2 D^2 (Tb / Pb) sqrt(h P / (Tf G Zf))          (scf/h)
// directly for the flow, by at most 100 steps of the damped iteration for the differential pressure
// (from 50 inches of water) and for beta (from 0.5); converged when s, the diameter of the pipe
// that would carry the flow by that of the pipe, lies between 0.999999 and 1.000001, both in single
// precision.
// Nothing when a factor is 0 or a flow is out of its limits; a message (orifice_messages.h) when
// the flow is too high, a given beta is not below 1, a solved one leaves its range, or the
// iteration does not end. Source: ASME MFC-3M (1989), with Cd = 0.6 and an isentropic exponent
// of 1.3.
Outcome SolveGas(const MeteringRun& run, const GasProperties& gas);

}  // namespace tarvix
