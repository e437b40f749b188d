// Random metering runs as the window would hold them: number texts and a unit of each list.
#pragma once

#include "app/sheet/input_sheet.h"
#include "tests/docs/double_solver.h"

#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <utility>

namespace tarvix::accuracy {

// A text as a sheet holds it.
inline EnteredNumber Entry(std::string text) {
    return {std::move(text), NumberLocale{}};
}

// `value` as it is typed: with so many significant digits, without an exponent.
EnteredNumber Typed(double value, int digits = 5);

// What the program shows for the sheet; nothing when it shows no result.
std::optional<std::string> ShownResult(const InputSheet& sheet);

class RandomSheets {
  public:
    RandomSheets(std::uint32_t seed, const UnitFactors& units) : random_(seed), units_(units) {}

    // A run of this fluid for this mode, in units picked at random: beta 0.1 to 0.75, 1 to 400
    // inches of water, of a gas or steam at most 0.3 of the absolute pressure, which is 20 to 1500
    // psi. The quantity of the mode is empty; a flow that is an entry is the exact one, in 7
    // digits.
    InputSheet Next(tarvix::Fluid fluid, SolveFor mode);

  private:
    double Between(double low, double high);
    double LogBetween(double low, double high);
    std::size_t Pick(std::size_t count);
    bool Coin() { return Pick(2) == 1; }

    void PickUnits(InputSheet& sheet);
    void PickPipe(InputSheet& sheet);
    void FillLiquid(InputSheet& sheet);
    void FillPressure(InputSheet& sheet);
    void FillGas(InputSheet& sheet);
    void FillSteam(InputSheet& sheet);

    std::mt19937 random_;
    const UnitFactors& units_;
    double psia_ = 0;  // of the run being made; 0: a liquid
};

}  // namespace tarvix::accuracy
