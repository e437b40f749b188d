#include "app/shared/module1.h"

#include <cstdlib>
#include <utility>

namespace tarvix {

namespace {

struct DecimalsFrom {
    float atLeast;
    int decimals;
};

// From the top down; the first threshold that the value reaches decides.
constexpr DecimalsFrom kLimitScale[] = {{1000.0F, 0}, {100.0F, 1}, {10.0F, 2}, {1.0F, 3}};
constexpr DecimalsFrom kResultScale[] = {{1000.0F, 0}, {100.0F, 1}, {10.0F, 2},
                                         {1.0F, 3},    {0.1F, 4},   {0.01F, 5}};

constexpr int kLimitDecimalsBelow = 4;
constexpr int kResultDecimalsOfZero = 1;
constexpr int kResultDecimalsBelow = 6;  // of negative values too

int LimitDecimals(float value) {
    for (const auto& step : kLimitScale) {
        if (value >= step.atLeast) {
            return step.decimals;
        }
    }
    return kLimitDecimalsBelow;
}

int ResultDecimals(float value) {
    for (const auto& step : kResultScale) {
        if (value >= step.atLeast) {
            return step.decimals;
        }
    }
    return value == 0.0F ? kResultDecimalsOfZero : kResultDecimalsBelow;
}

// Styles of the message boxes, as the program numbers them.
constexpr int kStyleCriticalOk = 16;
constexpr int kStyleCriticalOkCancel = 17;

}  // namespace

Module1::Module1(Platform& platform, NumberLocale locale)
    : platform_(platform), locale_(std::move(locale)) {}

float Module1::TempToDegF(float value, const std::string& unit) {
    if (unit == "F") {
        return value;
    }
    if (unit == "C") {
        return static_cast<float>((9.0 / 5.0) * double{value} + 32.0);
    }
    MsgText += "Temperature conversion unit " + unit + " not recognized.";
    FatalError();
}

std::string Module1::FormatLimit(float value) const {
    return FormatNumber(value, LimitDecimals(value), locale_, Grouping::On);
}

std::string Module1::FormatResult(float value) const {
    return FormatNumber(value, ResultDecimals(value), locale_, Grouping::On);
}

std::string Module1::FormatEntry(float value) const {
    return FormatNumber(value, ResultDecimals(value), locale_, Grouping::Off);
}

int Module1::NumericKeyFilter(int keyCode, const FieldSelection& field) const {
    constexpr int kBackspace = 8;
    if ((keyCode >= '0' && keyCode <= '9') || keyCode == kBackspace) {
        return keyCode;
    }
    if (keyCode == '+' || keyCode == '-') {
        return field.before.empty() ? keyCode : 0;
    }
    if (keyCode == locale_.decimalSeparator) {
        // Left of a selection a separator is not looked for.
        const bool present = field.after.find(locale_.decimalSeparator) != std::string::npos ||
                             (field.selected.empty() &&
                              field.before.find(locale_.decimalSeparator) != std::string::npos);
        return present ? 0 : keyCode;
    }
    return 0;
}

std::string Module1::LocalDecimal(std::string text) const {
    if (locale_.decimalSeparator == ',') {
        const auto point = text.find('.');
        if (point != std::string::npos) {
            text[point] = ',';
        }
    }
    return text;
}

Fluid Module1::CurrentFluid(std::string_view ifUnknown) {
    const std::optional<Fluid> fluid = FluidOf(FluidType);
    if (!fluid) {
        FatalError(ifUnknown);
    }
    return *fluid;
}

void Module1::FatalError(std::string_view text) {
    MsgText = text;
    FatalError();
}

void Module1::FatalError() {
    MsgTitle = "Fatal Error";
    MsgText =
        "Fatal Error Encountered: \n\r\n\r" + MsgText + "\n\r\n\rThis Program will now terminate.";
    MsgStyle = kStyleCriticalOk;
    MsgResult = platform_.ShowMessageBox({MsgText, MsgTitle, BoxStyle::Critical, BoxButtons::Ok});
    platform_.EndProgram(1);
    std::abort();  // not reached; not every compiler sees that the call above does not return
}

void Module1::ExitProgram() {
    MsgTitle = "Program Termination";
    MsgText = "Program Complete. EXIT PROGRAM";
    MsgStyle = kStyleCriticalOkCancel;
    MsgResult =
        platform_.ShowMessageBox({MsgText, MsgTitle, BoxStyle::Critical, BoxButtons::OkCancel});
    if (MsgResult == kAnswerOk) {
        platform_.EndProgram(0);
    }
}

}  // namespace tarvix
