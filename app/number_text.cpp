#include "app/number_text.h"

#include "calc/decimal_form.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvix {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view WithoutBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// True where a group separator may stand: with `digitsToTheRight` digits between it and the decimal
// separator.
bool IsGroupPlace(int digitsToTheRight, const NumberLocale& locale) {
    return digitsToTheRight >= locale.lowestGroup &&
           (digitsToTheRight - locale.lowestGroup) % locale.higherGroups == 0;
}

// Reads a number text piece by piece and copies it to plain form: no blanks, no group separators,
// "." as decimal separator.
class NumberReader {
  public:
    NumberReader(std::string_view text, const NumberLocale& locale)
        : rest_(WithoutBlanks(text)), locale_(locale) {}

    // The plain form; nothing when the text is no number.
    std::optional<std::string> Plain() {
        ReadSign();
        if (!ReadWholePart()) {
            return std::nullopt;
        }
        const bool wholeDigits = digits_ > 0;
        const bool fractionDigits = ReadFraction();
        if ((!wholeDigits && !fractionDigits) || !ReadExponent() || !rest_.empty()) {
            return std::nullopt;
        }
        return std::move(plain_);
    }

  private:
    bool Next(char c) const { return !rest_.empty() && rest_.front() == c; }
    void Skip(size_t characters) { rest_.remove_prefix(characters); }

    void ReadSign() {
        if (Next('-')) {
            plain_ += '-';
        }
        if (Next('-') || Next('+')) {
            Skip(1);
        }
    }

    // False when a group separator is out of place.
    bool ReadWholePart() {
        // Groups are counted from the decimal separator, so their places are known only at the end.
        const std::string& separator = locale_.groupSeparator;
        int separators = 0;
        int firstSeparator = 0;
        int lastSeparator = 0;
        bool inStep = true;
        for (;;) {
            if (!rest_.empty() && IsDigit(rest_.front())) {
                plain_ += rest_.front();
                ++digits_;
                Skip(1);
            } else if (!separator.empty() && rest_.starts_with(separator)) {
                if (separators == 0) {
                    firstSeparator = digits_;
                } else {
                    inStep = inStep && digits_ - lastSeparator == locale_.higherGroups;
                }
                lastSeparator = digits_;
                ++separators;
                Skip(separator.size());
            } else {
                break;
            }
        }
        if (separators == 0) {
            return true;
        }
        return inStep && firstSeparator >= 1 && firstSeparator <= locale_.higherGroups &&
               digits_ - lastSeparator == locale_.lowestGroup;
    }

    // True when there are digits after a decimal separator.
    bool ReadFraction() {
        if (!Next(locale_.decimalSeparator)) {
            return false;
        }
        plain_ += '.';
        Skip(1);
        return CopyDigits();
    }

    // False when the text breaks off in an exponent.
    bool ReadExponent() {
        if (!Next('e') && !Next('E')) {
            return true;
        }
        Skip(1);
        plain_ += 'e';
        if (Next('-')) {
            plain_ += '-';
        }
        if (Next('-') || Next('+')) {
            Skip(1);
        }
        return CopyDigits();
    }

    bool CopyDigits() {
        bool any = false;
        while (!rest_.empty() && IsDigit(rest_.front())) {
            plain_ += rest_.front();
            Skip(1);
            any = true;
        }
        return any;
    }

    std::string_view rest_;
    const NumberLocale& locale_;
    std::string plain_;
    int digits_ = 0;
};

void WriteWholePart(std::string& text, const DecimalForm& form, const NumberLocale& locale,
                    bool grouped) {
    for (int place = std::max(form.point() - 1, 0); place >= 0; --place) {
        text += form.DigitAt(place);
        if (grouped && IsGroupPlace(place, locale)) {
            text += locale.groupSeparator;
        }
    }
}

std::string FormatDecimalForm(DecimalForm form, int decimals, const NumberLocale& locale,
                              Grouping grouping, Negatives negatives) {
    form.RoundTo(decimals, DecimalForm::Halves::AwayFromZero);
    const bool grouped =
        grouping == Grouping::On && form.point() >= locale.lowestGroup + locale.firstGroupMinimum;

    std::string text;
    if (form.negative()) {
        text += negatives == Negatives::Parentheses ? '(' : '-';
    }
    WriteWholePart(text, form, locale, grouped);
    if (decimals > 0) {
        text += locale.decimalSeparator;
        for (int place = -1; place >= -decimals; --place) {
            text += form.DigitAt(place);
        }
    }
    if (form.negative() && negatives == Negatives::Parentheses) {
        text += ')';
    }
    return text;
}

}  // namespace

std::optional<double> TextToDouble(std::string_view text, const NumberLocale& locale) {
    const auto plain = NumberReader(text, locale).Plain();
    if (!plain) {
        return std::nullopt;
    }
    const double value = PlainToDouble(*plain);
    if (!std::isfinite(static_cast<float>(value))) {
        return std::nullopt;
    }
    return value;
}

std::optional<float> TextToSingle(std::string_view text, const NumberLocale& locale) {
    const auto value = TextToDouble(text, locale);
    return value ? std::optional(static_cast<float>(*value)) : std::nullopt;
}

bool IsNumeric(std::string_view text, const NumberLocale& locale) {
    return TextToDouble(text, locale).has_value();
}

std::string FormatNumber(float value, int decimals, const NumberLocale& locale, Grouping grouping,
                         Negatives negatives) {
    if (!std::isfinite(value)) {
        return {};
    }
    return FormatDecimalForm(DecimalForm(value), decimals, locale, grouping, negatives);
}

std::string FormatNumber(double value, int decimals, const NumberLocale& locale, Grouping grouping,
                         Negatives negatives) {
    if (!std::isfinite(value)) {
        return {};
    }
    return FormatDecimalForm(DecimalForm(value), decimals, locale, grouping, negatives);
}

}  // namespace tarvix
