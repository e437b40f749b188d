// Orifice bore and beta ratio follow each other through the pipe's inside diameter.
#pragma once

#include <optional>

namespace tarvix {

// The bore, in the unit of `inchesPerUnit`, of a beta ratio in a pipe; single precision. Nothing
// when no finite value comes out.
std::optional<float> BoreFromBeta(float beta, float pipeDiameterIn, float inchesPerUnit);

// The beta ratio of a bore, given in the unit of `inchesPerUnit`, in a pipe; single precision.
// Nothing for a pipe of 0, or when no finite value comes out.
std::optional<float> BetaFromBore(float bore, float pipeDiameterIn, float inchesPerUnit);

}  // namespace tarvix
