#include "numbers/number_text.h"

#include "numbers/decimal_form.h"

#include <algorithm>
#include <cmath>

namespace tarvix {

namespace {

// What is still to be read of a text.
struct Reader {
    std::string_view rest;

    bool Skip(std::string_view token) {
        const bool there = !token.empty() && rest.starts_with(token);
        rest.remove_prefix(there ? token.size() : 0);
        return there;
    }

    std::string_view Digits() {
        size_t count = 0;
        while (count < rest.size() && rest[count] >= '0' && rest[count] <= '9') {
            ++count;
        }
        const std::string_view digits = rest.substr(0, count);
        rest.remove_prefix(count);
        return digits;
    }

    std::string_view Sign() { return Skip("-") ? "-" : (Skip("+"), ""); }
};

std::string_view WithoutBlanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

// The digits of a whole number with the locale's separators between its groups.
std::string Grouped(std::string_view digits, const NumberLocale& locale) {
    std::string text;
    int left = static_cast<int>(digits.size());
    for (const char digit : digits) {
        text += digit;
        --left;
        if (left >= locale.lowestGroup && (left - locale.lowestGroup) % locale.higherGroups == 0) {
            text += locale.groupSeparator;
        }
    }
    return text;
}

// A number text without blanks and group separators, with "." as decimal separator; nothing when
// the text is no number.
std::optional<std::string> PlainForm(std::string_view text, const NumberLocale& locale) {
    Reader reader{WithoutBlanks(text)};
    std::string plain(reader.Sign());

    const std::string_view begin = reader.rest;
    const size_t sign = plain.size();
    plain += reader.Digits();
    while (reader.Skip(locale.groupSeparator)) {
        plain += reader.Digits();
    }
    const std::string_view written = begin.substr(0, begin.size() - reader.rest.size());
    const std::string_view whole = std::string_view(plain).substr(sign);
    if (written.size() != whole.size() && written != Grouped(whole, locale)) {
        return std::nullopt;
    }
    bool anyDigits = !whole.empty();
    if (reader.Skip({&locale.decimalSeparator, 1})) {
        const std::string_view fraction = reader.Digits();
        plain += '.';
        plain += fraction;
        anyDigits = anyDigits || !fraction.empty();
    }
    if (!anyDigits) {
        return std::nullopt;
    }
    if (reader.Skip("e") || reader.Skip("E")) {
        plain += 'e';
        plain += reader.Sign();
        const std::string_view exponent = reader.Digits();
        if (exponent.empty()) {
            return std::nullopt;
        }
        plain += exponent;
    }
    return reader.rest.empty() ? std::optional(plain) : std::nullopt;
}

// `digits`: the value's, as DecimalDigits gives them.
std::string WithSeparators(const std::string& digits, bool negative, int decimals,
                           const NumberLocale& locale, Grouping grouping, Negatives negatives) {
    const size_t wholeDigits = digits.size() - static_cast<size_t>(decimals);
    const bool grouped =
        grouping == Grouping::On &&
        static_cast<int>(wholeDigits) >= locale.lowestGroup + locale.firstGroupMinimum;
    std::string text = digits.substr(0, wholeDigits);
    if (grouped) {
        text = Grouped(text, locale);
    }
    if (decimals > 0) {
        text += locale.decimalSeparator;
        text.append(digits, wholeDigits);
    }
    if (!negative || digits.find_first_not_of('0') == std::string::npos) {
        return text;
    }
    return negatives == Negatives::Parentheses ? '(' + text + ')' : '-' + text;
}

}  // namespace

std::optional<double> TextToDouble(std::string_view text, const NumberLocale& locale) {
    const auto plain = PlainForm(text, locale);
    if (!plain) {
        return std::nullopt;
    }
    const double value = PlainToDouble(*plain);
    return std::isfinite(static_cast<float>(value)) ? std::optional(value) : std::nullopt;
}

std::optional<float> TextToSingle(std::string_view text, const NumberLocale& locale) {
    const auto value = TextToDouble(text, locale);
    return value ? std::optional(static_cast<float>(*value)) : std::nullopt;
}

std::string FormatNumber(float value, int decimals, const NumberLocale& locale, Grouping grouping,
                         Negatives negatives) {
    return std::isfinite(value) ? WithSeparators(DecimalDigits(value, decimals), value < 0,
                                                 decimals, locale, grouping, negatives)
                                : "";
}

std::string FormatNumber(double value, int decimals, const NumberLocale& locale, Grouping grouping,
                         Negatives negatives) {
    return std::isfinite(value) ? WithSeparators(DecimalDigits(value, decimals), value < 0,
                                                 decimals, locale, grouping, negatives)
                                : "";
}

}  // namespace tarvix
