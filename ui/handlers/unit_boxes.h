#pragma once

#include "ui/handlers/densities.h"
#include "ui/handlers/numeric_fields.h"

namespace tarvix {

// Fills `list` with the texts of `table`. Selecting an entry is the caller's next step.
template <typename Table>
void AddUnits(DropDownList& list, const Table& table) {
    for (const auto& unit : table) {
        list.AddItem(unit.text);
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

// The unit boxes of pressure, differential pressure and density.
class UnitBoxes {
  public:
    UnitBoxes(const FormContext& context, OrificeCalculations& calculations, Densities& densities,
              Warnings& warnings, NumericFields& fields);

    // Each fills its boxes, keeping the unit selected that was, else the first.
    void LoadcboPressUnit();
    void LoadcboDeltaPUnit();
    void LoadcboDensityUnit();

    void cboPressUnit_Click();
    void cboDeltaPunit_Click();
    void cboDensityUnit_Click();
    void cboZfDensityUnit_Click();

  private:
    FormContext context_;
    OrificeCalculations& calculations_;
    Densities& densities_;
    Warnings& warnings_;
    NumericFields& fields_;
};

}  // namespace tarvix
