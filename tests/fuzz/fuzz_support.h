// What the fuzzers share: locales, texts and numbers made of the fuzzer's bytes, and the check that
// reports a broken property.
#pragma once

#include "app/shared/module1.h"
#include "app/shared/platform.h"
#include "numbers/number_text.h"

#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <optional>
#include <string>
#include <string_view>

namespace tarvix::fuzz {

// Stops the fuzzer, which then keeps the input, when a property does not hold.
inline void Require(bool holds, const char* property) {
    if (!holds) {
        std::fprintf(stderr, "BROKEN: %s\n", property);
        std::abort();
    }
}

inline NumberLocale PickLocale(FuzzedDataProvider& data) {
    static const NumberLocale kLocales[] = {
        {'.', ",", 3, 3, 1},             // United States
        {',', ".", 3, 3, 1},             // Germany
        {',', "\xE2\x80\xAF", 3, 3, 1},  // France: narrow no-break space
        {'.', "\xE2\x80\x99", 3, 3, 1},  // Switzerland: right single quotation mark
        {'.', ",", 3, 2, 1},             // India
        {',', ".", 3, 3, 2},             // Spain
        {'.', "\xD9\xAC", 3, 3, 1},      // Arabic thousands separator
        {'.', "", 3, 3, 1},              // no grouping
    };
    return data.PickValueInArray(kLocales);
}

// Any bit pattern of a single or a double.
inline float AnySingle(FuzzedDataProvider& data) {
    return std::bit_cast<float>(data.ConsumeIntegral<std::uint32_t>());
}
inline double AnyDouble(FuzzedDataProvider& data) {
    return std::bit_cast<double>(data.ConsumeIntegral<std::uint64_t>());
}

// A field's text: empty, a number of any size, or whatever was pasted.
inline std::string AnyText(FuzzedDataProvider& data, const NumberLocale& locale) {
    switch (data.ConsumeIntegralInRange(0, 5)) {
        case 0:
            return {};
        case 1:
            return data.ConsumeRandomLengthString(40);
        case 2: {
            // As a user types it: a few digits.
            const int decimals = data.ConsumeIntegralInRange(0, 6);
            const auto value = static_cast<float>(data.ConsumeIntegralInRange(-99999, 9999999)) /
                               static_cast<float>(data.ConsumeIntegralInRange(1, 1000));
            return FormatNumber(value, decimals, locale, Grouping::Off);
        }
        default: {
            char text[64];
            std::snprintf(text, sizeof text, "%.9g", static_cast<double>(AnySingle(data)));
            std::string number = text;
            if (const auto point = number.find('.'); point != std::string::npos) {
                number[point] = locale.decimalSeparator;
            }
            return number;
        }
    }
}

// Thrown where the program would end.
struct ProgramEnded {};

// Answers every box with OK.
class FuzzPlatform : public Platform {
  public:
    int ShowMessageBox(const MessageBoxRequest& /*request*/) override { return kAnswerOk; }
    std::optional<std::string> ShowInputBox(const InputBoxRequest& request) override {
        return request.defaultAnswer;
    }
    int CurrentSecond() override { return 0; }
    void SleepUntilNextSecond() override {}
    [[noreturn]] void EndProgram(int /*exitStatus*/) override { throw ProgramEnded(); }
};

}  // namespace tarvix::fuzz
