// Places of the form, in twips, that change with the fluid and the option.
#pragma once

namespace tarvix {

// The frames on the tab stand in three slots, one below the other.
inline constexpr int kTabLeft = 165;
inline constexpr int kTabWidth = 9015;
inline constexpr int kSlot1 = 360;
inline constexpr int kSlot2 = 1320;
inline constexpr int kSlot3 = 2280;

// Beside the gas's specific gravity the pressure has less room, and the temperature above it as
// much.
inline constexpr int kPressWidthGas = 6555;

// The label of the compressibility field, for a density and for Zf.
inline constexpr int kCompCorrWidthDensity = 735;
inline constexpr int kCompCorrWidthZf = 1700;

}  // namespace tarvix
