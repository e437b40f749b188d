// The main window's own state beside what its controls show.
#pragma once

#include "app/shared/module1.h"
#include "app/sheet/warning_rules.h"
#include "numbers/entered_number.h"
#include "ui/form/main_form.h"
#include "units/flow_units.h"
#include "units/unit_tables.h"

#include <span>
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
    // In inches, as the locale writes them.
    std::vector<EnteredNumber> NomSizeTable;
    std::vector<EnteredNumber> PipeIDTable;  // inside diameters

    // What the compressibility warning says.
    CompressibilityWarning zfCompWarning = CompressibilityWarning::None;
};

// What every handler of the window works on.
struct FormContext {
    MainForm& form;
    FormState& state;
    Module1& module;
};

// The entry of `table` that is selected in `list`; null while the table is not filled yet. A
// position outside the table ends the program.
template <typename Table>
auto SelectedEntry(const FormContext& context, Table& table, const DropDownList& list)
    -> decltype(&table[0]) {
    if (table.empty()) {
        return nullptr;
    }
    const int index = list.ListIndex();
    if (index < 0 || static_cast<size_t>(index) >= table.size()) {
        context.module.FatalError("List position outside its table.");
    }
    return &table[static_cast<size_t>(index)];
}

}  // namespace tarvix
