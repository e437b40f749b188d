// One recalculation: from the texts of a sheet to the text of the result.
#include "app/sheet/solve_sheet.h"
#include "app/sheets.h"
#include "fatal_errors.h"
#include "named_row.h"

#include <gtest/gtest.h>
#include <string>
#include <tuple>

namespace tarvix::testing {
namespace {

class CalculationTest : public SheetTest {
  protected:
    template <typename Action>
    void ExpectFatal(const char* cause, Action action) {
        module.MsgText = "";
        EXPECT_EQ(FatalBoxOf(platform, action).text, FatalText(cause));
    }

    // Checks and solves a sheet that must be good, and keeps what the checks find, as the window
    // does.
    static CalculationResult Solve(const InputSheet& sheet, Module1& module) {
        const CheckResult check = CheckInputs(sheet, module.working, module);
        EXPECT_EQ(check.status(), kDataGood) << check.message;
        module.working = check.working;
        return CalculateResult(sheet, module.working, module);
    }
    CalculationResult Solve(const InputSheet& sheet) { return Solve(sheet, module); }
    void ExpectResult(const InputSheet& sheet, const std::string& text,
                      const std::string& message = "") {
        const CalculationResult result = Solve(sheet);
        EXPECT_EQ(result.text, text);
        EXPECT_EQ(result.message, message);
    }
    void ExpectBad(const InputSheet& sheet, const std::string& message) {
        EXPECT_EQ(CheckInputs(sheet, module.working, module).message, message);
    }
};

constexpr auto kFluidSheets = {LiquidSheet, SteamSheet, GasSheet};

struct ResultRow : NamedRow {
    InputSheet (*sheet)(SolveFor mode);
    void (*change)(InputSheet& sheet);
    const char* flow;
    const char* deltaP;
    const char* beta;
};

class CalculationRow : public CalculationTest, public ::testing::WithParamInterface<ResultRow> {};

TEST(InputSheetTest, AUnitThatIsNotSelectedConvertsNothing) {
    const InputSheet sheet;
    for (const SelectedUnit& unit : {sheet.flowUnit, sheet.timeUnit, sheet.deltaPUnit,
                                     sheet.pressUnit, sheet.densityUnit, sheet.zfDensityUnit}) {
        EXPECT_EQ(unit.text, "");
        EXPECT_EQ(unit.factor, 1.0F);
    }
}

TEST_P(CalculationRow, GivesTheTextOfEachResult) {
    for (const auto& [mode, text] : {std::pair{SolveFor::FlowRate, GetParam().flow},
                                     std::pair{SolveFor::DiffPressure, GetParam().deltaP},
                                     std::pair{SolveFor::Beta, GetParam().beta}}) {
        InputSheet sheet = GetParam().sheet(mode);
        GetParam().change(sheet);
        ExpectResult(sheet, text);
    }
}

// clang-format off
const ResultRow kResultRows[] = {
    // Liquid: 4.026 inches, 100 inches of water, beta 0.5, 140 gallons a minute unless said.
    {"LiquidGallonsPerMinute", LiquidSheet, [](InputSheet& s) { s.flow = "142.3"; },
     "142.3", "100.0", "0.50002"},
    {"LiquidBarrelsPerDayKilopascal", LiquidSheet,
     [](InputSheet& s) {
         SelectFlow(s, "Barrels", "Day"); s.flow = "5,000"; s.sgf = ".82"; s.sgb = ".85";
         s.deltaPUnit = UnitNamed(kDeltaPUnits, "kPa"); s.deltaP = "25"; },
     "5,209", "23.04", "0.49049"},
    {"LiquidKilogramsPerSecond", LiquidSheet,
     [](InputSheet& s) { SelectFlow(s, "Kilograms", "Second"); s.flow = "9"; s.sgf = "0.9"; s.sgb = "3"; },
     "8.499", "112.1", "0.51356"},
    {"LiquidPascal", LiquidSheet,
     [](InputSheet& s) { s.deltaPUnit = UnitNamed(kDeltaPUnits, "Pa"); s.deltaP = "0.02"; },
     "127.5", "0.02410", "0.52218"},
    // Steam at 100 psi gauge, 1000 pounds an hour.
    {"SteamPoundsPerHour", SteamSheet, [](InputSheet&) {}, "4,522", "4.794", "0.23871"},
    {"SteamKilogramsPerMinuteMbar", SteamSheet,
     [](InputSheet& s) {
         SelectFlow(s, "Kilograms", "Minute"); s.flow = "30";
         s.deltaPUnit = UnitNamed(kDeltaPUnits, "mbar"); s.deltaP = "250"; },
     "34.26", "190.8", "0.46960"},
    {"SteamKilopascalAndMetricDensity", SteamSheet,
     [](InputSheet& s) {
         s.absolutePressure = true; s.pf = "700"; s.pressUnit = UnitNamed(kPressUnits, "kPa");
         s.density = "4"; s.densityUnit = UnitNamed(kDensityUnits, "kg/cubic meter"); },
     "4,451", "4.936", "0.24059"},
    // Air at 60 deg F and 100 psi gauge.
    {"GasTwoInchesThereAndBack", GasSheet,
     [](InputSheet& s) { s.pipeDiameter = "2.067"; s.flow = "570,361"; }, "570,361", "100.00", "0.50000"},
    {"GasCubicMetersPerHourMercury", GasSheet,
     [](InputSheet& s) {
         SelectFlow(s, "Standard Cubic Meters", "Hour"); s.flow = "2000";
         s.deltaPUnit = UnitNamed(kDeltaPUnits, "mm of Mercury"); s.deltaP = "150"; },
     "2,292", "113.7", "0.46876"},
    {"GasKilogramsPerMinuteZf", GasSheet,
     [](InputSheet& s) {
         SelectFlow(s, "Kilograms", "Minute"); s.flow = "40";
         s.compCorrection = CompCorrection::Zf; s.zfVisible = true; s.zf = "0.92"; },
     "54.26", "53.81", "0.43236"},
    {"GasKilogramsPerHourMetricDensity", GasSheet,
     [](InputSheet& s) {
         SelectFlow(s, "Kilograms", "Hour"); s.flow = "2500"; s.gasSGbVisible = false; s.gasSGb = "";
         s.compCorrection = CompCorrection::Density; s.zfVisible = true; s.zf = "10";
         s.zfDensityUnit = UnitNamed(kDensityUnits, "kg/cubic meter"); },
     "3,197", "60.65", "0.44484"},
    {"GasAbsoluteCelsius", GasSheet,
     [](InputSheet& s) {
         s.absolutePressure = true; s.pf = "50"; s.degC = true; s.tf = "20"; s.gasSGb = "0.6";
         s.flow = "900000"; s.deltaP = "40"; },
     "1,158,603", "23.95", "0.44341"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Calculation, CalculationRow, ::testing::ValuesIn(kResultRows), kRowName);

TEST_F(CalculationTest, AMassFlowUnitMakesTheBaseGravityOneForThisCalculation) {
    InputSheet sheet = LiquidSheet();
    sheet.sgb = "2";
    const std::string volume = Solve(sheet).text;
    EXPECT_EQ(volume, "71.14");  // half of 142.29
    SelectFlow(sheet, "Pounds", "Minute");
    const std::string pounds = Solve(sheet).text;
    EXPECT_EQ(module.working.BaseSG, 2.0F) << "what the check found stays";
    sheet.sgb = "1";
    EXPECT_EQ(Solve(sheet).text, pounds);
    sheet.sgb = "2";
    SelectFlow(sheet, "Gallons", "Minute");
    EXPECT_EQ(Solve(sheet).text, volume);
    EXPECT_EQ(module.working.BaseSG, 2.0F);
}

TEST_F(CalculationTest, NumbersAreReadAndWrittenInTheLocale) {
    Module1 german(platform, kGermany);
    InputSheet sheet = GasSheet();
    sheet.pipeDiameter = {"2,067", kGermany};
    sheet.beta = {"0,5", kGermany};
    EXPECT_EQ(Solve(sheet, german).text, "570.361");
    sheet.mode = SolveFor::Beta;
    sheet.flow = {"570.361", kGermany};
    EXPECT_EQ(Solve(sheet, german).text, "0,50000");
}

TEST_F(CalculationTest, ALiquidFlowTooHighForThePipe) {
    InputSheet sheet = LiquidSheet(SolveFor::Beta);
    sheet.flow = "100000";
    ExpectResult(sheet, "",
                 "Flow rate is out of range (beta > 0.95). Flow rate too high for pipe size.");
}

// Each fluid has its own check; that of the run follows a good one only.
TEST_F(CalculationTest, TheOrificeCheckFollowsAGoodFluidCheckOnly) {
    for (auto [sheet, entry, missing] :
         {std::tuple{LiquidSheet(), &InputSheet::sgf, "Flowing Specific Gravity"},
          std::tuple{SteamSheet(), &InputSheet::pf, "Operating Pressure"},
          std::tuple{GasSheet(), &InputSheet::pf, "Op. Pressure"}}) {
        sheet.deltaP = "";
        ExpectBad(sheet, "Incomplete or Non-Numeric fluid data (Differential Pressure).");
        sheet.*entry = "";
        ExpectBad(sheet, "Incomplete fluid data (" + std::string(missing) + ").");
    }
}

TEST_F(CalculationTest, AnUnknownFluidEndsTheProgram) {
    for (const char* fluid : {"", "X", "l", "s", "g", "LS"}) {
        module.FluidType = fluid;
        ExpectFatal("Orifice type not specified", [&] { module.CurrentFluid(); });
        constexpr const char* kCause = "Orifice flow type not specified.";
        ExpectFatal(kCause, [&] { module.CurrentFluid(kCause); });
    }
    for (const auto& [code, fluid] : {std::pair{"L", Fluid::Liquid}, std::pair{"G", Fluid::Gas},
                                      std::pair{"S", Fluid::Steam}}) {
        module.FluidType = code;
        EXPECT_EQ(module.CurrentFluid(), fluid);
    }
}

TEST_F(CalculationTest, WithoutAModeTheProgramEnds) {
    for (const auto sheetOf : kFluidSheets) {
        InputSheet sheet = sheetOf(SolveFor::FlowRate);
        sheet.mode.reset();
        ExpectFatal("No variable to calculate has been selected.", [&] { Solve(sheet); });
    }
}

TEST_F(CalculationTest, AGasFlowOfUnknownKindEndsTheProgram) {
    constexpr const char* kCause = "Mass or Volumetric flow type not specified.";
    InputSheet sheet = GasSheet();
    sheet.flowKind.reset();
    ExpectFatal(kCause, [&] { CalculateResult(sheet, module.working, module); });
    // It is found before the missing mode is.
    sheet.mode.reset();
    ExpectFatal(kCause, [&] { CalculateResult(sheet, module.working, module); });
}

}  // namespace
}  // namespace tarvix::testing
