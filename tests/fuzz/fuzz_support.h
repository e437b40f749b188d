// What the fuzzers share: locales, texts and numbers made of the fuzzer's bytes, and the check that
// reports a broken property.
#pragma once

#include "app/shared/module1.h"
#include "numbers/number_text.h"
#include "tests/core/locales.h"
#include "tests/core/recording_platform.h"

#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
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
    using namespace testing;
    static const NumberLocale kArabic{'.', "\xD9\xAC", 3, 3, 1};
    return data.PickValueInArray(
        {kUnitedStates, kGermany, kFrance, kSwitzerland, kIndia, kSpain, kArabic, kUngrouped});
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

// What every calculation has at hand.
struct FuzzedRun {
    FuzzedDataProvider data;
    NumberLocale locale = PickLocale(data);
    testing::RecordingPlatform platform;  // answers every box with OK
    Module1 module{platform, locale};

    FuzzedRun(const std::uint8_t* bytes, std::size_t size) : data(bytes, size) {}
};

}  // namespace tarvix::fuzz
