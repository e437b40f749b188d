#pragma once

#include "calc/equation_terms.h"

namespace tarvix {

struct LiquidProperties {
    float flowingSG = 0;  // specific gravity at flowing conditions, relative to water
    float baseSG = 0;     // specific gravity at base conditions; 1 for a mass flow
};

// Solves Q = 5.66646 E beta^2 D^2 sqrt(h Gf) / Gb for the unknown of `run`, directly.
//   Q flow, US gallons per minute at base conditions; D pipe inside diameter, inches;
//   h differential pressure, inches of water; Gf, Gb flowing and base specific gravity.
// Nothing when a factor is 0, a flow is outside 0.00001 to 999,999,999, a differential pressure is
// above 1,000,000, or no finite value comes out; a message (orifice_messages.h) when a given beta
// is not below 1 or a solved one leaves its range. Source: ASME MFC-3M (1989), with Cd = 0.6 and
// without an expansion factor.
Outcome SolveLiquid(const MeteringRun& run, const LiquidProperties& liquid);

}  // namespace tarvix
