// The fluids and the kinds of flow that the equations tell apart.
#pragma once

#include <optional>
#include <string_view>

namespace tarvix {

enum class Fluid { Liquid, Gas, Steam };
inline constexpr Fluid kFluids[] = {Fluid::Liquid, Fluid::Gas, Fluid::Steam};

// The fluid of a code: "L", "G" or "S". Nothing for any other.
constexpr std::optional<Fluid> FluidOf(std::string_view code) {
    if (code == "L") {
        return Fluid::Liquid;
    }
    if (code == "G") {
        return Fluid::Gas;
    }
    return code == "S" ? std::optional(Fluid::Steam) : std::nullopt;
}

// Whether a flow unit measures volume (of a gas: standard volume) or mass.
enum class FlowKind { Volume, Mass };

}  // namespace tarvix
