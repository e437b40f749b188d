// The second solver on the worked examples of docs/method.md, whose figures are worked out by hand,
// and what it makes of texts and units.
#include "tests/docs/double_solver.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace tarvix::accuracy {

namespace {

class DoubleSolver : public ::testing::Test {
  protected:
    static InputSheet SheetOf(tarvix::Fluid fluid, FlowKind kind, const char* flowUnit,
                              const char* timeUnit) {
        InputSheet sheet;
        sheet.fluid = fluid;
        sheet.mode = SolveFor::FlowRate;
        sheet.flowKind = kind;
        sheet.flowUnit = {flowUnit, 0};
        sheet.timeUnit = {timeUnit, 0};
        sheet.deltaPUnit = {"Inches Water", 0};  // the solver takes no factor from the sheet
        sheet.pressUnit = {"PSI", 0};
        sheet.densityUnit = {"lb/cubic foot", 0};
        sheet.pipeDiameter = "4.026";
        sheet.deltaP = "100";
        sheet.beta = "0.5";
        return sheet;
    }

    UnitFactors units_{TARVIX_UNITS};
};

}  // namespace

TEST_F(DoubleSolver, LiquidExample) {
    InputSheet sheet = SheetOf(tarvix::Fluid::Liquid, FlowKind::Volume, "Gallons", "Minute");
    sheet.sgf = "1";
    sheet.sgb = "1";
    EXPECT_NEAR(ExactResult(sheet, units_), 142.2869, 5e-5);
    sheet.flow = "142.3";
    EXPECT_NEAR(ExactResult(sheet, SolveFor::Beta, units_), 0.5000215, 5e-8);
    EXPECT_NEAR(ExactResult(sheet, SolveFor::DiffPressure, units_), 100.0184, 5e-5);
    sheet.timeUnit = {"Hour", 0};
    EXPECT_NEAR(ExactResult(sheet, units_), 142.2869 * 60, 3e-3);
}

TEST_F(DoubleSolver, GasExample) {
    InputSheet sheet = SheetOf(tarvix::Fluid::Gas, FlowKind::Volume, "Standard Cubic Feet", "Day");
    sheet.pipeDiameter = "2.067";
    sheet.pf = "100";
    sheet.tf = "60";
    sheet.gasSGb = "1";
    EXPECT_NEAR(ExactResult(sheet, units_), 570361.3, 0.06);
    sheet.absolutePressure = true;
    sheet.pf = "114.7";
    sheet.degC = true;
    sheet.tf = "15.5555556";
    EXPECT_NEAR(ExactResult(sheet, units_), 570361.3, 0.06);
}

TEST_F(DoubleSolver, SteamExample) {
    InputSheet sheet = SheetOf(tarvix::Fluid::Steam, FlowKind::Mass, "Pounds", "Hour");
    sheet.pf = "100";
    sheet.density = "0.25704";
    EXPECT_NEAR(ExactResult(sheet, units_), 4521.639, 5e-4);
    sheet.flow = "7,000";
    EXPECT_NEAR(ExactResult(sheet, SolveFor::Beta, units_), 0.6094046, 3e-7);
}

TEST_F(DoubleSolver, WhatIsNoNumberAndNoUnit) {
    EXPECT_EQ(ValueOfText("1,234.5"), 1234.5);
    EXPECT_THROW(ValueOfText("12x"), std::runtime_error);
    EXPECT_THROW(ValueOfText(""), std::runtime_error);
    EXPECT_THROW((void)units_.Of("press", "furlong"), std::runtime_error);
    EXPECT_THROW({ const UnitFactors none("no such file"); }, std::runtime_error);
}

}  // namespace tarvix::accuracy
