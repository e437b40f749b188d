// The shared procedures: temperature, the three number scales, the key filter, the decimal
// separator, and the two ways in which the program ends.
#include "app/shared/module1.h"

#include "fatal_errors.h"
#include "locales.h"
#include "named_row.h"
#include "tests/core/numbers/infinities.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace tarvix::testing {
namespace {

class Module1Test : public ::testing::Test {
  protected:
    RecordingPlatform platform;
    Module1 american{platform, kUnitedStates};
    Module1 german{platform, kGermany};
};

TEST_F(Module1Test, SharedVariablesStartEmptyOrZero) {
    for (const std::string& text :
         {american.FluidType, american.AppPath, american.MsgText, american.MsgTitle,
          american.CustLine1, american.CustLine2, american.TagText}) {
        EXPECT_EQ(text, "");
    }
    EXPECT_EQ(american.MsgStyle, 0);
    EXPECT_EQ(american.MsgResult, 0);
    EXPECT_EQ(&american.platform(), &platform);
}

TEST_F(Module1Test, CelsiusIsConvertedAndFahrenheitStays) {
    for (const float value : {-459.67F, -40.0F, 0.0F, 60.0F, 212.0F, 1e30F}) {
        EXPECT_EQ(american.TempToDegF(value, "F"), value);
    }
    EXPECT_EQ(american.TempToDegF(100.0F, "C"), 212.0F);
    EXPECT_EQ(american.TempToDegF(-40.0F, "C"), -40.0F);
    EXPECT_EQ(american.TempToDegF(0.0F, "C"), 32.0F);
    EXPECT_EQ(american.TempToDegF(15.5F, "C"), 59.9F);
    EXPECT_EQ(american.TempToDegF(-273.15F, "C"), -459.66998F);
    // 1.8 times 3.3 (as a single 3.2999999523) and 32, in double precision: 37.93999991416931
    EXPECT_EQ(american.TempToDegF(3.3F, "C"), 37.93999991416931F);
}

// The message is appended to what stands there.
TEST_F(Module1Test, AnUnknownTemperatureUnitEndsTheProgram) {
    for (const char* unit : {"K", "f", "c", "", "FC", "F "}) {
        american.MsgText = "left over. ";
        const auto box = FatalBoxOf(platform, [&] { american.TempToDegF(1.0F, unit); });
        EXPECT_EQ(box.text, FatalText("left over. Temperature conversion unit " +
                                      std::string(unit) + " not recognized."));
    }
}

struct ScaleRow : NamedRow {
    float value;
    const char* limit;
    const char* result;
    const char* entry;
};

class NumberScale : public Module1Test, public ::testing::WithParamInterface<ScaleRow> {};

TEST_P(NumberScale, HasFewerDecimalsTheLargerTheValue) {
    const auto& row = GetParam();
    EXPECT_EQ(american.FormatLimit(row.value), row.limit);
    EXPECT_EQ(american.FormatResult(row.value), row.result);
    EXPECT_EQ(american.FormatEntry(row.value), row.entry);
}

float Below(float value) {
    return std::nextafter(value, 0.0F);
}

// A value one single below a threshold rounds up to it, but with the decimals of its own range.
// clang-format off
const ScaleRow kScaleRows[] = {
    {"Thousand",             1000.0F,          "1,000",     "1,000",     "1000"},
    {"BelowThousand",        Below(1000.0F),   "1,000.0",   "1,000.0",   "1000.0"},
    {"RoundedThousands",     1234.4F,          "1,234",     "1,234",     "1234"},
    {"RoundedUpThousands",   1234.5F,          "1,235",     "1,235",     "1235"},
    {"Millions",             12345678.0F,      "12,345,678", "12,345,678", "12345678"},
    {"Hundred",              100.0F,           "100.0",     "100.0",     "100.0"},
    {"BelowHundred",         Below(100.0F),    "100.00",    "100.00",    "100.00"},
    {"Hundreds",             142.28693F,       "142.3",     "142.3",     "142.3"},
    {"Ten",                  10.0F,            "10.00",     "10.00",     "10.00"},
    {"BelowTen",             Below(10.0F),     "10.000",    "10.000",    "10.000"},
    {"Tens",                 14.7F,            "14.70",     "14.70",     "14.70"},
    {"One",                  1.0F,             "1.000",     "1.000",     "1.000"},
    {"BelowOne",             Below(1.0F),      "1.0000",    "1.0000",    "1.0000"},
    {"Tenth",                0.1F,             "0.1000",    "0.1000",    "0.1000"},
    {"BelowTenth",           Below(0.1F),      "0.1000",    "0.10000",   "0.10000"},
    {"Tenths",               0.61234F,         "0.6123",    "0.6123",    "0.6123"},
    {"Twentieth",            0.05F,            "0.0500",    "0.05000",   "0.05000"},
    {"Hundredth",            0.01F,            "0.0100",    "0.01000",   "0.01000"},
    {"BelowHundredth",       Below(0.01F),     "0.0100",    "0.010000",  "0.010000"},
    {"Thousandths",          0.005F,           "0.0050",    "0.005000",  "0.005000"},
    {"Millionth",            0.000001F,        "0.0000",    "0.000001",  "0.000001"},
    {"BelowAMillionth",      0.0000001F,       "0.0000",    "0.000000",  "0.000000"},
    {"SmallestSingle",       1.4e-45F,         "0.0000",    "0.000000",  "0.000000"},
    {"Zero",                 0.0F,             "0.0000",    "0.0",       "0.0"},
    {"MinusZero",            -0.0F,            "0.0000",    "0.0",       "0.0"},
    {"MinusTwentieth",       -0.05F,           "-0.0500",   "-0.050000", "-0.050000"},
    {"MinusOne",             -1.0F,            "-1.0000",   "-1.000000", "-1.000000"},
    {"FullVacuumPsi",        -14.7F,           "-14.7000",  "-14.700000", "-14.700000"},
    {"MinusThousands",       -1234.5F,         "-1,234.5000", "-1,234.500000", "-1234.500000"},
    {"MinusTooSmallToShow",  -0.0000001F,      "0.0000",    "0.000000",  "0.000000"},
    {"Infinity",             kSingleInfinity, "", "", ""},
    {"NotANumber",           std::numeric_limits<float>::quiet_NaN(), "", "", ""},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Module1, NumberScale, ::testing::ValuesIn(kScaleRows), kRowName);

TEST_F(Module1Test, TheScalesFollowTheLocale) {
    EXPECT_EQ(german.FormatLimit(-101352.953125F), "-101.353,0000");
    EXPECT_EQ(german.FormatResult(1234567.0F), "1.234.567");
    EXPECT_EQ(german.FormatEntry(1234567.0F), "1234567");
    EXPECT_EQ(german.FormatResult(0.05F), "0,05000");
    EXPECT_EQ(german.FormatEntry(14.7F), "14,70");
    EXPECT_EQ(Module1(platform, kSpain).FormatResult(1234.0F), "1234");
    EXPECT_EQ(Module1(platform, kIndia).FormatResult(1234567.0F), "12,34,567");
}

TEST_F(Module1Test, TheKeyFilterKeepsOnlyKeysOfNumbers) {
    const FieldSelection empty;
    for (int key = -70000; key <= 70000; ++key) {
        const bool kept = (key >= 48 && key <= 57) || key == 8 || key == 43 || key == 45;
        ASSERT_EQ(american.NumericKeyFilter(key, empty), kept || key == 46 ? key : 0) << key;
        ASSERT_EQ(german.NumericKeyFilter(key, empty), kept || key == 44 ? key : 0) << key;
    }
}

struct KeyRow : NamedRow {
    char key;
    FieldSelection field;
    bool kept;
};

class KeyFilter : public Module1Test, public ::testing::WithParamInterface<KeyRow> {};

// The same row where the comma stands for the point, and the point for the comma.
KeyRow InGermany(KeyRow row) {
    std::string key(1, row.key);
    for (std::string* text : {&key, &row.field.before, &row.field.selected, &row.field.after}) {
        for (char& c : *text) {
            c = c == '.' ? ',' : c == ',' ? '.' : c;
        }
    }
    row.key = key.front();
    return row;
}

TEST_P(KeyFilter, JudgesTheKeyByTheField) {
    const KeyRow& row = GetParam();
    EXPECT_EQ(american.NumericKeyFilter(row.key, row.field), row.kept ? row.key : 0);
    const KeyRow comma = InGermany(row);
    EXPECT_EQ(german.NumericKeyFilter(comma.key, comma.field), comma.kept ? comma.key : 0);
}

// clang-format off
const KeyRow kKeyRows[] = {
    // A sign stands at the beginning; whether there is one already is not asked.
    {"MinusBeforeText",         '-', {"", "", "12"},   true},
    {"MinusBeforeMinus",        '-', {"", "", "-12"},  true},
    {"MinusOverSelection",      '-', {"", "12", ""},   true},
    {"MinusAfterFirst",         '-', {"1", "", "2"},   false},
    {"MinusAtTheEnd",           '-', {"12", "", ""},   false},
    {"MinusOverLaterSelection", '-', {"1", "2", ""},   false},
    {"PlusBeforeText",          '+', {"", "", "12"},   true},
    {"PlusAfterFirst",          '+', {"1", "", "2"},   false},
    // Digits and backspace go anywhere.
    {"DigitInTheMiddle",        '5', {"1", "", "2"},   true},
    {"DigitBeforeMinus",        '0', {"", "", "-1"},   true},
    {"NineOverSelection",       '9', {"1", "2", "3"},  true},
    {"BackspaceInTheMiddle",    '\b', {"1", "", "2"},  true},
    // One decimal separator; left of a selection it is not looked for.
    {"FirstPoint",              '.', {"1", "", "5"},   true},
    {"SecondPointAtTheEnd",     '.', {"1.5", "", ""},  false},
    {"SecondPointBefore",       '.', {"", "", "1.5"},  false},
    {"PointOverWholeSelection", '.', {"", "1.5", ""},  true},
    {"PointOverPoint",          '.', {"1", ".", "5"},  true},
    {"PointLeftOfSelection",    '.', {"1.5", "0", ""}, true},
    {"PointRightOfSelection",   '.', {"", "1", "2.5"}, false},
    {"PointInBothPieces",       '.', {"1.", "2", "3.4"}, false},
    {"PointBesideComma",        '.', {"1,5", "", ""},  true},
    {"OtherSeparator",          ',', {"1", "", ""},    false},
    {"OtherSeparatorOverAll",   ',', {"", "12", ""},   false},
    {"ExponentNeverTyped",      'e', {"1", "", ""},    false},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Module1, KeyFilter, ::testing::ValuesIn(kKeyRows), kRowName);

TEST_F(Module1Test, LocalDecimalTurnsTheFirstPointIntoAComma) {
    EXPECT_EQ(german.LocalDecimal("0.5"), "0,5");
    EXPECT_EQ(german.LocalDecimal("1.000.5"), "1,000.5");
    EXPECT_EQ(german.LocalDecimal(".5"), ",5");
    EXPECT_EQ(german.LocalDecimal("5."), "5,");
    EXPECT_EQ(german.LocalDecimal("12"), "12");
    EXPECT_EQ(german.LocalDecimal("1,5"), "1,5");
    EXPECT_EQ(german.LocalDecimal(""), "");
    // Where the point is the separator the text stays.
    EXPECT_EQ(american.LocalDecimal("0.5"), "0.5");
    EXPECT_EQ(american.LocalDecimal("1.000.5"), "1.000.5");
    EXPECT_EQ(Module1(platform, kSwitzerland).LocalDecimal("14.7"), "14.7");
}

TEST_F(Module1Test, AFatalErrorShowsItsBoxAndEndsTheProgram) {
    american.MsgText = "Orifice type not specified";
    platform.answer = kAnswerCancel;
    const auto box = FatalBoxOf(platform, [&] { american.FatalError(); });
    EXPECT_EQ(box.text,
              "Fatal Error Encountered: \n\r\n\rOrifice type not specified\n\r\n\r"
              "This Program will now terminate.");
    EXPECT_EQ(box.title, "Fatal Error");
    EXPECT_EQ(box.style, BoxStyle::Critical);
    EXPECT_EQ(box.buttons, BoxButtons::Ok);
    EXPECT_EQ(american.MsgText, box.text);
    EXPECT_EQ(american.MsgTitle, "Fatal Error");
    EXPECT_EQ(american.MsgResult, kAnswerCancel);
}

TEST_F(Module1Test, ExitAsksAndEndsTheProgramOnOk) {
    platform.answer = kAnswerCancel;
    EXPECT_EQ(ExitStatusOf([&] { american.ExitProgram(); }), std::nullopt);
    EXPECT_EQ(american.MsgResult, 2);
    platform.answer = kAnswerOk;
    EXPECT_EQ(ExitStatusOf([&] { american.ExitProgram(); }), 0);
    EXPECT_EQ(american.MsgResult, 1);
    ASSERT_EQ(platform.boxes.size(), 2U);
    EXPECT_EQ(platform.boxes[0].text, "Program Complete. EXIT PROGRAM");
    EXPECT_EQ(platform.boxes[0].title, "Program Termination");
    EXPECT_EQ(platform.boxes[0].style, BoxStyle::Critical);
    EXPECT_EQ(platform.boxes[0].buttons, BoxButtons::OkCancel);
    EXPECT_EQ(american.MsgText, "Program Complete. EXIT PROGRAM");
    EXPECT_EQ(american.MsgTitle, "Program Termination");
    EXPECT_EQ(american.MsgStyle, 17);
}

}  // namespace
}  // namespace tarvix::testing
