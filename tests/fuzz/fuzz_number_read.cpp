// Reading number texts: any bytes, in any locale.
#include "tests/fuzz/fuzz_support.h"

#include <cmath>

namespace {

using tarvix::fuzz::Require;

bool OnlyNumberCharacters(std::string text, const tarvix::NumberLocale& locale) {
    const std::string& separator = locale.groupSeparator;
    for (auto at = separator.empty() ? std::string::npos : text.find(separator);
         at != std::string::npos; at = text.find(separator, at)) {
        text.erase(at, separator.size());
    }
    const std::string allowed = std::string(" +-0123456789eE") + locale.decimalSeparator;
    return text.find_first_not_of(allowed) == std::string::npos &&
           text.find_first_of("0123456789") != std::string::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzedDataProvider data(bytes, size);
    const tarvix::NumberLocale locale = tarvix::fuzz::PickLocale(data);
    const std::string text = data.ConsumeRemainingBytesAsString();

    const auto number = tarvix::TextToDouble(text, locale);
    const auto single = tarvix::TextToSingle(text, locale);
    Require(number.has_value() == single.has_value(), "both conversions agree");
    if (!number) {
        return 0;
    }
    Require(std::isfinite(*number) && std::isfinite(*single), "a number is finite");
    Require(*single == static_cast<float>(*number), "a single is the rounded double");
    Require(OnlyNumberCharacters(text, locale), "a number is made of a number's characters");
    Require(tarvix::TextToDouble("  " + text + " ", locale) == number,
            "blanks around do not count");
    Require(!tarvix::TextToDouble(text + "x", locale) && !tarvix::TextToDouble("x" + text, locale),
            "a letter before or behind makes it no number");

    // Written again, it is read as the same 7 digits.
    const std::string written = tarvix::FormatNumber(*single, 9, locale, tarvix::Grouping::On);
    const auto again = tarvix::TextToDouble(written, locale);
    Require(again.has_value(), "what is written can be read");
    const double given = static_cast<double>(*single);
    Require(std::fabs(*again - given) <= 0.5000001e-9 + 5.1e-7 * std::fabs(given),
            "what is written is read as the same value");
    return 0;
}
