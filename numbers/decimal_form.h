// The decimal form of a binary number, as the program shows and rounds it: 7 significant digits for
// a single (a single of ten million or more is a whole number and taken in full), 15 for a double.
#pragma once

#include <string>

namespace tarvix {

// Rounds the decimal form of a value to `decimals` (0 to 9) digits, halves to even; the double
// nearest to it. A result of zero carries no sign; infinities and NaN come back as they are.
double Round(float value, int decimals);
double Round(double value, int decimals);

// The double nearest to the decimal form of a finite single.
double DecimalValue(float finite);

// The digits of a finite value's decimal form, rounded to `decimals` (0 to 9) digits after the
// decimal separator, halves away from zero: at least one digit before the separator, then exactly
// `decimals` more. Without sign and separators.
std::string DecimalDigits(float finite, int decimals);
std::string DecimalDigits(double finite, int decimals);

// The double nearest to a number in plain form: optional "-", digits with at most one ".", optional
// exponent. Infinite when it is too large for a double.
double PlainToDouble(const std::string& plain);

// The same, slower, by the standard library's stream: for what its quicker way does not read.
double StreamedDouble(const std::string& plain);

}  // namespace tarvix
