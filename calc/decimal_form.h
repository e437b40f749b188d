// The decimal digits of a binary number, as the program shows and rounds them.
#pragma once

#include <array>
#include <span>
#include <string>

namespace tarvix {

// 0.d1 d2 d3 ... times ten to the power `point`; no digits for zero.
class DecimalForm {
  public:
    // 7 significant digits; a single of ten million or more is a whole number and taken in full.
    explicit DecimalForm(float finite);
    // 15 significant digits.
    explicit DecimalForm(double finite);

    enum class Halves { AwayFromZero, ToEven };

    // Keeps `decimals` digits after the decimal point. A result of zero loses its sign.
    void RoundTo(int decimals, Halves halves);

    bool negative() const { return negative_; }
    int point() const { return point_; }
    std::span<const char> digits() const { return {digits_.data(), static_cast<size_t>(count_)}; }

    // The digit ('0' to '9') that stands for ten to the power `place`.
    char DigitAt(int place) const;

    // The double nearest to this decimal number.
    double Value() const;

  private:
    void Take(const char* begin, const char* end);
    void TakeScientific(double finite, int significantDigits);
    void DropTrailingZeros();

    // The largest single has 39 digits before the point; rounding up may add one.
    std::array<char, 48> digits_{};
    int count_ = 0;
    int point_ = 0;
    bool negative_ = false;
};

// Rounds the decimal form of a value to `decimals` digits, halves to even. Infinities and NaN come
// back as they are.
double Round(float value, int decimals);
double Round(double value, int decimals);

// The double nearest to a number in plain form: optional "-", digits with at most one ".", optional
// exponent. Infinite when it is too large for a double.
double PlainToDouble(const std::string& plain);

}  // namespace tarvix
