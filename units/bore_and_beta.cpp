#include "units/bore_and_beta.h"

#include <cmath>

namespace tarvix {

std::optional<float> BoreFromBeta(float beta, float pipeDiameterIn, float inchesPerUnit) {
    const float boreIn = beta * pipeDiameterIn;
    const float bore = boreIn / inchesPerUnit;
    return std::isfinite(bore) ? std::optional(bore) : std::nullopt;
}

std::optional<float> BetaFromBore(float bore, float pipeDiameterIn, float inchesPerUnit) {
    if (pipeDiameterIn == 0) {
        return std::nullopt;
    }
    const float boreIn = bore * inchesPerUnit;
    const float beta = boreIn / pipeDiameterIn;
    return std::isfinite(beta) ? std::optional(beta) : std::nullopt;
}

}  // namespace tarvix
