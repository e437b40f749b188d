// The numeric test and reading numbers.
#include "locales.h"
#include "named_row.h"
#include "numbers/number_text.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace tarvix::testing {
namespace {

const std::string kFourHundredDigits(400, '7');

struct ReadRow : NamedRow {
    const NumberLocale* locale;
    std::string text;
    std::optional<double> value = {};  // none: no number
};

class NumberAsRead : public ::testing::TestWithParam<ReadRow> {};

TEST_P(NumberAsRead, IsItsValueOrRefused) {
    const auto& row = GetParam();
    EXPECT_EQ(TextToDouble(row.text, *row.locale), row.value);
    EXPECT_EQ(TextToSingle(row.text, *row.locale),
              row.value ? std::optional(static_cast<float>(*row.value)) : std::nullopt);
}

// clang-format off
const ReadRow kNumberRows[] = {
    {"Digit",                &kUnitedStates, "7",              7},
    {"Digits",               &kUnitedStates, "0123456789",     123456789},
    {"Plus",                 &kUnitedStates, "+7",             7},
    {"Minus",                &kUnitedStates, "-7",             -7},
    {"MinusZero",            &kUnitedStates, "-0",             0},
    {"Decimals",             &kUnitedStates, "1.25",           1.25},
    {"NothingAfterPoint",    &kUnitedStates, "1.",             1},
    {"NothingBeforePoint",   &kUnitedStates, ".5",             0.5},
    {"MinusBeforePoint",     &kUnitedStates, "-.5",            -0.5},
    {"FifteenDigits",        &kUnitedStates, "0.123456789012345", 0.123456789012345},
    {"LeadingZeros",         &kUnitedStates, "0007.50",        7.5},
    {"BlanksBefore",         &kUnitedStates, "   2",           2},
    {"BlanksAfter",          &kUnitedStates, "2   ",           2},
    {"BlanksAround",         &kUnitedStates, "  -2.5  ",       -2.5},
    {"Exponent",             &kUnitedStates, "1e3",            1000},
    {"CapitalExponent",      &kUnitedStates, "1E3",            1000},
    {"PlusExponent",         &kUnitedStates, "1e+3",           1000},
    {"MinusExponent",        &kUnitedStates, "25e-1",          2.5},
    {"LongExponent",         &kUnitedStates, "1e0000000003",   1000},
    {"ExponentAfterPoint",   &kUnitedStates, "1.e2",           100},
    {"ExponentAfterDecimals", &kUnitedStates, ".5e2",          50},
    {"ExponentAfterGroups",  &kUnitedStates, "1,234e1",        12340},
    {"Groups",               &kUnitedStates, "1,234",          1234},
    {"GroupsAndDecimals",    &kUnitedStates, "12,345.5",       12345.5},
    {"FullFirstGroup",       &kUnitedStates, "123,456,789",    123456789},
    {"MinusGroups",          &kUnitedStates, "-1,234",         -1234},
    {"LongFraction",         &kUnitedStates, "0." + std::string(400, '0') + "1", 0},
    {"ManyLeadingZeros",     &kUnitedStates, std::string(400, '0') + "5", 5},
    {"DigitsUndoneByExponent", &kUnitedStates, "1" + std::string(400, '0') + "e-400", 1},
    {"FractionUndoneByExponent", &kUnitedStates, "0." + std::string(399, '0') + "1e400", 1},
    {"FourHundredDecimals",  &kUnitedStates, "0." + std::string(400, '1'), 1.0 / 9.0},
    {"TooSmallForADouble",   &kUnitedStates, "1e-400",         0},
    {"TooSmallByFar",        &kUnitedStates, "1e-99999999999", 0},
    {"ZeroWithHugeExponent", &kUnitedStates, "0e99999999999",  0},
    {"LargestSingle",        &kUnitedStates, "3.4028234e38",   3.4028234e38},
    {"LowestSingle",         &kUnitedStates, "-3.4028234e38",  -3.4028234e38},
    {"GermanDecimals",       &kGermany,      "0,5",            0.5},
    {"GermanGroups",         &kGermany,      "1.234.567,25",   1234567.25},
    {"FrenchGroups",         &kFrance,       "1\u202F234\u202F567,5", 1234567.5},
    {"SwissGroups",          &kSwitzerland,  "1\u2019234.5",   1234.5},
    {"IndianThousands",      &kIndia,        "1,234",          1234},
    {"IndianLakh",           &kIndia,        "1,23,456",       123456},
    {"IndianCrore",          &kIndia,        "12,34,56,789.5", 123456789.5},
    {"SpanishGroups",        &kSpain,        "12.345,5",       12345.5},
    {"SpanishPlain",         &kSpain,        "1234,5",         1234.5},
    {"UngroupedPlain",       &kUngrouped,    "1234567.5",      1234567.5},
};
const ReadRow kNoNumberRows[] = {
    {"Empty",                 &kUnitedStates, ""},
    {"Blank",                 &kUnitedStates, " "},
    {"Blanks",                &kUnitedStates, "   "},
    {"Letters",               &kUnitedStates, "abc"},
    {"LetterAfter",           &kUnitedStates, "1a"},
    {"LetterBefore",          &kUnitedStates, "a1"},
    {"BlankBetweenDigits",    &kUnitedStates, "1 2"},
    {"BlankAfterSign",        &kUnitedStates, "- 1"},
    {"SignOnly",              &kUnitedStates, "-"},
    {"PlusOnly",              &kUnitedStates, "+"},
    {"TwoSigns",              &kUnitedStates, "--1"},
    {"PlusMinus",             &kUnitedStates, "+-1"},
    {"MinusPlus",             &kUnitedStates, "-+1"},
    {"SignAfter",             &kUnitedStates, "1-"},
    {"PointOnly",             &kUnitedStates, "."},
    {"SignAndPoint",          &kUnitedStates, "-."},
    {"TwoPoints",             &kUnitedStates, "1.2.3"},
    {"TwoPointsTogether",     &kUnitedStates, "1..2"},
    {"ExponentOnly",          &kUnitedStates, "e5"},
    {"PointAndExponent",      &kUnitedStates, ".e5"},
    {"ExponentWithoutDigits", &kUnitedStates, "1e"},
    {"ExponentSignOnly",      &kUnitedStates, "1e+"},
    {"ExponentMinusOnly",     &kUnitedStates, "1e-"},
    {"ExponentTwoSigns",      &kUnitedStates, "1e--5"},
    {"ExponentWithDecimals",  &kUnitedStates, "1e5.0"},
    {"ExponentTwice",         &kUnitedStates, "1e5e5"},
    {"BlankBeforeExponent",   &kUnitedStates, "1 e5"},
    {"ExponentD",             &kUnitedStates, "1d5"},
    {"Hexadecimal",           &kUnitedStates, "0x1F"},
    {"AmpersandHexadecimal",  &kUnitedStates, "&H1F"},
    {"Currency",              &kUnitedStates, "$5"},
    {"Percent",               &kUnitedStates, "5%"},
    {"Parentheses",           &kUnitedStates, "(5)"},
    {"Infinity",              &kUnitedStates, "inf"},
    {"InfinityInFull",        &kUnitedStates, "Infinity"},
    {"NaN",                   &kUnitedStates, "nan"},
    {"NaNCapitals",           &kUnitedStates, "NaN"},
    {"ArabicDigits",          &kUnitedStates, "\u0661\u0662"},
    {"TypographicMinus",      &kUnitedStates, "\u22125"},
    {"LineBreakInside",       &kUnitedStates, "1\n2"},
    {"ZeroByteInside",        &kUnitedStates, std::string("1\0", 2)},
    // Overflow of a single.
    {"JustTooLarge",          &kUnitedStates, "3.4028236e38"},
    {"JustTooLow",            &kUnitedStates, "-3.4028236e38"},
    {"TooLargeForASingle",    &kUnitedStates, "1e39"},
    {"TooLargeForADouble",    &kUnitedStates, "1e400"},
    {"TooLargeByFar",         &kUnitedStates, "1e99999999999"},
    {"MinusTooLargeByFar",    &kUnitedStates, "-1e99999999999"},
    {"FourHundredDigits",     &kUnitedStates, kFourHundredDigits},
    {"MinusFourHundred",      &kUnitedStates, "-" + kFourHundredDigits},
    {"FourHundredAndDecimals", &kUnitedStates, kFourHundredDigits + ".5"},
    // Group separators out of place.
    {"GroupTooShort",         &kUnitedStates, "1,23"},
    {"GroupTooLong",          &kUnitedStates, "1,2345"},
    {"FirstGroupTooLong",     &kUnitedStates, "1234,567"},
    {"FirstGroupEmpty",       &kUnitedStates, ",123"},
    {"MinusFirstGroupEmpty",  &kUnitedStates, "-,123"},
    {"LastGroupEmpty",        &kUnitedStates, "123,"},
    {"TwoSeparators",         &kUnitedStates, "1,,234"},
    {"MiddleGroupTooShort",   &kUnitedStates, "1,23,456"},
    {"OnlyTheFirstMiddleGroupTooShort", &kUnitedStates, "1,23,456,789"},
    {"MiddleGroupTooLong",    &kUnitedStates, "1,2345,678"},
    {"LastGroupTooShort",     &kUnitedStates, "1,234,56"},
    {"SeparatorInFraction",   &kUnitedStates, "1.234,5"},
    {"SeparatorInDecimals",   &kUnitedStates, "0.123,456"},
    {"SeparatorInExponent",   &kUnitedStates, "1e1,000"},
    {"SeparatorBeforePoint",  &kUnitedStates, "123,.5"},
    {"SeparatorOnly",         &kUnitedStates, ","},
    {"PointInGermany",        &kGermany,      "0.5"},
    {"TwoCommasInGermany",    &kGermany,      "1,2,3"},
    {"AmericanInGermany",     &kGermany,      "1,234.5"},
    {"BlankGroupsInFrance",   &kFrance,       "1 234"},
    {"HalfASeparatorInFrance", &kFrance,      "1\xE2\x80" "234"},
    {"ApostropheInAmerica",   &kUnitedStates, "1\u2019234"},
    {"LastGroupOfTwoInIndia", &kIndia,        "1,23,45"},
    {"FirstGroupOfThreeInIndia", &kIndia,     "123,456"},
    {"MiddleGroupOfThreeInIndia", &kIndia,    "1,234,567"},
    {"GroupsWhereThereAreNone", &kUngrouped,  "1,234"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Numbers, NumberAsRead, ::testing::ValuesIn(kNumberRows), kRowName);
INSTANTIATE_TEST_SUITE_P(Others, NumberAsRead, ::testing::ValuesIn(kNoNumberRows), kRowName);

}  // namespace
}  // namespace tarvix::testing
