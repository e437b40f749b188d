// Writing numbers: any bit pattern, any number of decimals, in any locale.
#include "tests/fuzz/fuzz_support.h"

#include <cmath>

namespace {

using tarvix::fuzz::Require;

// Decimals of a text without parentheses.
std::size_t Decimals(const std::string& text, const tarvix::NumberLocale& locale) {
    const auto point = text.rfind(locale.decimalSeparator);
    return point == std::string::npos ? 0 : text.size() - point - 1;
}

void CheckText(std::string text, double value, int decimals, double digits,
               const tarvix::NumberLocale& locale) {
    if (!std::isfinite(value)) {
        Require(text.empty(), "infinities and NaN have no text");
        return;
    }
    if (!text.empty() && text.front() == '(') {
        Require(value < 0 && text.back() == ')', "parentheses stand around a negative number");
        text = "-" + text.substr(1, text.size() - 2);
    }
    Require(decimals == 0 ? Decimals(text, locale) == 0 || locale.groupSeparator == "."
                          : Decimals(text, locale) == static_cast<std::size_t>(decimals),
            "the text has the decimals asked for");
    Require(text.find_first_of("123456789") != std::string::npos || text.front() != '-',
            "a zero has no sign");
    if (std::fabs(value) > 3.4e38) {
        return;  // more than a field takes
    }
    const auto read = tarvix::TextToDouble(text, locale);
    Require(read.has_value(), "what is written is a number");
    const double half = 0.5000001 * std::pow(10.0, -decimals);
    Require(std::fabs(*read - value) <= half + digits * std::fabs(value),
            "what is written is the value, rounded");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    tarvix::fuzz::FuzzedRun fuzzed(bytes, size);
    auto& [data, locale, platform, module] = fuzzed;
    const int decimals = data.ConsumeIntegralInRange(0, 9);
    const auto grouping = data.ConsumeBool() ? tarvix::Grouping::On : tarvix::Grouping::Off;
    const auto negatives =
        data.ConsumeBool() ? tarvix::Negatives::Parentheses : tarvix::Negatives::MinusSign;
    const float single = tarvix::fuzz::AnySingle(data);
    const double number = tarvix::fuzz::AnyDouble(data);

    CheckText(tarvix::FormatNumber(single, decimals, locale, grouping, negatives),
              static_cast<double>(single), decimals, 5.1e-7, locale);
    CheckText(tarvix::FormatNumber(number, decimals, locale, grouping, negatives), number, decimals,
              5.1e-15, locale);

    for (const std::string& text :
         {module.FormatLimit(single), module.FormatResult(single), module.FormatEntry(single)}) {
        Require(tarvix::TextToDouble(text, locale).has_value() == std::isfinite(single),
                "limits, results and entries are numbers");
    }
    const std::string entry = module.FormatEntry(single);
    const bool digitsOnly = entry.find_first_not_of(std::string("-0123456789") +
                                                    locale.decimalSeparator) == std::string::npos;
    Require(digitsOnly, "an entry is not grouped");
    return 0;
}
