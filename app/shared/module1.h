// The shared procedures module: the program-wide variables and the small procedures that every
// window uses.
#pragma once

#include "app/shared/platform.h"
#include "calc/fluid.h"
#include "numbers/number_text.h"

#include <string>
#include <string_view>

namespace tarvix {

// The validated inputs of the last successful check, in calculation units, single precision.
struct WorkingValues {
    float FlowingSG = 0;    // relative to water
    float BaseSG = 0;       // liquid: relative to water; gas: relative to air
    float FlowTempF = 0;    // deg F
    float BaseTempF = 0;    // deg F
    float OperPress = 0;    // psi, gauge or absolute as entered
    float BasePress = 0;    // psi, the atmospheric pressure
    float OperDensity = 0;  // lb per cubic foot
    float UserZf = 0;       // dimensionless
};

// What a key press meets in the numeric field that has the focus: its text in three pieces.
struct FieldSelection {
    std::string before;    // left of the selection or of the caret
    std::string selected;  // empty when nothing is selected
    std::string after;     // right of the selection or of the caret
};

// What the customer window leaves in MsgResult.
inline constexpr int kPrint = 1;
inline constexpr int kDoNotPrint = 2;

class Module1 {
  public:
    Module1(Platform& platform, NumberLocale locale);

    // Program-wide variables.
    std::string FluidType;  // "L" liquid, "S" steam, "G" gas
    std::string AppPath;    // the application folder, with its trailing separator
    std::string MsgText;    // the message being composed or shown
    std::string MsgTitle;
    int MsgStyle = 0;
    int MsgResult = 0;  // answer of the last box, or of the customer window
    WorkingValues working;
    std::string CustLine1;
    std::string CustLine2;
    std::string TagText;

    // The fluid that FluidType names; an unknown code ends the program with this text.
    Fluid CurrentFluid(std::string_view ifUnknown = "Orifice type not specified");

    Platform& platform() const { return platform_; }
    const NumberLocale& locale() const { return locale_; }

    // The temperature in deg F of `value` in the unit "F" or "C". Any other unit ends the program
    // with a message appended to what MsgText holds.
    float TempToDegF(float value, const std::string& unit);

    // `value` with fewer decimals the larger it is. Limits and results are grouped, an entry is
    // not, so that it can be typed over. Infinities and NaN give an empty text.
    std::string FormatLimit(float value) const;
    std::string FormatResult(float value) const;
    std::string FormatEntry(float value) const;

    // `keyCode` when this character may enter a numeric field with this text and selection, else 0.
    int NumericKeyFilter(int keyCode, const FieldSelection& field) const;

    // `text` with its first "." turned into the system's decimal separator.
    std::string LocalDecimal(std::string text) const;

    // Shows MsgText in the fatal error box and ends the program: the one place where an internal
    // inconsistency does. With `text` as MsgText.
    [[noreturn]] void FatalError();
    [[noreturn]] void FatalError(std::string_view text);

    // Asks whether to end the program, and ends it on OK.
    void ExitProgram();

  private:
    Platform& platform_;
    NumberLocale locale_;
};

}  // namespace tarvix
