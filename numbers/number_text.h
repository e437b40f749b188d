// Numbers as text: the one place where the program reads and writes a number.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvix {

// How the user's system writes numbers. Texts are UTF-8; digits are always 0 to 9.
struct NumberLocale {
    char decimalSeparator = '.';       // '.' or ','
    std::string groupSeparator = ",";  // empty: the locale does not group digits
    int lowestGroup = 3;               // digits in the group next to the decimal separator
    int higherGroups = 3;              // digits in every other group (2 in India)
    int firstGroupMinimum = 1;         // digits left of the first separator from which on the
                                       // locale groups at all (2 in Spain: 1234 but 12.345)
};

enum class Grouping { Off, On };
enum class Negatives { MinusSign, Parentheses };

// The value of a numeric text in double precision; nothing when the text is not numeric. A text is
// numeric when it is a number as the user's system writes it. Between optional blanks: an optional
// sign, digits with correctly placed group separators, at most one decimal separator with digits on
// at least one side, and an optional exponent (e or E, optional sign, digits). An empty text is not
// numeric, nor is a value too large for single precision.
std::optional<double> TextToDouble(std::string_view text, const NumberLocale& locale);

// The value of a numeric text in single precision; nothing when the text is not numeric.
std::optional<float> TextToSingle(std::string_view text, const NumberLocale& locale);

// The value with exactly `decimals` (0 to 9) digits after the decimal separator and at least one
// before it. Rounds the value's decimal form, halves away from zero: the 7 significant digits of a
// single (a single of ten million or more is a whole number and taken in full), the 15 of a double.
// A result of zero carries no sign. Infinities and NaN have no text: the result is empty.
std::string FormatNumber(float value, int decimals, const NumberLocale& locale, Grouping grouping,
                         Negatives negatives = Negatives::MinusSign);
std::string FormatNumber(double value, int decimals, const NumberLocale& locale, Grouping grouping,
                         Negatives negatives = Negatives::MinusSign);

}  // namespace tarvix
