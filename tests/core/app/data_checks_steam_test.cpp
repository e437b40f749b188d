// The check of a steam's inputs.
#include "app/sheet/data_checks.h"
#include "app/sheets.h"
#include "named_row.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace tarvix {

namespace {

using namespace testing;

class DataChkSteamRow : public SheetRowTest {};

TEST_P(DataChkSteamRow, SaysWhatIsWrong) {
    InputSheet sheet = SteamSheet();
    GetParam().change(sheet);
    EXPECT_EQ(MessageOf(DataChkSteam, sheet), GetParam().message);
}

// clang-format off
const SheetRow kSteamRows[] = {
    {"Good", [](InputSheet&) {}, ""},
    {"GoodFromTable", [](InputSheet& s) { s.steamFromTable = true; }, ""},
    {"GoodAbsolute", [](InputSheet& s) { s.absolutePressure = true; }, ""},
    // The field being edited.
    {"EditedDensityNotNumeric",
     [](InputSheet& s) { s.activeField = Field::Density; s.density = "x"; },
     "Non-Numeric Operating Density"},
    {"EditedDensityZero",
     [](InputSheet& s) { s.activeField = Field::Density; s.density = "0"; },
     "Operating Density must be greater than 0."},
    {"EditedTableDensityNotNumeric",
     [](InputSheet& s) { s.activeField = Field::Density; s.steamFromTable = true; s.density = "x"; },
     "Non-Numeric Operating Density [from Op. Pressure]"},
    {"EditedPressureNotNumeric",
     [](InputSheet& s) { s.activeField = Field::Pf; s.pf = "1 2"; },
     "Non-Numeric Operating Pressure"},
    {"EditedAbsoluteZero",
     [](InputSheet& s) { s.activeField = Field::Pf; s.absolutePressure = true; s.pf = "0"; },
     "Operating Pressure must be greater than 0"},
    {"EditedAbsoluteNegative",
     [](InputSheet& s) { s.activeField = Field::Pf; s.absolutePressure = true; s.pf = "-5"; },
     "Operating Pressure must be greater than 0"},
    {"EditedGaugeVacuum",
     [](InputSheet& s) { s.activeField = Field::Pf; s.pf = "-14.7"; },
     "Operating Pressure must be greater than -14.7000 PSI."},
    {"EditedGaugeJustAboveVacuum",
     [](InputSheet& s) { s.activeField = Field::Pf; s.pf = "-14.69"; }, ""},
    {"EditedGaugeZeroIsGood",
     [](InputSheet& s) { s.activeField = Field::Pf; s.pf = "0"; }, ""},
    {"EditedPressureEmpty",
     [](InputSheet& s) { s.activeField = Field::Pf; s.pf = ""; },
     "Incomplete fluid data (Operating Pressure)."},
    {"EditedBeforeTheSet",
     [](InputSheet& s) { s.activeField = Field::Pf; s.pf = "x"; s.density = ""; },
     "Non-Numeric Operating Pressure"},
    // The whole set.
    {"DensityEmpty", [](InputSheet& s) { s.density = ""; },
     "Incomplete fluid data (Operating Density)."},
    {"PressureEmpty", [](InputSheet& s) { s.pf = ""; },
     "Incomplete fluid data (Operating Pressure)."},
    {"BothEmpty", [](InputSheet& s) { s.density = ""; s.pf = ""; },
     "Incomplete fluid data (Operating Density, Operating Pressure)."},
    {"BothNotNumeric", [](InputSheet& s) { s.density = "x"; s.pf = "y"; },
     "Non-Numeric fluid data (Operating Density, Operating Pressure)."},
    {"DensityZero", [](InputSheet& s) { s.density = "0"; },
     "Operating Density must be greater than 0."},
    {"AbsoluteZero", [](InputSheet& s) { s.absolutePressure = true; s.pf = "0"; },
     "Operating Pressure must be greater than 0."},
    {"AbsoluteNegative", [](InputSheet& s) { s.absolutePressure = true; s.pf = "-1"; },
     "Operating Pressure must be greater than 0."},
    {"AbsoluteBarelyPositive", [](InputSheet& s) { s.absolutePressure = true; s.pf = "1e-40"; }, ""},
    {"GaugeVacuum", [](InputSheet& s) { s.pf = "-14.7"; },
     "Operating Pressure must be greater than -14.7000 PSI."},
    {"GaugeBelowVacuum", [](InputSheet& s) { s.pf = "-1000"; },
     "Operating Pressure must be greater than -14.7000 PSI."},
    {"GaugeBelowZeroIsGood", [](InputSheet& s) { s.pf = "-10"; }, ""},
    // The limit comes after the numeric pass and before the positive pass.
    {"NonNumericBeforeLimit", [](InputSheet& s) { s.pf = "-20"; s.density = "x"; },
     "Non-Numeric fluid data (Operating Density)."},
    {"LimitBeforePositive", [](InputSheet& s) { s.pf = "-20"; s.density = "0"; },
     "Operating Pressure must be greater than -14.7000 PSI."},
    // In the user's own unit.
    {"VacuumInKilopascal",
     [](InputSheet& s) { s.pressUnit = UnitNamed(kPressUnits, "kPa"); s.pf = "-101.5"; },
     "Operating Pressure must be greater than -101.3529 kPa."},
    {"AlmostVacuumInKilopascal",
     [](InputSheet& s) { s.pressUnit = UnitNamed(kPressUnits, "kPa"); s.pf = "-101.3"; }, ""},
    {"VacuumInPascal",
     [](InputSheet& s) { s.pressUnit = UnitNamed(kPressUnits, "Pa"); s.pf = "-200000"; },
     "Operating Pressure must be greater than -101,353.0000 Pa."},
    {"VacuumInBar",
     [](InputSheet& s) { s.pressUnit = UnitNamed(kPressUnits, "bar"); s.pf = "-2"; },
     "Operating Pressure must be greater than -1.0135 bar."},
    {"VacuumInInchesOfWater",
     [](InputSheet& s) { s.pressUnit = UnitNamed(kPressUnits, "inches of W.C"); s.pf = "-500"; },
     "Operating Pressure must be greater than -407.1898 inches of W.C."},
    // A density from the table is not required, but must be there.
    {"TableDensityMissing", [](InputSheet& s) { s.steamFromTable = true; s.density = ""; },
     "The Operating Density [from Op. Pressure] must not exceed steam table limits."},
    {"TableDensityMissingAndNoPressure",
     [](InputSheet& s) { s.steamFromTable = true; s.density = ""; s.pf = ""; },
     "Incomplete fluid data (Operating Pressure)."},
    {"TableDensityNotJudged", [](InputSheet& s) { s.steamFromTable = true; s.density = "0"; }, ""},
    {"TypedDensityMissingIsIncomplete", [](InputSheet& s) { s.density = ""; s.pf = "4000"; },
     "Incomplete fluid data (Operating Density)."},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(DataChecks, DataChkSteamRow, ::testing::ValuesIn(kSteamRows), kRowName);

class DataChkSteamTest : public SheetTest {};

TEST_F(DataChkSteamTest, StoresPressuresAndDensity) {
    InputSheet sheet = SteamSheet();
    sheet.pressUnit = UnitNamed(kPressUnits, "kPa");
    sheet.densityUnit = UnitNamed(kDensityUnits, "kg/cubic meter");
    sheet.pf = "700";
    sheet.density = "4.1";
    EXPECT_EQ(MessageOf(DataChkSteam, sheet), "");
    EXPECT_EQ(module.working.OperPress, 700.0F * 0.1450378F);
    EXPECT_EQ(module.working.BasePress, 14.7F);
    EXPECT_EQ(module.working.OperDensity, 4.1F * 0.06242798F);
    EXPECT_EQ(module.working.BaseSG, 0.0F);
    EXPECT_EQ(module.working.FlowTempF, 0.0F);
}

TEST_F(DataChkSteamTest, ABadSheetLeavesTheWorkingValues) {
    module.working.OperPress = 3.0F;
    module.working.BasePress = 4.0F;
    module.working.OperDensity = 5.0F;
    InputSheet sheet = SteamSheet();
    sheet.density = "0";
    EXPECT_NE(MessageOf(DataChkSteam, sheet), "");
    EXPECT_EQ(module.working.OperPress, 3.0F);
    EXPECT_EQ(module.working.BasePress, 4.0F);
    EXPECT_EQ(module.working.OperDensity, 5.0F);
}

// The vacuum is -14.7 psi in single precision, and not good itself.
TEST_F(DataChkSteamTest, TheVacuumIsTheLastPressureRefused) {
    InputSheet sheet = SteamSheet();
    const float above = std::nextafter(-14.7F, 0.0F);
    const float below = std::nextafter(-14.7F, -20.0F);
    sheet.pf = {FormatNumber(double{above}, 9, kUnitedStates, Grouping::Off), kUnitedStates};
    EXPECT_EQ(MessageOf(DataChkSteam, sheet), "");
    sheet.pf = {FormatNumber(double{below}, 9, kUnitedStates, Grouping::Off), kUnitedStates};
    EXPECT_NE(MessageOf(DataChkSteam, sheet), "");
    sheet.pf = "-14.7";
    EXPECT_NE(MessageOf(DataChkSteam, sheet), "");
}

TEST_F(DataChkSteamTest, TheLimitIsWrittenInTheLocale) {
    Module1 german(platform, kGermany);
    InputSheet sheet = SteamSheet();
    sheet.density = {"0,25704", kGermany};
    sheet.pressUnit = UnitNamed(kPressUnits, "Pa");
    sheet.pf = {"-200.000", kGermany};
    EXPECT_EQ(DataChkSteam(sheet, {}, german).message,
              "Operating Pressure must be greater than -101.353,0000 Pa.");
}

}  // namespace

}  // namespace tarvix
