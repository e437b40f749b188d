// There and back through the texts of the fields, in every unit: what is shown as a flow, typed
// back in, gives the differential pressure and the beta it came from, as far as its digits reach.
#include "app/sheet/derived_densities.h"
#include "app/sheet/solve_sheet.h"
#include "app/sheets.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>

namespace tarvix {

namespace {

using namespace testing;

double ValueOf(const std::string& text) {
    return TextToDouble(text, kUnitedStates).value_or(NAN);
}

// The largest relative error that rounding made when `text` was written.
double RoundingOf(const std::string& text) {
    const auto point = text.find('.');
    const auto decimals = point == std::string::npos ? 0 : text.size() - point - 1;
    return 0.5 * std::pow(10.0, -static_cast<double>(decimals)) / ValueOf(text);
}

class RoundTripUnits : public SheetTest {
  protected:
    std::string Solve(InputSheet sheet, SolveFor mode) {
        sheet.mode = mode;
        EXPECT_EQ(CheckAndKeep(sheet, module), kDataGood) << module.MsgText;
        const CalculationResult result = Solved(sheet, module);
        EXPECT_EQ(result.message, "");
        return result.text;
    }

    // True when the run's flow can be shown with enough digits to be solved back.
    bool ThereAndBack(const InputSheet& given) {
        InputSheet sheet = given;
        sheet.flow = {Solve(sheet, SolveFor::FlowRate), module.locale()};
        if (sheet.flow.empty() || !(ValueOf(sheet.flow.text()) > 0)) {
            return false;
        }
        const double flowError = RoundingOf(sheet.flow.text()) + 2e-6;
        if (flowError > 1e-3) {
            return false;
        }
        // Below the peak of the flow curve h changes at most three times as fast as the flow here,
        // and beta half as fast.
        const std::string deltaP = Solve(sheet, SolveFor::DiffPressure);
        EXPECT_NEAR(ValueOf(deltaP) / ValueOf(sheet.deltaP.text()), 1,
                    3 * flowError + RoundingOf(deltaP))
            << sheet.flow.text() << " " << sheet.flowUnit.text << " per " << sheet.timeUnit.text;
        const std::string beta = Solve(sheet, SolveFor::Beta);
        EXPECT_NEAR(ValueOf(beta) / ValueOf(sheet.beta.text()), 1,
                    0.6 * flowError + RoundingOf(beta))
            << sheet.flow.text() << " " << sheet.flowUnit.text << " per " << sheet.timeUnit.text;
        return true;
    }

    // Over all units and some pipes, betas and differential pressures of about 10 to 60 inches of
    // water. Returns how many runs went there and back.
    int Sweep(const InputSheet& given) {
        int runs = 0;
        InputSheet sheet = given;
        for (const FlowUnit& flowUnit : FlowUnitsOf(sheet.fluid).units) {
            for (const Unit& timeUnit : kTimeUnits) {
                SelectFlow(sheet, flowUnit.text, timeUnit.text);
                for (const Unit& deltaPUnit : kDeltaPUnits) {
                    sheet.deltaPUnit = deltaPUnit;
                    for (const float inches : {10.0F, 60.0F}) {
                        sheet.deltaP = {module.FormatEntry(inches / deltaPUnit.factor),
                                        module.locale()};
                        for (const char* pipe : {"0.824", "4.026", "23.250"}) {
                            sheet.pipeDiameter = pipe;
                            for (const char* beta : {"0.2", "0.5", "0.72"}) {
                                sheet.beta = beta;
                                runs += ThereAndBack(sheet) ? 1 : 0;
                            }
                        }
                    }
                }
            }
        }
        return runs;
    }
};

TEST_F(RoundTripUnits, Liquid) {
    InputSheet sheet = LiquidSheet();
    sheet.sgf = "0.82";
    sheet.sgb = "0.85";
    EXPECT_GT(Sweep(sheet), 8000);  // of 13 x 4 x 9 x 18
}

TEST_F(RoundTripUnits, Steam) {
    for (const char* pressure : {"5", "100", "600"}) {
        InputSheet sheet = SteamSheet();
        sheet.pf = pressure;
        sheet.density = {SteamDensityTextOf(sheet, module).density, module.locale()};
        EXPECT_GT(Sweep(sheet), 1200);  // of 2 x 4 x 9 x 18
    }
}

TEST_F(RoundTripUnits, GasWithEveryCorrectionAndPressureUnit) {
    int runs = 0;
    for (const Unit& pressUnit : kPressUnits) {
        for (const CompCorrection correction :
             {CompCorrection::None, CompCorrection::Density, CompCorrection::Zf}) {
            InputSheet sheet = GasSheet();
            sheet.pressUnit = pressUnit;
            sheet.absolutePressure = true;
            sheet.pf = {module.FormatEntry(150.0F / pressUnit.factor), module.locale()};
            sheet.gasSGb = "0.65";
            sheet.degC = true;
            sheet.tf = "-5";
            sheet.compCorrection = correction;
            sheet.zfVisible = correction != CompCorrection::None;
            sheet.zf = correction == CompCorrection::Zf ? "0.95" : "0.6";
            runs += Sweep(sheet);
        }
    }
    EXPECT_GT(runs, 24 * 2500);  // of 24 x 4 x 4 x 9 x 18
}

}  // namespace

}  // namespace tarvix
