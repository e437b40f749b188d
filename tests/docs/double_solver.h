// The result of an input sheet once more, apart from the program: number texts by the C library,
// unit factors by name from tests/data/units.tsv, the equations in double precision, and roots by
// bisection instead of the program's steps.
#pragma once

#include "app/sheet/input_sheet.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace tarvix::accuracy {

class UnitFactors {
  public:
    // Reads the table; throws when it can't.
    explicit UnitFactors(const std::string& path);

    // By list ("press", "deltaP", "density", "time", "flow L", ...) and unit. Throws for another.
    double Of(const std::string& list, std::string_view unit) const {
        return RowOf(list, unit).factor;
    }
    // What the factor would be by the definitions of its units.
    double ExactOf(const std::string& list, std::string_view unit) const {
        return RowOf(list, unit).exact;
    }

  private:
    struct Row {
        double factor = 0;
        double exact = 0;
    };

    const Row& RowOf(const std::string& list, std::string_view unit) const;

    std::map<std::pair<std::string, std::string>, Row> rows_;
};

// What the sheet's result field should show, not rounded, in the sheet's units. A differential
// pressure is the one below the peak of the flow curve. 0: there is no root.
double ExactResult(const InputSheet& sheet, const UnitFactors& units);

// The same for another mode than the sheet's.
double ExactResult(InputSheet sheet, SolveFor mode, const UnitFactors& units);

// The value of a number text of the US locale, with or without group separators.
double ValueOfText(std::string text);

// Half of what the last digit of the text's number stands for: what rounding may have taken.
double HalfOfLastDigit(std::string_view text);

}  // namespace tarvix::accuracy
