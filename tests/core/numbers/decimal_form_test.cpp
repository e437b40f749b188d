// The decimal digits of binary numbers, and rounding them.
#include "numbers/decimal_form.h"

#include "tests/core/numbers/infinities.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace tarvix::testing {
namespace {

// The digits another way: written out by the C library, which rounds exactly. What it would round
// to even is put above the half, by less than half a unit of the last of fifteen digits.
std::string WrittenDigits(double magnitude, int significantDigits, int decimals) {
    std::array<char, 400> text{};
    (void)std::snprintf(text.data(), text.size(), "%.*e", significantDigits - 1, magnitude);
    const double aboveHalf = std::nextafter(std::strtod(text.data(), nullptr), HUGE_VAL);
    (void)std::snprintf(text.data(), text.size(), "%.*f", decimals, aboveHalf);
    std::string digits(text.data());
    std::erase(digits, '.');
    return digits;
}

TEST(DecimalDigitsTest, AreThoseOfTheCLibrary) {
    int decimals = 0;
    for (float single = 1.0e-12F; single < 1.0e6F; single *= 1.000731F) {
        decimals = (decimals + 1) % 10;
        ASSERT_EQ(DecimalDigits(single, decimals), WrittenDigits(double{single}, 7, decimals))
            << single << " " << decimals;
        const double third = double{single} / 3;
        ASSERT_EQ(DecimalDigits(third, decimals), WrittenDigits(third, 15, decimals))
            << third << " " << decimals;
    }
}

// Between one and ten million a single may lie half-way at its seventh digit: the even one stands.
TEST(DecimalDigitsTest, ATieAtTheSeventhDigitGoesToTheEvenOne) {
    for (int whole = 1000001; whole < 8388607; whole += 2022) {
        const float tie = static_cast<float>(whole) + 0.5F;
        ASSERT_EQ(DecimalDigits(tie, 0), std::to_string(whole + 1)) << tie;
        ASSERT_EQ(DecimalDigits(tie - 1.0F, 0), std::to_string(whole - 1)) << tie;
    }
    EXPECT_EQ(DecimalDigits(123456.25F, 1), "1234562");
    EXPECT_EQ(DecimalDigits(123456.75F, 1), "1234568");
}

TEST(DecimalValueTest, IsTheDoubleNearestToTheSevenDigits) {
    EXPECT_EQ(DecimalValue(0.06242798F), 0.06242798);
    EXPECT_EQ(DecimalValue(-19.04999924F), -19.05);
    EXPECT_EQ(DecimalValue(3.0e38F), double{3.0e38F});
    EXPECT_EQ(DecimalValue(1.0F / 3.0F), 0.3333333);
    EXPECT_EQ(DecimalValue(5579224.5F), 5579224.0);  // below ten million: seven digits
    EXPECT_EQ(DecimalValue(-0.0F), 0.0);
    EXPECT_FALSE(std::signbit(DecimalValue(-0.0F)));
    // On both sides of where the powers of ten stop being exact in a double.
    for (int power = 0; power < 35; ++power) {
        const std::string text = "1.234567e-" + std::to_string(power);
        EXPECT_EQ(DecimalValue(std::strtof(text.c_str(), nullptr)),
                  std::strtod(text.c_str(), nullptr));
    }
}

TEST(PlainToDoubleTest, TakesWhatADoubleHolds) {
    EXPECT_EQ(PlainToDouble("1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_EQ(PlainToDouble("4.9e-324"), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(PlainToDouble("1e309"), HUGE_VAL);
    EXPECT_EQ(PlainToDouble(std::string(400, '9')), HUGE_VAL);
}

// What is read where the library has no quicker way, for all sizes that a user types.
TEST(PlainToDoubleTest, IsTheSameByTheStream) {
    for (const char* plain : {"0", "-0", ".5", "7.", "142.3", "-40", "1e39", "3.4028236e38",
                              "1e309", "-1e309", "1e-400", "4.9e-324", "00012.50"}) {
        EXPECT_EQ(StreamedDouble(plain), PlainToDouble(plain)) << plain;
    }
    for (double value = 1e-12; value < 1e15; value *= 1.0731) {
        const std::string plain = std::to_string(value);
        ASSERT_EQ(StreamedDouble(plain), std::strtod(plain.c_str(), nullptr)) << plain;
    }
}

TEST(DecimalFormRound, TakesHalvesToEven) {
    struct Row {
        const char* name;
        float value;
        int decimals;
        double rounded;
    };
    for (const auto& [name, value, decimals, rounded] : {
             Row{"HalfToEvenDown", 0.123445F, 5, 0.12344},
             Row{"HalfToEvenUp", 0.123455F, 5, 0.12346},
             Row{"MinusHalfToEvenDown", -0.123445F, 5, -0.12344},
             Row{"MinusHalfToEvenUp", -0.123455F, 5, -0.12346},
             Row{"JustAboveTheHalf", 0.1234451F, 5, 0.12345},
             Row{"JustBelowTheHalf", 0.1234549F, 5, 0.12345},
             Row{"HalfWithZeroBefore", 0.000005F, 5, 0.0},
             Row{"HalfWithOneBefore", 0.000015F, 5, 0.00002},
             Row{"AboveHalfOfTheLast", 0.0000051F, 5, 0.00001},
             Row{"HalfOfOneToZero", 0.5F, 0, 0.0},
             Row{"OneAndAHalf", 1.5F, 0, 2.0},
             Row{"TwoAndAHalf", 2.5F, 0, 2.0},
             Row{"NinesAndAHalf", 0.999995F, 5, 1.0},
             Row{"NothingToRound", 0.95F, 5, 0.95},
             Row{"Zero", 0.0F, 5, 0.0},
             Row{"FarTooSmall", 1e-20F, 5, 0.0},
             Row{"LargeIsKept", 12345678.0F, 5, 12345678.0},
         }) {
        EXPECT_EQ(Round(value, decimals), rounded) << name;
    }
    // Doubles are rounded from fifteen digits.
    EXPECT_EQ(Round(0.123445, 5), 0.12344);
    EXPECT_EQ(Round(0.12344500000001, 5), 0.12345);
    EXPECT_EQ(Round(0.123455, 5), 0.12346);
    EXPECT_EQ(Round(-2.5, 0), -2.0);
}

TEST(DecimalFormRound, InfinitiesAndNaNComeBack) {
    EXPECT_EQ(Round(kSingleInfinity, 5), kDoubleInfinity);
    EXPECT_EQ(Round(-kSingleInfinity, 5), -kDoubleInfinity);
    EXPECT_EQ(Round(-kDoubleInfinity, 5), -kDoubleInfinity);
    EXPECT_TRUE(std::isnan(Round(std::numeric_limits<float>::quiet_NaN(), 5)));
    EXPECT_TRUE(std::isnan(Round(std::numeric_limits<double>::quiet_NaN(), 5)));
}

}  // namespace
}  // namespace tarvix::testing
