#pragma once

#include "calc/equation_terms.h"

namespace tarvix {

struct SteamProperties {
    float pressurePsia = 0;  // P, operating pressure, absolute
    float density = 0;       // rho, lb per cubic foot, entered or from the steam table
};

// Solves qm = 358.927 E Y beta^2 D^2 sqrt(h rho) (lb/h) for the unknown of `run`, as for gas, but:
// the convergence bands are doubles, that of the differential pressure ten times narrower
// (0.9999999 to 1.0000001), and a beta that leaves the range 0 < beta <= 1 during the iteration
// ends it without a message.
// Source: ASME MFC-3M (1989), with Cd = 0.6 and an isentropic exponent of 1.3.
Outcome SolveSteam(const MeteringRun& run, const SteamProperties& steam);

}  // namespace tarvix
