// The main window's own state beside what its controls show.
#pragma once

#include "app/shared/module1.h"
#include "ui/form/main_form.h"
#include "units/flow_units.h"
#include "units/unit_tables.h"

#include <span>
#include <string>
#include <vector>

namespace tarvix {

struct FormState {
    // True while the window reconfigures itself: no handler calculates.
    bool SuspendCalc = false;

    // How often DoOrificeCalculations has run.
    int calculationRuns = 0;

    // One table for each unit list, an entry for each position. Empty until the list is filled.
    std::span<const Unit> PressUnitTable;
    std::span<const Unit> DeltaPUnitTable;
    std::span<const Unit> DensityUnitTable;
    std::span<const Unit> ZfDensityUnitTable;
    std::span<const FlowUnit> FlowUnitTable;
    std::span<const Unit> TimeUnitTable;
    std::span<const Unit> PipeIDUnitTable;
    std::span<const Unit> OriBoreUnitTable;
    std::vector<std::string> NomSizeTable;  // sizes in inches, as the locale writes them
    std::vector<std::string> PipeIDTable;   // inside diameters in inches, as the locale writes them
};

// What every handler of the window works on.
struct FormContext {
    MainForm& form;
    FormState& state;
    Module1& module;
};

// The entry of `table` that is selected in `list`; null while there is none.
template <typename Table>
auto SelectedEntry(const Table& table, const DropDownList& list) -> decltype(&table[0]) {
    const int index = list.ListIndex();
    return index >= 0 && static_cast<size_t>(index) < table.size()
               ? &table[static_cast<size_t>(index)]
               : nullptr;
}

}  // namespace tarvix
