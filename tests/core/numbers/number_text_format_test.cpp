// Writing numbers as text, and rounding their decimal form.
#include "locales.h"
#include "named_row.h"
#include "numbers/number_text.h"
#include "tests/core/numbers/infinities.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <variant>

namespace tarvix::testing {
namespace {

struct TextRow : NamedRow {
    std::variant<float, double> value;
    int decimals;
    const char* text;
};

class NumberAsText : public ::testing::TestWithParam<TextRow> {};

TEST_P(NumberAsText, IsItsDecimalFormRoundedHalvesAwayFromZero) {
    const auto& row = GetParam();
    const std::string text = std::visit(
        [&](auto value) { return FormatNumber(value, row.decimals, kUnitedStates, Grouping::On); },
        row.value);
    EXPECT_EQ(text, row.text);
}

// clang-format off
const TextRow kTextRows[] = {
    // Singles have seven significant digits.
    // The decimal form decides, not the binary value that lies beside it.
    {"ThreeQuarterInchInMm",  19.04999924F,    1, "19.1"},
    {"BinaryBelowTheHalf",    1.0005F,         3, "1.001"},
    {"MinusOneAtmosphereInPa", -101352.953125F, 4, "-101,353.0000"},
    {"CarriesOneAtmosphere",  -101352.94F,     4, "-101,352.9000"},
    {"HalfUp",                2.5F,            0, "3"},
    {"HalfDownFromZero",      -2.5F,           0, "-3"},
    {"HalfOfHundredths",      0.125F,          2, "0.13"},
    {"JustUnderTheHalf",      0.1249999F,      2, "0.12"},
    {"HalfWithNothingBefore", 0.5F,            0, "1"},
    {"LessThanHalfOfOne",     0.4999999F,      0, "0"},
    {"TenthOfAHalf",          0.05F,           0, "0"},
    {"FiveInTheSecondPlace",  0.0500001F,      0, "0"},
    {"NineTimesTenBelow",     0.09F,           0, "0"},
    {"RoundsUpAllNines",      999.95F,         1, "1,000.0"},
    {"RoundsUpNinesToGroup",  999999.5F,       0, "1,000,000"},
    {"NinesStopAtAnEight",    89.995F,         2, "90.00"},
    {"NinesInTheMiddle",      19.96F,          1, "20.0"},
    {"KeepsInnerZeros",       1002.03F,        2, "1,002.03"},
    {"TrailingZeros",         1200.0F,         3, "1,200.000"},
    {"MoreDecimalsThanDigits", 0.0625F,        9, "0.062500000"},
    {"SevenDigitsOnly",       1234567.8F,      1, "1,234,568.0"},
    // The seven digits are those of the nearest decimal; of two that are as near, of the even one.
    {"TieAtTheEighthDigit",   5579224.5F,      0, "5,579,224"},
    {"TieAtAnotherEven",       7237822.5F,      0, "7,237,822"},
    {"TieThatGoesUp",         1234567.5F,      0, "1,234,568"},
    {"TieWithDecimals",       1024.0625F,      3, "1,024.062"},
    {"EighthDigitIsZero",     0.12345678F,     9, "0.123456800"},
    // Zero has no sign, however it comes about.
    {"Zero",                  0.0F,            2, "0.00"},
    {"MinusZero",             -0.0F,           2, "0.00"},
    {"RoundsToZero",          0.0000004F,      6, "0.000000"},
    {"RoundsToZeroFromBelow", -0.0000004F,     6, "0.000000"},
    {"HalfOfTheLastPlace",    0.0000005F,      6, "0.000001"},
    {"MinusHalfOfTheLast",    -0.0000005F,     6, "-0.000001"},
    {"SmallestSingle",        1.4e-45F,        6, "0.000000"},
    // From ten million on a single is a whole number and taken in full.
    {"LastBelowTenMillion",   9999999.0F,      0, "9,999,999"},
    {"LastBelowWithDecimals", 9999999.0F,      2, "9,999,999.00"},
    {"TenMillion",            10000000.0F,     0, "10,000,000"},
    {"TenMillionAndOne",      10000001.0F,     0, "10,000,001"},
    {"MinusTenMillionAndOne", -10000001.0F,    0, "-10,000,001"},
    {"TenMillionWithDecimals", 10000001.0F,    2, "10,000,001.00"},
    {"NineDigits",            123456789.0F,    0, "123,456,792"},
    {"FlowLimit",             999999999.0F,    0, "1,000,000,000"},
    {"LargestSingle", std::numeric_limits<float>::max(), 0,
     "340,282,346,638,528,859,811,704,183,484,516,925,440"},
    {"LowestSingle", std::numeric_limits<float>::lowest(), 1,
     "-340,282,346,638,528,859,811,704,183,484,516,925,440.0"},
    // No text for what is no number.
    {"Infinity",              kSingleInfinity, 3, ""},
    {"NotANumber",            std::numeric_limits<float>::quiet_NaN(), 3, ""},
    // Doubles have fifteen.
    {"DoubleBelowTheHalf",      1.005,                 2, "1.01"},
    {"BinaryBelowTheHalfAgain", 2.675,                 2, "2.68"},
    {"MinusBinaryBelow",        -2.675,                2, "-2.68"},
    {"SumOfTenths",             0.1 + 0.2,             9, "0.300000000"},
    {"FifteenDigits",           123456789012345678.0,  0, "123,456,789,012,346,000"},
    {"TenMillionAndAHalf",      10000000.5,            1, "10,000,000.5"},
    {"CarriesIntoANewDigit",    99999999.995,          2, "100,000,000.00"},
    {"SmallHalf",               0.0005,                3, "0.001"},
    {"DoubleFarBelow",          1e-300,                9, "0.000000000"},
    {"MinusFarBelow",           -1e-300,               9, "0.000000000"},
    {"FifteenNines",            0.999999999999999,     9, "1.000000000"},
    {"OfASingle",               double{0.1F},          9, "0.100000001"},
    {"DoubleInfinity",          kDoubleInfinity,       2, ""},
    {"NotADouble", std::numeric_limits<double>::quiet_NaN(), 2, ""},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(NumberText, NumberAsText, ::testing::ValuesIn(kTextRows), kRowName);

TEST(NumberTextFormat, TheLargestDoubleHas309Digits) {
    const std::string text =
        FormatNumber(std::numeric_limits<double>::max(), 0, kUnitedStates, Grouping::Off);
    EXPECT_EQ(text, "179769313486232" + std::string(294, '0'));
}

struct LocaleRow : NamedRow {
    const NumberLocale* locale;
    float value;
    int decimals;
    const char* grouped;
    const char* ungrouped;
};

class LocaleText : public ::testing::TestWithParam<LocaleRow> {};

TEST_P(LocaleText, HasTheLocalesSeparators) {
    const auto& row = GetParam();
    EXPECT_EQ(FormatNumber(row.value, row.decimals, *row.locale, Grouping::On), row.grouped);
    EXPECT_EQ(FormatNumber(row.value, row.decimals, *row.locale, Grouping::Off), row.ungrouped);
}

// clang-format off
const LocaleRow kLocaleRows[] = {
    {"UnitedStatesBelowGroup",  &kUnitedStates, 999.5F,     1, "999.5",           "999.5"},
    {"UnitedStatesFirstGroup",  &kUnitedStates, 1000.5F,    1, "1,000.5",         "1000.5"},
    {"UnitedStatesFiveDigits",  &kUnitedStates, 12345.0F,   0, "12,345",          "12345"},
    {"UnitedStatesSixDigits",   &kUnitedStates, 123456.0F,  0, "123,456",         "123456"},
    {"UnitedStatesSecondGroup", &kUnitedStates, 1234567.0F, 0, "1,234,567",       "1234567"},
    {"UnitedStatesMinus",       &kUnitedStates, -123456.0F, 0, "-123,456",        "-123456"},
    {"Germany",                 &kGermany,      1234.5F,    2, "1.234,50",        "1234,50"},
    {"GermanyMillions",         &kGermany,      1234567.0F, 1, "1.234.567,0",     "1234567,0"},
    {"France",                  &kFrance,       1234567.0F, 0, "1\u202F234\u202F567", "1234567"},
    {"FranceMinus",             &kFrance,       -1234.5F,   1, "-1\u202F234,5",   "-1234,5"},
    {"Switzerland",             &kSwitzerland,  12345.5F,   1, "12\u2019345.5",   "12345.5"},
    {"IndiaBelowGroup",         &kIndia,        999.0F,     0, "999",             "999"},
    {"IndiaThousands",          &kIndia,        1234.0F,    0, "1,234",           "1234"},
    {"IndiaTenThousands",       &kIndia,        12345.0F,   0, "12,345",          "12345"},
    {"IndiaLakh",               &kIndia,        123456.0F,  0, "1,23,456",        "123456"},
    {"IndiaTenLakh",            &kIndia,        1234567.0F, 1, "12,34,567.0",     "1234567.0"},
    {"IndiaCrore",              &kIndia,        12345678.0F, 0, "1,23,45,678",    "12345678"},
    {"SpainBelowMinimum",       &kSpain,        1234.0F,    0, "1234",            "1234"},
    {"SpainLargestUngrouped",   &kSpain,        9999.0F,    1, "9999,0",          "9999,0"},
    {"SpainFromMinimum",        &kSpain,        10000.0F,   0, "10.000",          "10000"},
    {"SpainMillions",           &kSpain,        1234567.0F, 0, "1.234.567",       "1234567"},
    {"SpainRoundsIntoMinimum",  &kSpain,        9999.96F,   1, "10.000,0",        "10000,0"},
    {"Ungrouped",               &kUngrouped,    1234567.0F, 1, "1234567.0",       "1234567.0"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(NumberText, LocaleText, ::testing::ValuesIn(kLocaleRows), kRowName);

TEST(NumberTextFormat, NegativesStandInParenthesesOnRequest) {
    const auto inParentheses = [](float value) {
        return FormatNumber(value, 2, kUnitedStates, Grouping::On, Negatives::Parentheses);
    };
    EXPECT_EQ(inParentheses(-1234.5F), "(1,234.50)");
    EXPECT_EQ(inParentheses(1234.5F), "1,234.50");
    EXPECT_EQ(inParentheses(-0.001F), "0.00");
    EXPECT_EQ(FormatNumber(-0.5, 5, kGermany, Grouping::On, Negatives::Parentheses), "(0,50000)");
}

}  // namespace
}  // namespace tarvix::testing
