// The orifice equation once more, in double precision, for checking a displayed result by putting
// it back into the equation.
#pragma once

#include "tests/random/window_view.h"

#include <optional>

namespace tarvix {

// A run as the window shows it, in calculation units.
struct ShownRun {
    explicit ShownRun(const Reading& is);

    // The flow that the beta `b` and the differential pressure `h` (inches of water) carry; NaN
    // where the equation has none.
    double Flow(double b, double h) const;

    // The expansion factor; 1 for a liquid.
    double Expansion(double b, double h) const;

    // True while every product under a root stays where a single keeps its 7 digits.
    bool IsTame() const;

    double flow = 0;  // as shown
    double diffPress = 0;
    double beta = 0;
    double flowFactor = 1;  // from the shown unit to the calculation unit
    double diffPressFactor = 1;
    double pipe = 0;

  private:
    char fluid_;
    bool mass_;
    double pressure_ = 1;  // psia
    double temperature_ = 519.67;
    double gravity_ = 1;    // base gravity
    double flowingSG_ = 1;  // of a liquid
    double density_ = 1;    // lb per cubic foot, mass flow of a gas, or steam
    double zf_ = 1;
};

}  // namespace tarvix
