// The numeric test and reading numbers.
#include "locales.h"
#include "named_row.h"
#include "numbers/number_text.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <optional>
#include <string>

namespace tarvix::testing {
namespace {

struct ReadRow : NamedRow {
    const NumberLocale* locale;
    std::string text;
    double value;
};

class NumberAsRead : public ::testing::TestWithParam<ReadRow> {};

TEST_P(NumberAsRead, IsItsValue) {
    const auto& row = GetParam();
    EXPECT_EQ(TextToDouble(row.text, *row.locale), row.value);
    EXPECT_EQ(TextToSingle(row.text, *row.locale), static_cast<float>(row.value));
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
// clang-format on

INSTANTIATE_TEST_SUITE_P(Numbers, NumberAsRead, ::testing::ValuesIn(kNumberRows), kRowName);

void ExpectNoNumbers(const NumberLocale& locale, std::initializer_list<std::string> texts) {
    for (const std::string& text : texts) {
        EXPECT_EQ(TextToDouble(text, locale), std::nullopt) << text;
        EXPECT_EQ(TextToSingle(text, locale), std::nullopt) << text;
    }
}

TEST(NumberTextRead, WhatIsNoNumber) {
    const std::string digits(400, '7');
    ExpectNoNumbers(kUnitedStates, {"", " ", "   ", "1\n2", std::string("1\0", 2)});
    ExpectNoNumbers(kUnitedStates, {"abc", "1a", "a1", "1d5", "0x1F", "&H1F", "$5", "5%", "(5)"});
    ExpectNoNumbers(kUnitedStates, {"inf", "Infinity", "nan", "NaN"});
    // Arabic digits, the typographic minus.
    ExpectNoNumbers(kUnitedStates, {"\u0661\u0662", "\u22125"});
    ExpectNoNumbers(kUnitedStates, {"-", "+", "--1", "+-1", "-+1", "1-", "- 1", "1 2"});
    ExpectNoNumbers(kUnitedStates, {".", "-.", "1.2.3", "1..2"});
    ExpectNoNumbers(kUnitedStates,
                    {"e5", ".e5", "1e", "1e+", "1e-", "1e--5", "1e5.0", "1e5e5", "1 e5"});
    // Too large for a single.
    ExpectNoNumbers(kUnitedStates,
                    {"3.4028236e38", "-3.4028236e38", "1e39", "1e400", "1e99999999999",
                     "-1e99999999999", digits, "-" + digits, digits + ".5"});
}

TEST(NumberTextRead, GroupSeparatorsOutOfPlace) {
    ExpectNoNumbers(kUnitedStates, {"1,23", "1,2345", "1234,567", ",123", "-,123", "123,", "1,,234",
                                    "1,23,456", "1,23,456,789", "1,2345,678", "1,234,56", "1.234,5",
                                    "0.123,456", "1e1,000", "123,.5", ",", "1\u2019234"});
    ExpectNoNumbers(kGermany, {"0.5", "1,2,3", "1,234.5"});
    // A blank, and the first two bytes of the separator.
    ExpectNoNumbers(kFrance, {"1 234", "1\342\200234"});
    ExpectNoNumbers(kIndia, {"1,23,45", "123,456", "1,234,567"});
    ExpectNoNumbers(kUngrouped, {"1,234"});
}

}  // namespace
}  // namespace tarvix::testing
