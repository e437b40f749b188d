#include "calc/decimal_form.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <locale>
#include <sstream>

namespace tarvix {

namespace {

constexpr float kWholeSingle = 1.0e7F;

// What a double holds exactly: every whole number of 15 digits, and these powers of ten.
constexpr int kExactDigits = 15;
constexpr int kExactPower = 22;
constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                   1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
static_assert(std::size(kPowersOfTen) == kExactPower + 1);

}  // namespace

DecimalForm::DecimalForm(float finite) : negative_(std::signbit(finite)) {
    const float magnitude = std::fabs(finite);
    if (magnitude >= kWholeSingle) {
        std::array<char, 48> text{};
        const char* const end = std::to_chars(text.data(), text.data() + text.size(),
                                              double{magnitude}, std::chars_format::fixed, 0)
                                    .ptr;
        point_ = static_cast<int>(end - text.data());
        Take(text.data(), end);
    } else {
        TakeScientific(double{magnitude}, 7);
    }
}

DecimalForm::DecimalForm(double finite) : negative_(std::signbit(finite)) {
    TakeScientific(std::fabs(finite), 15);
}

void DecimalForm::TakeScientific(double finite, int significantDigits) {
    if (finite == 0) {
        negative_ = false;
        return;
    }
    // d.ddd...e[+-]dd
    std::array<char, 48> text{};
    const char* const end = std::to_chars(text.data(), text.data() + text.size(), finite,
                                          std::chars_format::scientific, significantDigits - 1)
                                .ptr;
    const char* const e = std::find(text.data(), text.data() + text.size(), 'e');
    int exponent = 0;
    std::from_chars(e[1] == '+' ? e + 2 : e + 1, end, exponent);
    point_ = exponent + 1;
    Take(text.data(), e);
}

void DecimalForm::Take(const char* begin, const char* end) {
    for (const char* c = begin; c != end; ++c) {
        if (*c != '.') {
            digits_[static_cast<size_t>(count_++)] = *c;
        }
    }
    DropTrailingZeros();
}

void DecimalForm::DropTrailingZeros() {
    while (count_ > 0 && digits_[static_cast<size_t>(count_ - 1)] == '0') {
        --count_;
    }
}

void DecimalForm::RoundTo(int decimals, Halves halves) {
    const int kept = point_ + decimals;  // digits that stay
    if (kept >= count_) {
        return;
    }
    bool up = false;
    if (kept >= 0) {
        const auto firstDropped = digits_[static_cast<size_t>(kept)];
        const bool half = firstDropped == '5' && kept + 1 == count_;
        const bool lastKeptIsOdd =
            kept > 0 && (digits_[static_cast<size_t>(kept - 1)] - '0') % 2 == 1;
        up = half && halves == Halves::ToEven ? lastKeptIsOdd : firstDropped >= '5';
    }
    count_ = std::max(kept, 0);
    if (up) {
        int i = count_ - 1;
        while (i >= 0 && digits_[static_cast<size_t>(i)] == '9') {
            --i;
        }
        if (i >= 0) {
            ++digits_[static_cast<size_t>(i)];
            count_ = i + 1;
        } else {
            digits_[0] = '1';
            count_ = 1;
            ++point_;
        }
    }
    DropTrailingZeros();
    if (count_ == 0) {
        negative_ = false;
        point_ = 0;
    }
}

char DecimalForm::DigitAt(int place) const {
    const int index = point_ - 1 - place;
    return index >= 0 && index < count_ ? digits_[static_cast<size_t>(index)] : '0';
}

double DecimalForm::Value() const {
    // As many digits and powers of ten as a double holds exactly: one division, or multiplication,
    // of two exact numbers gives the nearest double (Clinger, 1990).
    const int exponent = point_ - count_;
    if (count_ <= kExactDigits && std::abs(exponent) <= kExactPower) {
        double whole = 0;
        for (const char digit : digits()) {
            whole = 10 * whole + (digit - '0');
        }
        const double power = kPowersOfTen[static_cast<size_t>(std::abs(exponent))];
        const double value = exponent < 0 ? whole / power : whole * power;
        return negative_ ? -value : value;
    }
    std::string plain = negative_ ? "-0." : "0.";
    plain.append(digits().begin(), digits().end());
    return PlainToDouble(plain + "e" + std::to_string(point_));
}

double Round(float value, int decimals) {
    if (!std::isfinite(value)) {
        return double{value};
    }
    DecimalForm form(value);
    form.RoundTo(decimals, DecimalForm::Halves::ToEven);
    return form.Value();
}

double Round(double value, int decimals) {
    if (!std::isfinite(value)) {
        return value;
    }
    DecimalForm form(value);
    form.RoundTo(decimals, DecimalForm::Halves::ToEven);
    return form.Value();
}

double PlainToDouble(const std::string& plain) {
#if defined(__cpp_lib_to_chars)
    double value = 0;
    const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (error != std::errc::result_out_of_range) {
        return value;
    }
#endif
    // Too large or too small, which from_chars does not tell apart (or it is not there at all).
    std::istringstream stream(plain);
    stream.imbue(std::locale::classic());
    double read = 0;
    stream >> read;
    return std::fabs(read) > 1 ? HUGE_VAL : read;
}

}  // namespace tarvix
