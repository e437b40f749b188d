// What follows from a density or a pressure before anything is solved: the gravity of a liquid, the
// density of saturated steam, and the two warnings.
#include "app/sheet/derived_densities.h"
#include "app/sheet/warning_rules.h"
#include "app/sheets.h"
#include "named_row.h"

#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

class DensitiesTest : public SheetTest {
  protected:
    static InputSheet SteamAt(const EnteredNumber& pressure, bool absolute = false) {
        InputSheet sheet = SteamSheet();
        sheet.pf = pressure;
        sheet.absolutePressure = absolute;
        return sheet;
    }
    const SelectedUnit kPound = kDensityUnits[0];
    const SelectedUnit kKilogram = kDensityUnits[1];
};

TEST_F(DensitiesTest, TheGravityOfADensity) {
    EXPECT_EQ(FlowingGravityText("62.366", kPound, kUnitedStates), "1.0000");
    EXPECT_EQ(FlowingGravityText("50", kPound, kUnitedStates), "0.8017");
    EXPECT_EQ(FlowingGravityText("124.732", kPound, kUnitedStates), "2.0000");
    EXPECT_EQ(FlowingGravityText("100000", kPound, kUnitedStates), "1,603.4380");
    EXPECT_EQ(FlowingGravityText("0.000001", kPound, kUnitedStates), "0.0000");
    // 62.42798 / 62.366 = 1.00099, 53.06378 / 62.366 = 0.850845
    EXPECT_EQ(FlowingGravityText("1000", kKilogram, kUnitedStates), "1.0010");
    EXPECT_EQ(FlowingGravityText("850", kKilogram, kUnitedStates), "0.8508");
}

TEST_F(DensitiesTest, WithoutAPositiveDensityThereIsNoGravity) {
    for (const char* density : {"", "0", "-5", "abc", "1e60", " ", "1e-60"}) {
        EXPECT_EQ(FlowingGravityText(density, kPound, kUnitedStates), "") << density;
    }
}

TEST_F(DensitiesTest, TheGravityIsWrittenInTheLocale) {
    EXPECT_EQ(FlowingGravityText({"62,366", kGermany}, kPound, kGermany), "1,0000");
    // Sixty-two thousand.
    EXPECT_EQ(FlowingGravityText({"62.366", kGermany}, kPound, kGermany), "1.000,0000");
}

// The factor is the double of its text, not the single: 0.06242798 x 8.4e10 / 62.366.
TEST_F(DensitiesTest, TheDensityFactorIsTakenInDoublePrecision) {
    int differing = 0;
    for (int i = 1; i <= 2000; ++i) {
        const auto value = static_cast<float>(i) * 1.37e7F;
        const auto asDouble = static_cast<float>(0.06242798 * double{value}) / 62.366F;
        const auto asSingle = 0.06242798F * value / 62.366F;
        const std::string expected = FormatNumber(asDouble, 4, kUnitedStates, Grouping::On);
        const std::string text = FormatNumber(value, 0, kUnitedStates, Grouping::Off);
        EXPECT_EQ(FlowingGravityText({text, kUnitedStates}, kKilogram, kUnitedStates), expected);
        differing += FormatNumber(asSingle, 4, kUnitedStates, Grouping::On) != expected ? 1 : 0;
    }
    EXPECT_GT(differing, 10);
}

struct SteamDensityRow : NamedRow {
    const char* pressure;
    const char* pressUnit;
    bool absolute;
    const char* densityUnit;
    std::string density;
    std::string message;
};

class SteamDensityOf : public DensitiesTest,
                       public ::testing::WithParamInterface<SteamDensityRow> {};

TEST_P(SteamDensityOf, IsWrittenOrRefused) {
    const auto& row = GetParam();
    InputSheet sheet = SteamAt(row.pressure, row.absolute);
    sheet.pressUnit = UnitNamed(kPressUnits, row.pressUnit);
    sheet.densityUnit = UnitNamed(kDensityUnits, row.densityUnit);
    const SteamDensityText result = SteamDensityTextOf(sheet, module);
    EXPECT_EQ(result.density, row.density);
    EXPECT_EQ(result.message, row.message);
}

constexpr const char* kLb = "lb/cubic foot";
constexpr const char* kKg = "kg/cubic meter";

std::string Below(const std::string& limit) {
    return "The Op. Pressure is below the steam table mimimum: " + limit;
}
std::string Above(const std::string& limit) {
    return "The Op. Pressure exceeds the steam table maximum: " + limit;
}

// clang-format off
const SteamDensityRow kSteamDensityRows[] = {
    {"HundredPsig",         "100",    "PSI", false, kLb, "0.25704", ""},
    {"Between",             "102",    "PSI", false, kLb, "0.26129", ""},
    {"FallingPart",         "67.5",   "PSI", false, kLb, "0.18457", ""},  // 0.184565, halves away
    {"ZeroPsig",            "0",      "PSI", false, kLb, "0.03738", ""},
    {"AtmosphereAbsolute",  "14.7",   "PSI", true,  kLb, "0.03738", ""},
    {"HundredPsia",         "114.7",  "PSI", true,  kLb, "0.25704", ""},
    {"AfterARowOutOfLine",  "386",    "PSI", false, kLb, "0.85466", ""},
    {"WideRows",            "2400",   "PSI", false, kLb, "7.26260", ""},
    {"LastRow",             "3000",   "PSI", false, kLb, "11.86182", ""},
    {"LastRowAbsolute",     "3,014.7", "PSI", true, kLb, "11.86182", ""},
    {"Metric",              "100",    "PSI", false, kKg, "4.11738", ""},
    {"MetricLastRow",       "3000",   "PSI", false, kKg, "190.00810", ""},
    {"Kilopascal",          "700",    "kPa", false, kLb, "0.26029", ""},  // 101.526 psig
    {"Bar",                 "7",      "bar", true,  kLb, "0.22893", ""},  // 86.827 psig
    {"GaugeBelow",          "-1",     "PSI", false, kLb, "", Below("0.0 PSI (gauge)")},
    {"GaugeJustBelow",      "-1e-40", "PSI", false, kLb, "", Below("0.0 PSI (gauge)")},
    {"AbsoluteBelow",       "14.6",   "PSI", true,  kLb, "", Below("14.70 PSI (absolute)")},
    {"AbsoluteBelowMetric", "100",    "kPa", true,  kLb, "", Below("101.4 kPa (absolute)")},
    {"AbsoluteBelowInPascal", "1",    "Pa",  true,  kLb, "", Below("101,353 Pa (absolute)")},
    {"GaugeBelowMetric",    "-1",     "kPa", false, kLb, "", Below("0.0 kPa (gauge)")},
    {"GaugeAbove",          "3001",   "PSI", false, kLb, "", Above("3,000 PSI (gauge)")},
    {"AbsoluteAbove",       "3015",   "PSI", true,  kLb, "", Above("3,015 PSI (absolute)")},
    {"GaugeAboveInBar",     "300",    "bar", false, kLb, "", Above("206.8 bar (gauge)")},
    {"AbsoluteAboveInBar",  "300",    "bar", true,  kLb, "", Above("207.9 bar (absolute)")},
    {"GaugeAboveInPascal",  "1e9",    "Pa",  false, kLb, "", Above("20,684,276 Pa (gauge)")},
    {"FarAbove",            "3e38",   "bar", false, kLb, "", Above("206.8 bar (gauge)")},
    {"Empty",               "",       "PSI", false, kLb, "", ""},
    {"NotNumeric",          "abc",    "PSI", false, kLb, "", ""},
    {"Overflow",            "1e39",   "PSI", false, kLb, "", ""},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Densities, SteamDensityOf, ::testing::ValuesIn(kSteamDensityRows),
                         kRowName);

TEST_F(DensitiesTest, SteamDensityIsWrittenInTheLocale) {
    const Module1 german(platform, kGermany);
    EXPECT_EQ(SteamDensityTextOf(SteamAt({"100", kGermany}), german).density, "0,25704");
    EXPECT_EQ(SteamDensityTextOf(SteamAt({"100,5", kGermany}), german).density, "0,25810");
    EXPECT_EQ(SteamDensityTextOf(SteamAt({"3.001", kGermany}), german).message,
              Above("3.000 PSI (gauge)"));
}

struct WarningRow : NamedRow {
    const char* pressure;
    const char* pressUnit;
    bool absolute;
    CompCorrection correction;
    CompressibilityWarning warning;
};

class ZfCompWarning : public SheetTest, public ::testing::WithParamInterface<WarningRow> {};

TEST_P(ZfCompWarning, DependsOnTheGaugePressure) {
    const auto& row = GetParam();
    InputSheet sheet = GasSheet();
    sheet.pf = row.pressure;
    sheet.pressUnit = UnitNamed(kPressUnits, row.pressUnit);
    sheet.absolutePressure = row.absolute;
    sheet.compCorrection = row.correction;
    EXPECT_EQ(CheckZfComp(sheet), row.warning);
}

constexpr auto kNoCorrection = CompCorrection::None;
constexpr auto kNoWarning = CompressibilityWarning::None;
constexpr auto kMay = CompressibilityWarning::May;
constexpr auto kWill = CompressibilityWarning::Will;

// clang-format off
const WarningRow kWarningRows[] = {
    {"Low",                "100",        "PSI", false, kNoCorrection, kNoWarning},
    {"TwoHundred",         "200",        "PSI", false, kNoCorrection, kNoWarning},
    {"JustOverTwoHundred", "200.00002",  "PSI", false, kNoCorrection, kMay},
    {"FourHundred",        "400",        "PSI", false, kNoCorrection, kMay},
    {"JustOverFourHundred", "400.00004", "PSI", false, kNoCorrection, kWill},
    {"Absolute2147",       "214.7",      "PSI", true,  kNoCorrection, kNoWarning},
    {"Absolute2148",       "214.8",      "PSI", true,  kNoCorrection, kMay},
    {"Absolute4147",       "414.7",      "PSI", true,  kNoCorrection, kMay},
    {"Absolute4148",       "414.8",      "PSI", true,  kNoCorrection, kWill},
    {"Kilopascal1378",     "1378",       "kPa", false, kNoCorrection, kNoWarning},  // 199.86 psi
    {"Kilopascal1380",     "1380",       "kPa", false, kNoCorrection, kMay},        // 200.15 psi
    {"Kilopascal2760",     "2760",       "kPa", false, kNoCorrection, kWill},       // 400.30 psi
    {"Kilopascal2760Absolute", "2760",   "kPa", true,  kNoCorrection, kMay},        // 385.60 psi
    {"ZfTyped",            "1000",       "PSI", false, CompCorrection::Zf, kNoWarning},
    {"DensityTyped",       "1000",       "PSI", false, CompCorrection::Density, kNoWarning},
    {"Empty",              "",           "PSI", false, kNoCorrection, kNoWarning},
    {"NotNumeric",         "1000 psi",   "PSI", false, kNoCorrection, kNoWarning},
    {"Negative",           "-1000",      "PSI", false, kNoCorrection, kNoWarning},
    {"FarOver",            "3e38",       "bar", false, kNoCorrection, kWill},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Warnings, ZfCompWarning, ::testing::ValuesIn(kWarningRows), kRowName);

const SelectedUnit kInchesOfWater = kDeltaPUnits[0];

TEST(PlateThicknessTest, FromEightInchesAnd150InchesOfWaterOn) {
    EXPECT_TRUE(CheckPlateThickness("8", "150", kInchesOfWater));
    EXPECT_TRUE(CheckPlateThickness("42", "1000", kInchesOfWater));
    EXPECT_FALSE(CheckPlateThickness("8", "149.99998", kInchesOfWater));
    EXPECT_FALSE(CheckPlateThickness("7.9999995", "150", kInchesOfWater));
    EXPECT_FALSE(CheckPlateThickness("6", "1000000", kInchesOfWater));
    // Other units are converted first.
    const SelectedUnit psi = UnitNamed(kDeltaPUnits, "PSI");
    EXPECT_FALSE(CheckPlateThickness("8", "5.41", psi));  // 149.86
    EXPECT_TRUE(CheckPlateThickness("8", "5.42", psi));   // 150.13
}

TEST(PlateThicknessTest, WithoutANumberThereIsNoWarning) {
    for (const char* deltaP : {"", "abc", "150,0", "-200", "1e39"}) {
        EXPECT_FALSE(CheckPlateThickness("8", deltaP, kInchesOfWater)) << deltaP;
    }
    EXPECT_FALSE(CheckPlateThickness("", "200", kInchesOfWater));
    EXPECT_TRUE(CheckPlateThickness("8", {"150,5", kGermany}, kInchesOfWater));
    EXPECT_TRUE(CheckPlateThickness({"8,0", kGermany}, "150", kInchesOfWater));
}

}  // namespace
}  // namespace tarvix::testing
