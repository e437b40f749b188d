// The check of a liquid's inputs.
#include "app/sheet/data_checks.h"
#include "app/sheets.h"
#include "named_row.h"

#include <gtest/gtest.h>

namespace tarvix {

namespace {

using namespace testing;

TEST(DataChecksTest, StatusesAndColours) {
    EXPECT_EQ(kDataGood, 1);
    EXPECT_EQ(kDataBad, 2);
    EXPECT_EQ(kAtmosphericPressurePsi, 14.7F);
}

class DataChkLiquidRow : public SheetRowTest {};

TEST_P(DataChkLiquidRow, SaysWhatIsWrong) {
    InputSheet sheet = LiquidSheet();
    GetParam().change(sheet);
    EXPECT_EQ(MessageOf(DataChkLiquid, sheet), GetParam().message);
}

// clang-format off
const SheetRow kLiquidRows[] = {
    {"Good", [](InputSheet&) {}, ""},
    // The field being edited.
    {"EditedFlowingNotNumeric",
     [](InputSheet& s) { s.activeField = Field::SGf; s.sgf = "abc"; },
     "Non-Numeric Flowing Specific Gravity"},
    {"EditedBaseNotNumeric",
     [](InputSheet& s) { s.activeField = Field::SGb; s.sgb = "1..2"; },
     "Non-Numeric Base Specific Gravity"},
    {"EditedDensityNotNumeric",
     [](InputSheet& s) { s.activeField = Field::Density; s.sgCalculated = true; s.density = "x"; },
     "Non-Numeric Operating Density"},
    {"EditedFlowingCalculatedNotNumeric",
     [](InputSheet& s) { s.activeField = Field::SGf; s.sgCalculated = true; s.sgf = "x"; },
     "Non-Numeric Flowing Specific Gravity [from Density]"},
    {"EditedFlowingZero",
     [](InputSheet& s) { s.activeField = Field::SGf; s.sgf = "0"; },
     "Flowing Specific Gravity must be greater than 0."},
    {"EditedFlowingNegative",
     [](InputSheet& s) { s.activeField = Field::SGf; s.sgf = "-1"; },
     "Flowing Specific Gravity must be greater than 0."},
    {"EditedBaseZero",
     [](InputSheet& s) { s.activeField = Field::SGb; s.sgb = "0.0"; },
     "Base Specific Gravity must be greater than 0."},
    {"EditedDensityZero",
     [](InputSheet& s) { s.activeField = Field::Density; s.sgCalculated = true; s.density = "0"; },
     "Operating Density must be greater than 0."},
    {"EditedFlowingUnderflows",
     [](InputSheet& s) { s.activeField = Field::SGf; s.sgf = "1e-60"; },
     "Flowing Specific Gravity must be greater than 0."},
    {"EditedFlowingOverflows",
     [](InputSheet& s) { s.activeField = Field::SGf; s.sgf = "1e60"; },
     "Non-Numeric Flowing Specific Gravity"},
    {"EditedSmallestSingle",
     [](InputSheet& s) { s.activeField = Field::SGf; s.sgf = "1e-44"; }, ""},
    // It comes before what is missing elsewhere,
    {"EditedBeforeTheSet",
     [](InputSheet& s) { s.activeField = Field::SGb; s.sgb = "x"; s.sgf = ""; },
     "Non-Numeric Base Specific Gravity"},
    // but when it is good or empty the whole set is looked at.
    {"EditedGoodOtherEmpty",
     [](InputSheet& s) { s.activeField = Field::SGb; s.sgf = ""; },
     "Incomplete fluid data (Flowing Specific Gravity)."},
    {"EditedEmpty",
     [](InputSheet& s) { s.activeField = Field::SGb; s.sgb = ""; },
     "Incomplete fluid data (Base Specific Gravity)."},
    {"EditedIsAnotherField",
     [](InputSheet& s) { s.activeField = Field::Flow; s.flow = "x"; }, ""},
    // Completeness.
    {"FlowingEmpty", [](InputSheet& s) { s.sgf = ""; },
     "Incomplete fluid data (Flowing Specific Gravity)."},
    {"BaseEmpty", [](InputSheet& s) { s.sgb = ""; },
     "Incomplete fluid data (Base Specific Gravity)."},
    {"BothEmpty", [](InputSheet& s) { s.sgf = ""; s.sgb = ""; },
     "Incomplete fluid data (Flowing Specific Gravity, Base Specific Gravity)."},
    {"DensityEmpty", [](InputSheet& s) { s.sgCalculated = true; s.sgf = ""; },
     "Incomplete fluid data (Operating Density)."},
    {"BaseAndDensityEmpty", [](InputSheet& s) { s.sgCalculated = true; s.sgb = ""; },
     "Incomplete fluid data (Base Specific Gravity, Operating Density)."},
    {"EmptyBeforeNonNumeric", [](InputSheet& s) { s.sgf = "x"; s.sgb = ""; },
     "Incomplete fluid data (Base Specific Gravity)."},
    // Numeric.
    {"FlowingNotNumeric", [](InputSheet& s) { s.sgf = "1,2"; },
     "Non-Numeric fluid data (Flowing Specific Gravity)."},
    {"BothNotNumeric", [](InputSheet& s) { s.sgf = "x"; s.sgb = "--1"; },
     "Non-Numeric fluid data (Flowing Specific Gravity, Base Specific Gravity)."},
    {"BlankIsNotEmptyButNotNumeric", [](InputSheet& s) { s.sgb = " "; },
     "Non-Numeric fluid data (Base Specific Gravity)."},
    {"BaseAndDensityNotNumeric",
     [](InputSheet& s) { s.sgCalculated = true; s.sgb = "x"; s.density = "y"; },
     "Non-Numeric fluid data (Base Specific Gravity, Operating Density)."},
    {"NonNumericBeforeZero", [](InputSheet& s) { s.sgf = "0"; s.sgb = "x"; },
     "Non-Numeric fluid data (Base Specific Gravity)."},
    // Positive.
    {"FlowingZero", [](InputSheet& s) { s.sgf = "0"; },
     "Flowing Specific Gravity must be greater than 0."},
    {"BaseNegative", [](InputSheet& s) { s.sgb = "-0.5"; },
     "Base Specific Gravity must be greater than 0."},
    {"BothZero", [](InputSheet& s) { s.sgf = "0"; s.sgb = "0"; },
     "Flowing Specific Gravity, Base Specific Gravity must be greater than 0."},
    {"BaseAndDensityZero",
     [](InputSheet& s) { s.sgCalculated = true; s.sgb = "0"; s.density = "-3"; },
     "Base Specific Gravity, Operating Density must be greater than 0."},
    // What is not required is not looked at.
    {"HiddenBaseEmpty", [](InputSheet& s) { s.sgbVisible = false; s.sgb = ""; }, ""},
    {"HiddenBaseZero", [](InputSheet& s) { s.sgbVisible = false; s.sgb = "0"; }, ""},
    {"DensityNotUsed", [](InputSheet& s) { s.density = "abc"; }, ""},
    {"CalculatedGravityMissing",
     [](InputSheet& s) { s.sgCalculated = true; s.density = "60"; s.sgf = ""; }, ""},
    {"CalculatedGood", [](InputSheet& s) { s.sgCalculated = true; s.density = "60"; }, ""},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(DataChecks, DataChkLiquidRow, ::testing::ValuesIn(kLiquidRows), kRowName);

class DataChkLiquidTest : public SheetTest {};

TEST_F(DataChkLiquidTest, StoresTheGravities) {
    InputSheet sheet = LiquidSheet();
    sheet.sgf = "0.82";
    sheet.sgb = "0.85";
    EXPECT_EQ(MessageOf(DataChkLiquid, sheet), "");
    EXPECT_EQ(module.working.FlowingSG, 0.82F);
    EXPECT_EQ(module.working.BaseSG, 0.85F);
    // Nothing else is its business.
    EXPECT_EQ(module.working.OperPress, 0.0F);
    EXPECT_EQ(module.working.OperDensity, 0.0F);
}

TEST_F(DataChkLiquidTest, AHiddenBaseGravityIsNotStored) {
    InputSheet sheet = LiquidSheet();
    module.working.BaseSG = 7.0F;
    sheet.sgbVisible = false;
    sheet.sgb = "0.9";
    EXPECT_EQ(MessageOf(DataChkLiquid, sheet), "");
    EXPECT_EQ(module.working.BaseSG, 7.0F);
}

TEST_F(DataChkLiquidTest, ACalculatedGravityThatIsMissingCountsAsZero) {
    InputSheet sheet = LiquidSheet();
    module.working.FlowingSG = 7.0F;
    sheet.sgCalculated = true;
    sheet.density = "60";
    sheet.sgf = "";
    EXPECT_EQ(MessageOf(DataChkLiquid, sheet), "");
    EXPECT_EQ(module.working.FlowingSG, 0.0F);
}

TEST_F(DataChkLiquidTest, ABadSheetLeavesTheWorkingValues) {
    module.working.FlowingSG = 3.0F;
    module.working.BaseSG = 4.0F;
    InputSheet sheet = LiquidSheet();
    sheet.sgb = "0";
    EXPECT_NE(MessageOf(DataChkLiquid, sheet), "");
    EXPECT_EQ(module.working.FlowingSG, 3.0F);
    EXPECT_EQ(module.working.BaseSG, 4.0F);
}

TEST_F(DataChkLiquidTest, NumbersAreReadInTheLocale) {
    Module1 german(platform, kGermany);
    InputSheet sheet = LiquidSheet();
    sheet.sgf = {"0,82", kGermany};
    sheet.sgb = {"0.85", kGermany};
    EXPECT_EQ(DataChkLiquid(sheet, {}, german).message,
              "Non-Numeric fluid data (Base Specific Gravity).");
    sheet.sgb = {"0,85", kGermany};
    const CheckResult good = DataChkLiquid(sheet, {}, german);
    EXPECT_EQ(good.status(), kDataGood);
    EXPECT_EQ(good.working.FlowingSG, 0.82F);
}

}  // namespace

}  // namespace tarvix
