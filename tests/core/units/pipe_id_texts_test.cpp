// The texts of the nominal size and pipe ID lists.
#include "units/pipe_id_texts.h"

#include "locales.h"
#include "named_row.h"

#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

const Unit& kInch = kLengthUnits[0];
const Unit& kMillimeter = kLengthUnits[1];
const Unit& kCentimeter = kLengthUnits[2];
const Unit kFoot{"Feet", 12.0F};
const Unit kLowerCase{"millimeters", 0.03937008F};

// Sizes divided by the factors, whose seven digits show: 2.5 inches are 6.349999 cm, not 6.35.
TEST(PipeIdTextsTest, ANominalSizeInEveryUnit) {
    struct Size {
        const char* shown;
        float inches;
        const char* millimeters;
        const char* centimeters;
    };
    for (const auto& [shown, inches, millimeters, centimeters] : {
             Size{"1/2", 0.5F, "12.7", "1.3"},
             Size{"3/4", 0.75F, "19.1", "1.9"},
             Size{"1", 1.0F, "25.4", "2.5"},
             Size{"2-1/2", 2.5F, "63.5", "6.3"},
             Size{"10", 10.0F, "254.0", "25.4"},
             Size{"42", 42.0F, "1066.8", "106.7"},
         }) {
        EXPECT_EQ(NominalSizeText(shown, inches, kInch, kUnitedStates), shown);
        EXPECT_EQ(NominalSizeText(shown, inches, kMillimeter, kUnitedStates), millimeters);
        EXPECT_EQ(NominalSizeText(shown, inches, kCentimeter, kUnitedStates), centimeters);
    }
}

TEST(PipeIdTextsTest, NominalSizesFollowTheLocaleAndAreNotGrouped) {
    EXPECT_EQ(NominalSizeText("1/2", 0.5F, kMillimeter, kGermany), "12,7");
    EXPECT_EQ(NominalSizeText("42", 42.0F, kMillimeter, kGermany), "1066,8");
}

TEST(PipeIdTextsTest, AScheduleInEveryUnit) {
    const auto american = [](const char* diameter, const char* name, const Unit& unit) {
        return ScheduleText(diameter, name, unit, kUnitedStates);
    };
    const char* const name = "Sch 40, STD, Sch 40S";
    EXPECT_EQ(american("2.067", name, kInch), "2.067\"  Sch 40, STD, Sch 40S");
    EXPECT_EQ(american("0.710", "XXS", kInch), "0.710\"  XXS");
    EXPECT_EQ(american("2.067", name, kMillimeter), "2.067\"  (52.50 mm)  Sch 40, STD, Sch 40S");
    EXPECT_EQ(american("2.067", name, kCentimeter), "2.067\"  (5.25 cm)  Sch 40, STD, Sch 40S");
    EXPECT_EQ(american("41.250", "STD", kMillimeter), "41.250\"  (1047.75 mm)  STD");
    EXPECT_EQ(american("2.067", "XXS", kFoot), std::nullopt);
    EXPECT_EQ(american("2.067", "XXS", kLowerCase), std::nullopt);
}

TEST(PipeIdTextsTest, AScheduleFollowsTheLocale) {
    EXPECT_EQ(ScheduleText("2,067", "XXS", kInch, kGermany), "2,067\"  XXS");
    EXPECT_EQ(ScheduleText("2,067", "XXS", kMillimeter, kGermany), "2,067\"  (52,50 mm)  XXS");
    EXPECT_EQ(ScheduleText("41,250", "STD", kMillimeter, kGermany), "41,250\"  (1047,75 mm)  STD");
}

// Of the pipes with the longest name only one is 10 inches or wider; of the nominal sizes only 42
// inches have four digits in millimeters.
TEST(PipeIdTextsTest, TheLongestTextsOfBothLists) {
    EXPECT_EQ(LongestScheduleText(), "10.020\"  (254.51 mm)  Sch 40, STD, Sch 40S");
    EXPECT_EQ(LongestNominalSizeText(), "1066.8");
}

TEST(PipeIdTextsTest, TheTextsOfTheUserEnteredEntry) {
    EXPECT_EQ(kOtherUserEntered, "Other (User Entered)");
    EXPECT_EQ(kUserEntered, "(User Entered)");
    EXPECT_EQ(kNoDiameterYet, "0");
}

struct UserRow : NamedRow {
    double answer;
    const Unit* unit;
    const NumberLocale* locale;
    const char* diameter;
    const char* shown;
};

class UserEntered : public ::testing::TestWithParam<UserRow> {};

TEST_P(UserEntered, HasItsDiameterInInchesAndItsText) {
    const auto& row = GetParam();
    const auto pipe = UserEnteredPipeOf(row.answer, *row.unit, *row.locale);
    ASSERT_TRUE(pipe.has_value());
    EXPECT_EQ(pipe->diameterText, row.diameter);
    EXPECT_EQ(pipe->shownText, row.shown);
}

// Three blanks stand between the closing parenthesis and "(User Entered)".
// clang-format off
const UserRow kUserRows[] = {
    {"Inches",          5.5,        &kInch,       &kUnitedStates, "5.500",    "5.500\" (User Entered)"},
    {"InchesRoundUp",   2.0675,     &kInch,       &kUnitedStates, "2.068",    "2.068\" (User Entered)"},
    {"InchesLarge",     12345.6789, &kInch,       &kUnitedStates, "12345.679", "12345.679\" (User Entered)"},
    {"InchesManyDigits", 123456.7894, &kInch,     &kUnitedStates, "123456.789", "123456.789\" (User Entered)"},
    {"InchesTooSmall",  0.0004,     &kInch,       &kUnitedStates, "0.000",    "0.000\" (User Entered)"},
    {"InchesGerman",    5.5,        &kInch,       &kGermany,      "5,500",    "5,500\" (User Entered)"},
    {"Millimeters",     50.8,       &kMillimeter, &kUnitedStates, "2.000",    "2.000\"  (50.80 mm)   (User Entered)"},
    {"MillimetersRoundedFirst", 12.345, &kMillimeter, &kUnitedStates, "0.486", "0.486\"  (12.35 mm)   (User Entered)"},
    {"MillimetersLarge", 1234.5,    &kMillimeter, &kUnitedStates, "48.602",   "48.602\"  (1234.50 mm)   (User Entered)"},
    {"MillimetersGerman", 1234.5,   &kMillimeter, &kGermany,      "48,602",   "48,602\"  (1234,50 mm)   (User Entered)"},
    {"MillimetersTooSmall", 0.004,  &kMillimeter, &kUnitedStates, "0.000",    "0.000\"  (0.00 mm)   (User Entered)"},
    {"Centimeters",     5.25,       &kCentimeter, &kUnitedStates, "2.067",    "2.067\"  (5.25 cm)   (User Entered)"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(PipeIdTexts, UserEntered, ::testing::ValuesIn(kUserRows), kRowName);

TEST(PipeIdTextsTest, AnAnswerInAnyOtherUnitHasNoText) {
    EXPECT_FALSE(UserEnteredPipeOf(5.0, kFoot, kUnitedStates).has_value());
    EXPECT_FALSE(UserEnteredPipeOf(5.0, kLowerCase, kUnitedStates).has_value());
}

TEST(PipeIdTextsTest, ThePipeDiameterInInchesIsThatOfTheTable) {
    EXPECT_EQ(PipeDiameterInUnit(kInches, "2.067", "2.067\"  (52.50 mm)  XXS"), "2.067");
    EXPECT_EQ(PipeDiameterInUnit(kInches, "5,500", "5,500\" (User Entered)"), "5,500");
}

// An entry without one has no text, and an unknown unit none at all.
TEST(PipeIdTextsTest, ThePipeDiameterInAnotherUnitStandsInTheListsText) {
    const auto inMillimeters = [](const char* shown) {
        return PipeDiameterInUnit(kMillimeters, "2.067", shown);
    };
    EXPECT_EQ(inMillimeters("2.067\"  (52.50 mm)  XXS"), "52.50");
    EXPECT_EQ(inMillimeters("2.000\"  (50.80 mm)   (User Entered)"), "50.80");
    EXPECT_EQ(inMillimeters("2,067\"  (1052,50 mm)  XXS"), "1052,50");
    for (const char* shown : {"Other (User Entered)", "2.067\"  (5.25 cm)  XXS",
                              "no parenthesis 5 mm", " mm before (5", ""}) {
        EXPECT_EQ(inMillimeters(shown), "") << shown;
    }
    EXPECT_EQ(PipeDiameterInUnit(kCentimeters, "2.067", "2.067\"  (5.25 cm)  XXS"), "5.25");
    EXPECT_EQ(PipeDiameterInUnit(kCentimeters, "0", "Other (User Entered)"), "");
    EXPECT_EQ(PipeDiameterInUnit("Feet", "2.067", "2.067\"  XXS"), std::nullopt);
    EXPECT_EQ(PipeDiameterInUnit("", "2.067", "2.067\"  XXS"), std::nullopt);
}

}  // namespace
}  // namespace tarvix::testing
