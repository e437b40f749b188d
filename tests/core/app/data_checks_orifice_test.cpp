// The check of flow rate, differential pressure and beta, and the standard range of beta.
#include "app/sheet/data_checks.h"
#include "app/sheet/warning_rules.h"
#include "app/sheets.h"
#include "named_row.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tarvix {

namespace {

using namespace testing;

// Takes what the checks of the fluids take.
constexpr auto kOrificeCheck = [](const InputSheet& sheet, const WorkingValues& before,
                                  const Module1& /*module*/) {
    return OrificeDataCheck(sheet, before);
};

class OrificeDataCheckRow : public SheetRowTest {};

TEST_P(OrificeDataCheckRow, SaysWhatIsWrong) {
    InputSheet sheet = LiquidSheet(SolveFor::Beta);
    GetParam().change(sheet);
    EXPECT_EQ(MessageOf(kOrificeCheck, sheet), GetParam().message);
}

// clang-format off
const SheetRow kOrificeRows[] = {
    {"Good", [](InputSheet&) {}, ""},
    {"GoodFlowRate", [](InputSheet& s) { s.mode = SolveFor::FlowRate; }, ""},
    {"GoodDiffPressure", [](InputSheet& s) { s.mode = SolveFor::DiffPressure; }, ""},
    {"GoodWithoutMode", [](InputSheet& s) { s.mode.reset(); }, ""},
    // The field being edited.
    {"EditedFlowNotNumeric",
     [](InputSheet& s) { s.activeField = Field::Flow; s.flow = "x"; },
     "Non-Numeric Flow Rate data."},
    {"EditedDiffPressureNotNumeric",
     [](InputSheet& s) { s.activeField = Field::DeltaP; s.deltaP = "x"; },
     "Non-Numeric Differential Pressure data."},
    {"EditedBetaNotNumeric",
     [](InputSheet& s) { s.mode = SolveFor::FlowRate; s.activeField = Field::Beta; s.beta = "x"; },
     "Non-Numeric Beta Ratio data."},
    {"EditedFlowZero",
     [](InputSheet& s) { s.activeField = Field::Flow; s.flow = "0"; },
     "The Flow Rate must be greater than 0."},
    {"EditedDiffPressureNegative",
     [](InputSheet& s) { s.activeField = Field::DeltaP; s.deltaP = "-1"; },
     "The Differential Pressure must be greater than 0."},
    {"EditedBetaZero",
     [](InputSheet& s) { s.mode = SolveFor::FlowRate; s.activeField = Field::Beta; s.beta = "0"; },
     "The Beta Ratio must be greater than 0."},
    {"EditedEmptyGoesToTheList",
     [](InputSheet& s) { s.activeField = Field::Flow; s.flow = ""; },
     "Incomplete or Non-Numeric fluid data (Flow Rate)."},
    {"EditedBeforeTheSet",
     [](InputSheet& s) { s.activeField = Field::DeltaP; s.deltaP = "x"; s.flow = ""; },
     "Non-Numeric Differential Pressure data."},
    {"EditedGoodOtherEmpty",
     [](InputSheet& s) { s.activeField = Field::DeltaP; s.flow = ""; },
     "Incomplete or Non-Numeric fluid data (Flow Rate)."},
    {"EditedBoreIsNotItsField",
     [](InputSheet& s) { s.activeField = Field::OriBoreDia; s.flow = "0"; },
     "Fluid data (Flow Rate) must be greater than 0."},
    // Incomplete and non-numeric together.
    {"FlowEmpty", [](InputSheet& s) { s.flow = ""; },
     "Incomplete or Non-Numeric fluid data (Flow Rate)."},
    {"BothBad", [](InputSheet& s) { s.flow = ""; s.deltaP = "x"; },
     "Incomplete or Non-Numeric fluid data (Flow Rate, Differential Pressure)."},
    {"DiffPressureAndBetaEmpty",
     [](InputSheet& s) { s.mode = SolveFor::FlowRate; s.deltaP = ""; s.beta = ""; },
     "Incomplete or Non-Numeric fluid data (Differential Pressure, Beta Ratio)."},
    {"FlowAndBetaEmpty",
     [](InputSheet& s) { s.mode = SolveFor::DiffPressure; s.flow = ""; s.beta = "-"; },
     "Incomplete or Non-Numeric fluid data (Flow Rate, Beta Ratio)."},
    {"AllEmptyWithoutMode",
     [](InputSheet& s) { s.mode.reset(); s.flow = ""; s.deltaP = ""; s.beta = ""; },
     "Incomplete or Non-Numeric fluid data (Flow Rate, Differential Pressure, Beta Ratio)."},
    {"NonNumericBeforeZero", [](InputSheet& s) { s.flow = "0"; s.deltaP = "x"; },
     "Incomplete or Non-Numeric fluid data (Differential Pressure)."},
    {"FlowOverflows", [](InputSheet& s) { s.flow = "1e50"; },
     "Incomplete or Non-Numeric fluid data (Flow Rate)."},
    // Positive.
    {"FlowZeroWhileAnotherFieldIsEdited",
     [](InputSheet& s) { s.activeField = Field::DeltaP; s.flow = "0"; },
     "Fluid data (Flow Rate) must be greater than 0."},
    {"BothZero", [](InputSheet& s) { s.flow = "0"; s.deltaP = "-5"; },
     "Fluid data (Flow Rate, Differential Pressure) must be greater than 0."},
    {"DiffPressureAndBetaZero",
     [](InputSheet& s) { s.mode = SolveFor::FlowRate; s.deltaP = "0"; s.beta = "0"; },
     "Fluid data (Differential Pressure, Beta Ratio) must be greater than 0."},
    // The result of the mode is never tested.
    {"FlowIsTheResult",
     [](InputSheet& s) { s.mode = SolveFor::FlowRate; s.flow = "abc"; }, ""},
    {"EditedFlowIsTheResult",
     [](InputSheet& s) { s.mode = SolveFor::FlowRate; s.activeField = Field::Flow; s.flow = "x"; }, ""},
    {"DiffPressureIsTheResult",
     [](InputSheet& s) { s.mode = SolveFor::DiffPressure; s.deltaP = "0"; }, ""},
    {"EditedDiffPressureIsTheResult",
     [](InputSheet& s) {
         s.mode = SolveFor::DiffPressure; s.activeField = Field::DeltaP; s.deltaP = "0"; }, ""},
    {"BetaIsTheResult", [](InputSheet& s) { s.beta = ""; }, ""},
    {"EditedBetaIsTheResult",
     [](InputSheet& s) { s.activeField = Field::Beta; s.beta = "-1"; }, ""},
    // Beta has no upper bound here.
    {"BetaAboveOneIsGood",
     [](InputSheet& s) { s.mode = SolveFor::FlowRate; s.beta = "1.5"; }, ""},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(DataChecks, OrificeDataCheckRow, ::testing::ValuesIn(kOrificeRows),
                         kRowName);

class OrificeDataCheckTest : public SheetTest {};

TEST_F(OrificeDataCheckTest, StoresNothing) {
    module.working = {1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(MessageOf(kOrificeCheck, LiquidSheet(SolveFor::Beta)), "");
    EXPECT_EQ(module.working.FlowingSG, 1.0F);
    EXPECT_EQ(module.working.UserZf, 8.0F);
}

// Standard range of beta --------------------------------------------------------------------------

TEST(BetaRangeTest, TheWarning) {
    EXPECT_EQ(kBetaRangeWarning,
              "Warning: Beta value exceeds standard range"
              " (0.15 to 0.67).");
}

TEST(BetaRangeTest, TheBoundsAreInside) {
    EXPECT_FALSE(IsBetaOutsideStandardRange("0.15"));
    EXPECT_FALSE(IsBetaOutsideStandardRange("0.67"));
    EXPECT_FALSE(IsBetaOutsideStandardRange("0.5"));
    EXPECT_TRUE(IsBetaOutsideStandardRange("0.14999"));
    EXPECT_TRUE(IsBetaOutsideStandardRange("0.67001"));
    EXPECT_TRUE(IsBetaOutsideStandardRange("0.7"));
    EXPECT_TRUE(IsBetaOutsideStandardRange("0"));
    EXPECT_TRUE(IsBetaOutsideStandardRange("-1"));
}

TEST(BetaRangeTest, TheBoundsAreSingles) {
    const auto text = [](float value) {
        return FormatNumber(double{value}, 9, kUnitedStates, Grouping::Off);
    };
    EXPECT_TRUE(IsBetaOutsideStandardRange({text(std::nextafter(0.15F, 0.0F)), kUnitedStates}));
    EXPECT_FALSE(IsBetaOutsideStandardRange({text(std::nextafter(0.15F, 1.0F)), kUnitedStates}));
    EXPECT_FALSE(IsBetaOutsideStandardRange({text(std::nextafter(0.67F, 0.0F)), kUnitedStates}));
    EXPECT_TRUE(IsBetaOutsideStandardRange({text(std::nextafter(0.67F, 1.0F)), kUnitedStates}));
}

TEST(BetaRangeTest, WhatIsNoNumberIsNotOutside) {
    EXPECT_FALSE(IsBetaOutsideStandardRange(""));
    EXPECT_FALSE(IsBetaOutsideStandardRange("abc"));
    EXPECT_FALSE(IsBetaOutsideStandardRange("0,7"));
    EXPECT_TRUE(IsBetaOutsideStandardRange({"0,7", kGermany}));
}

}  // namespace

}  // namespace tarvix
