// Density of saturated steam by gauge pressure.
#pragma once

#include <cstdint>
#include <span>

namespace tarvix {

struct SteamTableRow {
    std::int16_t pressurePsig;  // strictly increasing down the table
    float density;              // lb per cubic foot
};

extern const std::span<const SteamTableRow> kSteamTable;

enum class SteamRange { BelowTable, InTable, AboveTable };

struct SteamDensity {
    SteamRange range = SteamRange::InTable;
    float density = 0;  // lb per cubic foot; read it only for InTable
};

// The density of saturated steam at `pressurePsig` (0 to 3000): that of the row, or linear between
// the nearest row (of two equally near ones the lower) and its neighbour on the other side.
SteamDensity SaturatedSteamDensity(float pressurePsig);

}  // namespace tarvix
