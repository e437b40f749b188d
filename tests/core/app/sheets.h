// Complete input sheets of each fluid, to be spoiled or varied by tests.
#pragma once

#include "app/shared/module1.h"
#include "app/sheet/data_checks.h"
#include "app/sheet/input_sheet.h"
#include "app/sheet/solve_sheet.h"
#include "tests/core/locales.h"
#include "tests/core/recording_platform.h"
#include "units/flow_units.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace tarvix::testing {

// The unit of a list by its text; one that is not there is a fault of the test.
template <typename Units>
SelectedUnit UnitNamed(const Units& units, std::string_view text) {
    for (const auto& unit : units) {
        if (unit.text == text) {
            return {unit.text, unit.factor};
        }
    }
    ADD_FAILURE() << "no unit " << text;
    return {"", 0};
}

inline void SelectFlow(InputSheet& sheet, std::string_view flowUnit, std::string_view timeUnit) {
    for (const FlowUnit& unit : FlowUnitsOf(sheet.fluid).units) {
        if (unit.text == flowUnit) {
            sheet.flowKind = unit.kind;
            sheet.flowUnit = {unit.text, unit.factor};
        }
    }
    EXPECT_EQ(sheet.flowUnit.text, flowUnit) << "no such unit";
    sheet.timeUnit = UnitNamed(kTimeUnits, timeUnit);
}

// What every fluid has: a mode, a pipe, the first unit of each list.
inline InputSheet SheetOf(Fluid fluid, SolveFor mode) {
    InputSheet sheet;
    sheet.fluid = fluid;
    sheet.mode = mode;
    sheet.flow = "140";
    sheet.deltaP = "100";
    sheet.beta = "0.5";
    sheet.pipeDiameter = "4.026";
    sheet.deltaPUnit = kDeltaPUnits[0];
    sheet.pressUnit = kPressUnits[0];
    sheet.densityUnit = kDensityUnits[0];
    sheet.zfDensityUnit = kDensityUnits[0];
    const auto defaults = FlowUnitsOf(fluid);
    SelectFlow(sheet, defaults.defaultFlowUnit, defaults.defaultTimeUnit);
    return sheet;
}

// Water with typed gravities.
inline InputSheet LiquidSheet(SolveFor mode = SolveFor::FlowRate) {
    InputSheet sheet = SheetOf(Fluid::Liquid, mode);
    sheet.sgf = "1";
    sheet.sgb = "1";
    sheet.sgbVisible = true;
    return sheet;
}

// Saturated steam at 100 psi gauge with a typed density.
inline InputSheet SteamSheet(SolveFor mode = SolveFor::FlowRate) {
    InputSheet sheet = SheetOf(Fluid::Steam, mode);
    sheet.flow = "1000";
    sheet.pf = "100";
    sheet.density = "0.25704";
    return sheet;
}

// Air at 60 deg F and 100 psi gauge, without compressibility correction.
inline InputSheet GasSheet(SolveFor mode = SolveFor::FlowRate) {
    InputSheet sheet = SheetOf(Fluid::Gas, mode);
    sheet.flow = "500000";
    sheet.tf = "60";
    sheet.pf = "100";
    sheet.gasSGb = "1";
    sheet.gasSGbVisible = true;
    return sheet;
}

class SheetTest : public ::testing::Test {
  protected:
    // Runs a check; its result and message must fit together.
    template <typename Check>
    std::string MessageOf(Check check, const InputSheet& sheet) {
        module.MsgText = "left from before";
        const CheckResult result = check(sheet, module.working, module);
        EXPECT_EQ(result.status(), result.message.empty() ? kDataGood : kDataBad);
        EXPECT_EQ(module.MsgText, "left from before") << "checks write nothing";
        EXPECT_TRUE(platform.boxes.empty()) << "checks never show a box";
        module.working = result.working;
        return result.message;
    }

    RecordingPlatform platform;
    Module1 module{platform, kUnitedStates};
};

}  // namespace tarvix::testing
