// The fluids and the kinds of flow that the equations tell apart.
#pragma once

namespace tarvix {

enum class Fluid { Liquid, Gas, Steam };

// Whether a flow unit measures volume (of a gas: standard volume) or mass.
enum class FlowKind { Volume, Mass };

}  // namespace tarvix
