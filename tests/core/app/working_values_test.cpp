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
    // The sheet, checked after kBefore, is good and leaves `expected`.
    template <typename Check>
    void ExpectStored(Check check, const InputSheet& sheet, const WorkingValues& expected) {
        const CheckResult result = check(sheet, kBefore, module);
        EXPECT_EQ(result.status(), kDataGood) << result.message;
        EXPECT_EQ(ValuesOf(result.working), ValuesOf(expected));
    }
    template <typename Check>
    void ExpectLeft(Check check, const InputSheet& sheet) {
        const CheckResult result = check(sheet, kBefore, module);
        EXPECT_EQ(result.status(), kDataBad);
        EXPECT_EQ(ValuesOf(result.working), ValuesOf(kBefore));
    }
};

TEST_F(WorkingValuesTest, StatusesAndPressure) {
    EXPECT_EQ(kDataGood, 1);
    EXPECT_EQ(kDataBad, 2);
    EXPECT_EQ(kAtmosphericPressurePsi, 14.7F);
}

TEST_F(WorkingValuesTest, OfALiquid) {
    InputSheet sheet = LiquidSheet();
    sheet.sgf = "0.82";
    sheet.sgb = "0.85";
    WorkingValues expected = kBefore;
    expected.FlowingSG = 0.82F;
    expected.BaseSG = 0.85F;
    ExpectStored(DataChkLiquid, sheet, expected);
    sheet.sgbVisible = false;
    expected.BaseSG = kBefore.BaseSG;
    ExpectStored(DataChkLiquid, sheet, expected);
    // A calculated gravity that is not there counts as zero.
    sheet.sgCalculated = true;
    sheet.density = "60";
    sheet.sgf = "";
    expected.FlowingSG = 0;
    ExpectStored(DataChkLiquid, sheet, expected);
    sheet.density = "0";
    ExpectLeft(DataChkLiquid, sheet);
}

TEST_F(WorkingValuesTest, OfALiquidInTheLocale) {
    Module1 german(platform, kGermany);
    InputSheet sheet = LiquidSheet();
    sheet.sgf = {"0,82", kGermany};
    sheet.sgb = {"0.85", kGermany};
    EXPECT_EQ(DataChkLiquid(sheet, {}, german).message,
              "Non-Numeric fluid data (Base Specific Gravity).");
    sheet.sgb = {"0,85", kGermany};
    EXPECT_EQ(DataChkLiquid(sheet, {}, german).working.FlowingSG, 0.82F);
}

TEST_F(WorkingValuesTest, OfSteam) {
    InputSheet sheet = SteamSheet();
    sheet.pressUnit = UnitNamed(kPressUnits, "kPa");
    sheet.densityUnit = UnitNamed(kDensityUnits, "kg/cubic meter");
    sheet.pf = "700";
    sheet.density = "4.1";
    WorkingValues expected = kBefore;
    expected.OperPress = 700.0F * 0.1450378F;
    expected.BasePress = 14.7F;
    expected.OperDensity = 4.1F * 0.06242798F;
    ExpectStored(DataChkSteam, sheet, expected);
    sheet.density = "0";
    ExpectLeft(DataChkSteam, sheet);
}

// The correction decides what the third entry of a gas is.
TEST_F(WorkingValuesTest, OfAGas) {
    InputSheet sheet = GasSheet();
    sheet.tf = "75.5";
    sheet.gasSGb = "0.6";
    sheet.pressUnit = UnitNamed(kPressUnits, "bar");
    sheet.pf = "7";
    WorkingValues expected = kBefore;
    expected.FlowTempF = 75.5F;
    expected.BaseTempF = 60.0F;
    expected.BaseSG = 0.6F;
    expected.OperPress = 7.0F * 14.5039F;
    expected.BasePress = 14.7F;
    ExpectStored(DataChkGas, sheet, expected);

    sheet.compCorrection = CompCorrection::Zf;
    sheet.zfVisible = true;
    sheet.zf = "0.9";
    expected.UserZf = 0.9F;
    ExpectStored(DataChkGas, sheet, expected);

    sheet.compCorrection = CompCorrection::Density;
    sheet.zf = "10";
    sheet.zfDensityUnit = UnitNamed(kDensityUnits, "kg/cubic meter");
    sheet.densityUnit = {"none of its business", 1000.0F};
    expected.UserZf = kBefore.UserZf;
    expected.OperDensity = 0.6242798F;
    ExpectStored(DataChkGas, sheet, expected);

    sheet.gasSGbVisible = false;
    expected.BaseSG = kBefore.BaseSG;
    ExpectStored(DataChkGas, sheet, expected);
    sheet.zf = "0";
    ExpectLeft(DataChkGas, sheet);
}

TEST_F(WorkingValuesTest, OfAGasInCelsius) {
    InputSheet sheet = GasSheet();
    sheet.degC = true;
    sheet.tf = "100";
    EXPECT_EQ(DataChkGas(sheet, {}, module).working.FlowTempF, 212.0F);
    sheet.tf = "-40";
    EXPECT_EQ(DataChkGas(sheet, {}, module).working.FlowTempF, -40.0F);
}

TEST_F(WorkingValuesTest, OfTheRunAreNone) {
    const auto check = [](const InputSheet& sheet, const WorkingValues& before, Module1&) {
        return OrificeDataCheck(sheet, before);
    };
    ExpectStored(check, LiquidSheet(SolveFor::Beta), kBefore);
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
