// Unit lists of the form, filled from the tables of units.
#pragma once

#include "ui/controls/controls.h"

#include <string_view>

namespace tarvix {

// Fills `list` with the texts of `table`. Selecting an entry is the caller's next step.
template <typename Table>
void AddUnits(DropDownList& list, const Table& table) {
    for (const auto& unit : table) {
        list.AddItem(unit.text);
    }
}

// Lets `list` ask for room for the texts of `table`, whatever it holds at the moment.
template <typename Table>
void AskRoomForUnits(DropDownList& list, const Table& table) {
    for (const auto& unit : table) {
        list.AskRoomFor(unit.text);
    }
}

// The position of the entry with this text, 0 when there is none.
template <typename Table>
int PositionOf(const Table& table, std::string_view text) {
    for (size_t i = 0; i < table.size(); ++i) {
        if (table[i].text == text) {
            return static_cast<int>(i);
        }
    }
    return 0;
}

}  // namespace tarvix
