// Number locales as the systems of these countries have them.
#pragma once

#include "numbers/number_text.h"

namespace tarvix::testing {

inline const NumberLocale kUnitedStates{'.', ",", 3, 3, 1};
inline const NumberLocale kGermany{',', ".", 3, 3, 1};
inline const NumberLocale kFrance{',', "\u202F", 3, 3, 1};       // narrow no-break space
inline const NumberLocale kSwitzerland{'.', "\u2019", 3, 3, 1};  // right single quotation mark
inline const NumberLocale kIndia{'.', ",", 3, 2, 1};
inline const NumberLocale kSpain{',', ".", 3, 3, 2};
inline const NumberLocale kUngrouped{'.', "", 3, 3, 1};

}  // namespace tarvix::testing
