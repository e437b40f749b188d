// What the checks store of a good sheet, and that they leave what stands of a bad one.
#include "app/sheet/data_checks.h"
#include "app/sheet/warning_rules.h"
#include "app/sheets.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace tarvix::testing {
namespace {

constexpr WorkingValues kBefore{1, 2, 3, 4, 5, 6, 7, 8};

std::vector<float> ValuesOf(const WorkingValues& working) {
    return {working.FlowingSG, working.BaseSG,    working.FlowTempF,   working.BaseTempF,
            working.OperPress, working.BasePress, working.OperDensity, working.UserZf};
}

class WorkingValuesTest : public SheetTest {
  protected:
    // What the checks of a sheet leave after kBefore, in the order of ValuesOf.
    void ExpectStored(const InputSheet& sheet, const std::vector<float>& expected,
                      int status = kDataGood) {
        const CheckResult result = CheckInputs(sheet, kBefore, module);
        EXPECT_EQ(result.status(), status) << result.message;
        EXPECT_EQ(ValuesOf(result.working), expected);
    }
    void ExpectLeft(const InputSheet& sheet) { ExpectStored(sheet, ValuesOf(kBefore), kDataBad); }
};

TEST_F(WorkingValuesTest, StartAtZero) {
    EXPECT_EQ(ValuesOf(module.working), std::vector<float>(8));
    EXPECT_EQ(kDataGood, 1);
    EXPECT_EQ(kDataBad, 2);
}

TEST_F(WorkingValuesTest, OfALiquid) {
    InputSheet sheet = LiquidSheet();
    sheet.sgf = "0.82";
    sheet.sgb = "0.85";
    ExpectStored(sheet, {0.82F, 0.85F, 3, 4, 5, 6, 7, 8});
    sheet.sgbVisible = false;
    ExpectStored(sheet, {0.82F, 2, 3, 4, 5, 6, 7, 8});
    // A calculated gravity that is not there counts as zero.
    sheet.sgCalculated = true;
    sheet.density = "60";
    sheet.sgf = "";
    ExpectStored(sheet, {0, 2, 3, 4, 5, 6, 7, 8});
    sheet.density = "0";
    ExpectLeft(sheet);
}

TEST_F(WorkingValuesTest, OfSteam) {
    InputSheet sheet = SteamSheet();
    sheet.pressUnit = UnitNamed(kPressUnits, "kPa");
    sheet.densityUnit = UnitNamed(kDensityUnits, "kg/cubic meter");
    sheet.pf = "700";
    sheet.density = "4.1";
    ExpectStored(sheet, {1, 2, 3, 4, 700.0F * 0.1450378F, 14.7F, 4.1F * 0.06242798F, 8});
    sheet.density = "0";
    ExpectLeft(sheet);
}

// The correction decides what the third entry of a gas is.
TEST_F(WorkingValuesTest, OfAGas) {
    constexpr float kPsi = 7.0F * 14.5039F;
    InputSheet sheet = GasSheet();
    sheet.degC = true;
    sheet.tf = "100";
    sheet.gasSGb = "0.6";
    sheet.pressUnit = UnitNamed(kPressUnits, "bar");
    sheet.pf = "7";
    ExpectStored(sheet, {1, 0.6F, 212, 60, kPsi, 14.7F, 7, 8});
    sheet.compCorrection = CompCorrection::Zf;
    sheet.zfVisible = true;
    sheet.zf = "0.9";
    ExpectStored(sheet, {1, 0.6F, 212, 60, kPsi, 14.7F, 7, 0.9F});
    sheet.compCorrection = CompCorrection::Density;
    sheet.gasSGbVisible = false;
    sheet.zf = "10";
    sheet.zfDensityUnit = UnitNamed(kDensityUnits, "kg/cubic meter");
    sheet.densityUnit = {"none of its business", 1000.0F};
    ExpectStored(sheet, {1, 2, 212, 60, kPsi, 14.7F, 0.6242798F, 8});
    sheet.zf = "0";
    ExpectLeft(sheet);
}

TEST(BetaRangeTest, TheBoundsAreInsideAndSingles) {
    const auto outside = [](float beta) {
        const std::string text = FormatNumber(double{beta}, 9, kUnitedStates, Grouping::Off);
        return IsBetaOutsideStandardRange({text, kUnitedStates});
    };
    for (const float inside :
         {0.15F, std::nextafter(0.15F, 1.0F), 0.5F, std::nextafter(0.67F, 0.0F), 0.67F}) {
        EXPECT_FALSE(outside(inside)) << inside;
    }
    for (const float beyond :
         {-1.0F, 0.0F, std::nextafter(0.15F, 0.0F), std::nextafter(0.67F, 1.0F), 0.7F}) {
        EXPECT_TRUE(outside(beyond)) << beyond;
    }
    EXPECT_EQ(kBetaRangeWarning, "Warning: Beta value exceeds standard range (0.15 to 0.67).");
}

TEST(BetaRangeTest, WhatIsNoNumberIsNotOutside) {
    EXPECT_FALSE(IsBetaOutsideStandardRange(""));
    EXPECT_FALSE(IsBetaOutsideStandardRange("abc"));
    EXPECT_FALSE(IsBetaOutsideStandardRange("0,7"));
    EXPECT_TRUE(IsBetaOutsideStandardRange({"0,7", kGermany}));
}

}  // namespace
}  // namespace tarvix::testing
