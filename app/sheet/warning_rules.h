// When the window warns of a result, beside the checks of its inputs.
#pragma once

#include "app/sheet/input_sheet.h"

#include <string_view>

namespace tarvix {

enum class CompressibilityWarning { None, May, Will };

// Whether a gas without compressibility correction at this pressure may or will be computed
// wrongly: above 200 and above 400 psi gauge.
CompressibilityWarning CheckZfComp(const InputSheet& sheet);

// Whether the plate may deflect: nominal size 8 inches or more, and 150 inches of water or more.
bool CheckPlateThickness(const EnteredNumber& nominalSizeIn, const EnteredNumber& deltaP,
                         const SelectedUnit& deltaPUnit);

inline constexpr std::string_view kBetaRangeWarning =
    "Warning: Beta value exceeds standard range (0.15 to 0.67).";

// True when `beta` is a number outside the standard range.
bool IsBetaOutsideStandardRange(const EnteredNumber& beta);

}  // namespace tarvix
