// The decimal digits of binary numbers, and rounding them.
#include "calc/decimal_form.h"

#include "named_row.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace tarvix {

namespace {

using namespace testing;

constexpr float kSingleInfinity = std::numeric_limits<float>::infinity();
constexpr double kDoubleInfinity = std::numeric_limits<double>::infinity();

std::string DigitsOf(const DecimalForm& form) {
    return {form.digits().begin(), form.digits().end()};
}

TEST(DecimalFormTest, ASingleHasSevenSignificantDigits) {
    const DecimalForm third(1.0F / 3.0F);
    EXPECT_EQ(DigitsOf(third), "3333333");
    EXPECT_EQ(third.point(), 0);
    EXPECT_FALSE(third.negative());

    const DecimalForm small(-0.000123456789F);
    EXPECT_EQ(DigitsOf(small), "1234568");
    EXPECT_EQ(small.point(), -3);
    EXPECT_TRUE(small.negative());
}

TEST(DecimalFormTest, ASingleOfTenMillionOrMoreIsTakenInFull) {
    EXPECT_EQ(DigitsOf(DecimalForm(9999999.0F)), "9999999");
    const DecimalForm tenMillion(10000000.0F);
    EXPECT_EQ(DigitsOf(tenMillion), "1");
    EXPECT_EQ(tenMillion.point(), 8);
    const DecimalForm above(-16777217.0F);  // not a single; the nearest ends in 6
    EXPECT_EQ(DigitsOf(above), "16777216");
    EXPECT_EQ(above.point(), 8);
    EXPECT_TRUE(above.negative());
}

TEST(DecimalFormTest, ADoubleHasFifteenSignificantDigitsHoweverLarge) {
    const DecimalForm third(1.0 / 3.0);
    EXPECT_EQ(DigitsOf(third), "333333333333333");
    const DecimalForm large(123456789012345678.0);
    EXPECT_EQ(DigitsOf(large), "123456789012346");
    EXPECT_EQ(large.point(), 18);
}

TEST(DecimalFormTest, ZeroHasNoDigitsAndNoSign) {
    for (const DecimalForm& zero : {DecimalForm(0.0F), DecimalForm(-0.0F), DecimalForm(-0.0)}) {
        EXPECT_TRUE(zero.digits().empty());
        EXPECT_FALSE(zero.negative());
        EXPECT_EQ(zero.Value(), 0.0);
        EXPECT_EQ(zero.DigitAt(0), '0');
    }
}

TEST(DecimalFormTest, DigitsAreFoundByTheirPlace) {
    const DecimalForm form(1205.75F);
    EXPECT_EQ(form.DigitAt(4), '0');
    EXPECT_EQ(form.DigitAt(3), '1');
    EXPECT_EQ(form.DigitAt(2), '2');
    EXPECT_EQ(form.DigitAt(1), '0');
    EXPECT_EQ(form.DigitAt(0), '5');
    EXPECT_EQ(form.DigitAt(-1), '7');
    EXPECT_EQ(form.DigitAt(-2), '5');
    EXPECT_EQ(form.DigitAt(-3), '0');
}

TEST(DecimalFormTest, ItsValueIsTheNearestDouble) {
    EXPECT_EQ(DecimalForm(0.06242798F).Value(), 0.06242798);
    EXPECT_EQ(DecimalForm(-19.04999924F).Value(), -19.05);
    EXPECT_EQ(DecimalForm(0.1).Value(), 0.1);
    EXPECT_EQ(DecimalForm(3.0e38F).Value(), double{3.0e38F});
    // On both sides of where the powers of ten stop being exact in a double.
    EXPECT_EQ(DecimalForm(7e22).Value(), 7e22);
    EXPECT_EQ(DecimalForm(7e23).Value(), 7e23);
    EXPECT_EQ(DecimalForm(7e-22).Value(), 7e-22);
    EXPECT_EQ(DecimalForm(7e-23).Value(), 7e-23);
    EXPECT_EQ(DecimalForm(1.23456789012345e36).Value(), 1.23456789012345e36);
    EXPECT_EQ(DecimalForm(1.23456789012345e37).Value(), 1.23456789012345e37);
    EXPECT_EQ(DecimalForm(-1.23456789012345e-8).Value(), -1.23456789012345e-8);
    EXPECT_EQ(DecimalForm(-1.23456789012345e-9).Value(), -1.23456789012345e-9);
}

// The same as reading the digits as a number text, whatever the size of the number.
TEST(DecimalFormTest, ItsValueIsWhatItsDigitsRead) {
    for (float single = 1.0e-40F; single < 3.0e38F; single *= 1.0137F) {
        for (const DecimalForm& form : {DecimalForm(single), DecimalForm(double{single} / 3)}) {
            const std::string plain = "0." + DigitsOf(form) + "e" + std::to_string(form.point());
            ASSERT_EQ(form.Value(), PlainToDouble(plain)) << plain;
        }
    }
}

TEST(DecimalFormTest, RoundingDropsEveryDigitFarBelowTheLastPlace) {
    DecimalForm form(-0.0007F);
    form.RoundTo(2, DecimalForm::Halves::AwayFromZero);
    EXPECT_TRUE(form.digits().empty());
    EXPECT_FALSE(form.negative());
    EXPECT_EQ(form.point(), 0);
}

struct PlainRow : NamedRow {
    std::string plain;
    double value;
};

class PlainNumber : public ::testing::TestWithParam<PlainRow> {};

TEST_P(PlainNumber, HasItsNearestDouble) {
    EXPECT_EQ(PlainToDouble(GetParam().plain), GetParam().value);
}

// clang-format off
const PlainRow kPlainRows[] = {
    {"Whole",           "12",          12},
    {"Minus",           "-0.1",        -0.1},
    {"PointLast",       "3.",          3},
    {"PointFirst",      ".25",         0.25},
    {"Exponent",        "1.5e-3",      0.0015},
    {"LargestDouble",   "1.7976931348623157e308", std::numeric_limits<double>::max()},
    {"SmallestDouble",  "4.9e-324",    std::numeric_limits<double>::denorm_min()},
    {"TooLarge",        "1e309",       HUGE_VAL},
    {"TooLargeByFar",   "1e999999999999", HUGE_VAL},
    {"FourHundredNines", std::string(400, '9'), HUGE_VAL},
    {"TooSmall",        "1e-400",      0},
    {"TooSmallByFar",   "5e-999999999999", 0},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(DecimalForm, PlainNumber, ::testing::ValuesIn(kPlainRows), kRowName);

// Round -------------------------------------------------------------------------------------------

struct RoundRow : NamedRow {
    float value;
    int decimals;
    double rounded;
};

class RoundedSingle : public ::testing::TestWithParam<RoundRow> {};

TEST_P(RoundedSingle, TakesHalvesToEven) {
    const auto& row = GetParam();
    EXPECT_EQ(Round(row.value, row.decimals), row.rounded);
}

// clang-format off
const RoundRow kRoundRows[] = {
    {"HalfToEvenDown",       0.123445F,  5, 0.12344},
    {"HalfToEvenUp",         0.123455F,  5, 0.12346},
    {"MinusHalfToEvenDown",  -0.123445F, 5, -0.12344},
    {"MinusHalfToEvenUp",    -0.123455F, 5, -0.12346},
    {"JustAboveTheHalf",     0.1234451F, 5, 0.12345},
    {"JustBelowTheHalf",     0.1234549F, 5, 0.12345},
    {"HalfWithZeroBefore",   0.000005F,  5, 0.0},
    {"HalfWithOneBefore",    0.000015F,  5, 0.00002},
    {"AboveHalfOfTheLast",   0.0000051F, 5, 0.00001},
    {"HalfOfOneToZero",      0.5F,       0, 0.0},
    {"OneAndAHalf",          1.5F,       0, 2.0},
    {"TwoAndAHalf",          2.5F,       0, 2.0},
    {"NinesAndAHalf",        0.999995F,  5, 1.0},
    {"NothingToRound",       0.95F,      5, 0.95},
    {"Zero",                 0.0F,       5, 0.0},
    {"FarTooSmall",          1e-20F,     5, 0.0},
    {"LargeIsKept",          12345678.0F, 5, 12345678.0},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(DecimalForm, RoundedSingle, ::testing::ValuesIn(kRoundRows), kRowName);

TEST(DecimalFormRound, DoublesAreRoundedFromFifteenDigits) {
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

}  // namespace tarvix
