// Unit lists of the form, filled from the tables of units.
#pragma once

#include "ui/controls/controls.h"

#include <span>
#include <string>
#include <string_view>
#include <type_traits>

namespace tarvix {

// Fills `list` with the texts of `table`, which becomes what the list `shows`. Selecting an entry
// is the caller's next step.
template <typename Entry>
void FillUnits(DropDownList& list, std::span<const Entry>& shows,
               std::type_identity_t<std::span<const Entry>> table) {
    list.Clear();
    shows = table;
    for (const Entry& unit : table) {
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

// Fills `list` again. The unit stays selected that was, else it is the first.
template <typename Entry>
void ReloadUnits(DropDownList& list, std::span<const Entry>& shows,
                 std::type_identity_t<std::span<const Entry>> table) {
    const std::string previous = list.Text();
    FillUnits(list, shows, table);
    list.SetListIndex(PositionOf(table, previous));
}

}  // namespace tarvix
