#include "numbers/decimal_form.h"

#include "numbers/arithmetic.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <locale>
#include <sstream>

namespace tarvix {

namespace {

// Significant digits.
constexpr int kOfSingle = 7;
constexpr int kOfDouble = 15;

// A double holds these powers of ten exactly, and every whole number of 15 digits.
constexpr std::array kPowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                     1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                     1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

double PowerOfTen(int exponent) {
    return kPowersOfTen[static_cast<size_t>(exponent)];
}

// digits times ten to the power `exponent`
struct DecimalForm {
    std::int64_t digits;
    int exponent;
};

// From ten million on a single is a whole number, which is not rounded.
bool IsTakenInFull(double magnitude, int significantDigits) {
    return significantDigits == kOfSingle && magnitude >= 1e7;
}

DecimalForm FormOf(double magnitude, int significantDigits) {
    if (significantDigits == kOfSingle && magnitude >= 1e-6) {
        // The 24 bits of a single times the 28 of 5^12 fit into the 53 of a double: the product is
        // exact.
        int decimals = 0;
        while (magnitude * PowerOfTen(decimals) < 1e6) {
            ++decimals;
        }
        const double scaled = magnitude * PowerOfTen(decimals);
        return {static_cast<std::int64_t>(std::nearbyint(scaled)), -decimals};
    }
    // d.ddd...e[+-]ddd; the standard library, too, rounds exact halves to even.
    std::array<char, 32> text{};
    const char* const end = std::to_chars(text.data(), text.data() + text.size(), magnitude,
                                          std::chars_format::scientific, significantDigits - 1)
                                .ptr;
    const char* const e = std::find(text.data(), text.data() + text.size(), 'e');
    text[1] = text[0];
    DecimalForm form{};
    std::from_chars(text.data() + 1, e, form.digits);
    std::from_chars(e[1] == '+' ? e + 2 : e + 1, end, form.exponent);
    form.exponent -= significantDigits - 1;
    return form;
}

enum class Halves { AwayFromZero, ToEven };

DecimalForm Rounded(DecimalForm form, int decimals, Halves halves) {
    const int dropped = -form.exponent - decimals;
    if (dropped <= 0) {
        return form;
    }
    if (dropped > kOfDouble) {  // less than half of the last place kept
        return {0, -decimals};
    }
    const auto unit = static_cast<std::int64_t>(PowerOfTen(dropped));
    const std::int64_t kept = form.digits / unit;
    const std::int64_t twiceTheRest = 2 * (form.digits % unit);
    const bool halfGoesUp = halves == Halves::AwayFromZero || kept % 2 != 0;
    return {kept + (twiceTheRest > unit || (twiceTheRest == unit && halfGoesUp) ? 1 : 0),
            -decimals};
}

double ValueOf(const DecimalForm& form) {
    const auto digits = static_cast<double>(form.digits);
    const int power = std::abs(form.exponent);
    if (power < static_cast<int>(kPowersOfTen.size())) {
        // One division, or multiplication, of two exact numbers gives the nearest (Clinger, 1990).
        return form.exponent < 0 ? digits / PowerOfTen(power) : digits * PowerOfTen(power);
    }
    return PlainToDouble(std::to_string(form.digits) + "e" + std::to_string(form.exponent));
}

double Round(double value, int significantDigits, int decimals) {
    const double magnitude = std::fabs(value);
    if (!std::isfinite(value) || IsTakenInFull(magnitude, significantDigits)) {
        return value;
    }
    const double rounded =
        ValueOf(Rounded(FormOf(magnitude, significantDigits), decimals, Halves::ToEven));
    return value < 0 && rounded != 0 ? -rounded : rounded;
}

std::string DecimalDigits(double magnitude, int significantDigits, int decimals) {
    if (IsTakenInFull(magnitude, significantDigits)) {
        std::array<char, 48> text{};
        char* const end = std::to_chars(text.data(), text.data() + text.size(), magnitude,
                                        std::chars_format::fixed, 0)
                              .ptr;
        return std::string(text.data(), end) + std::string(static_cast<size_t>(decimals), '0');
    }
    const DecimalForm form =
        Rounded(FormOf(magnitude, significantDigits), decimals, Halves::AwayFromZero);
    std::string digits = std::to_string(form.digits);
    const int zeros = form.exponent + decimals;
    digits.append(static_cast<size_t>(zeros), '0');
    const auto least = static_cast<size_t>(decimals) + 1;
    digits.insert(0, least - std::min(least, digits.size()), '0');
    return digits;
}

}  // namespace

double Round(float value, int decimals) {
    return Round(double{value}, kOfSingle, decimals);
}

double Round(double value, int decimals) {
    return Round(value, kOfDouble, decimals);
}

double DecimalValue(float finite) {
    constexpr int kAllOfThem = 60;
    return Round(double{finite}, kOfSingle, kAllOfThem);
}

std::string DecimalDigits(float finite, int decimals) {
    return DecimalDigits(std::fabs(double{finite}), kOfSingle, decimals);
}

std::string DecimalDigits(double finite, int decimals) {
    return DecimalDigits(std::fabs(finite), kOfDouble, decimals);
}

double StreamedDouble(const std::string& plain) {
    std::istringstream stream(plain);
    stream.imbue(std::locale::classic());
    double read = 0;
    stream >> read;
    // The stream gives the largest double for what is too large, and zero or less than the smallest
    // for what is too small.
    return stream.fail() && std::fabs(read) > 1 ? std::copysign(HUGE_VAL, read) : read;
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
    return StreamedDouble(plain);
}

}  // namespace tarvix
