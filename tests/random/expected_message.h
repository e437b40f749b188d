// What the message line may say, worked out from what the window shows.
#pragma once

#include "tests/random/window_view.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string_view>

namespace tarvix {

// What the checks of the fluid and of the run object to while `activeField` is being edited (empty:
// none of the fields); empty when they find nothing.
QString CheckMessage(const WindowView& now, const Reading& is, const World& world,
                     std::string_view activeField);

// The message of a steam density that can't be taken from the table at this pressure; nothing for a
// pressure within the table, for no pressure, and where the density does not come from the table.
std::optional<QString> SteamTableMessage(const WindowView& now, const Reading& is,
                                         const World& world);

// True while beta holds a number outside the standard range.
bool IsBetaOutsideRange(const Reading& is);
extern const char* const kBetaRangeText;

// What the calculation of this fluid and mode can say instead of a result.
QStringList CalculationMessages(const Reading& is);

}  // namespace tarvix
