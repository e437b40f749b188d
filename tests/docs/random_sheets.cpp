#include "tests/docs/random_sheets.h"

#include "app/sheet/data_checks.h"
#include "app/sheet/derived_densities.h"
#include "app/sheet/solve_sheet.h"
#include "tests/core/locales.h"
#include "tests/core/recording_platform.h"
#include "units/flow_units.h"
#include "units/nominal_sizes.h"
#include "units/unit_tables.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace tarvix::accuracy {

namespace {

constexpr double kInchesOfWaterPerPsi = 27.7;  // good enough to keep dp/p in its range
constexpr int kFlowDigits = 7;

}  // namespace

EnteredNumber Typed(double value, int digits) {
    const int whole =
        value == 0 ? 1 : static_cast<int>(std::floor(std::log10(std::fabs(value)))) + 1;
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", std::max(digits - whole, 0), value);
    return Entry(text);
}

std::optional<std::string> ShownResult(const InputSheet& sheet) {
    testing::RecordingPlatform platform;
    Module1 module(platform, testing::kUnitedStates);
    const CheckResult check = CheckInputs(sheet, {}, module);
    if (check.status() != kDataGood) {
        return std::nullopt;
    }
    const CalculationResult result = CalculateResult(sheet, check.working, module);
    return result.text.empty() ? std::nullopt : std::optional(result.text);
}

// 53 random bits, the same on every system.
double RandomSheets::Between(double low, double high) {
    const auto high21 = static_cast<double>(random_() >> 11);
    const auto low32 = static_cast<double>(random_());
    return low + (high - low) * ((high21 * 4294967296.0 + low32) / 9007199254740992.0);
}

double RandomSheets::LogBetween(double low, double high) {
    return std::exp(Between(std::log(low), std::log(high)));
}

std::size_t RandomSheets::Pick(std::size_t count) {
    return random_() % count;
}

void RandomSheets::PickUnits(InputSheet& sheet) {
    const auto flowUnits = FlowUnitsOf(sheet.fluid).units;
    const FlowUnit& flow = flowUnits[Pick(flowUnits.size())];
    sheet.flowUnit = {flow.text, flow.factor};
    sheet.flowKind = flow.kind;
    sheet.timeUnit = kTimeUnits[Pick(kTimeUnits.size())];
    sheet.deltaPUnit = kDeltaPUnits[Pick(kDeltaPUnits.size())];
    sheet.pressUnit = kPressUnits[Pick(kPressUnits.size())];
    sheet.densityUnit = kDensityUnits[Pick(kDensityUnits.size())];
    sheet.zfDensityUnit = kDensityUnits[Pick(kDensityUnits.size())];
}

void RandomSheets::PickPipe(InputSheet& sheet) {
    const auto schedules = SchedulesOf(kNominalSizes[Pick(kNominalSizes.size())].value);
    sheet.pipeDiameter = Entry(std::string(schedules[Pick(schedules.size())].insideDiameter));
}

void RandomSheets::FillLiquid(InputSheet& sheet) {
    sheet.sgbVisible = sheet.flowKind == FlowKind::Volume;
    sheet.sgf = Typed(Between(0.5, 1.9));
    sheet.sgb = Typed(Between(0.5, 1.9));
}

void RandomSheets::FillPressure(InputSheet& sheet) {
    psia_ = LogBetween(20, 1500);
    sheet.absolutePressure = Coin();
    const double entered = sheet.absolutePressure ? psia_ : psia_ - 14.7;
    sheet.pf = Typed(entered / units_.Of("press", sheet.pressUnit.text));
}

void RandomSheets::FillGas(InputSheet& sheet) {
    FillPressure(sheet);
    sheet.degC = Coin();
    sheet.tf = Typed(Between(-40, 200));
    const std::size_t correction = Pick(3);
    sheet.gasSGb = Typed(Between(0.55, 1.6));
    sheet.gasSGbVisible = true;
    sheet.zfVisible = correction != 0;
    if (correction == 1) {
        sheet.compCorrection = CompCorrection::Zf;
        sheet.zf = Typed(Between(0.7, 1.2));
    } else if (correction == 2) {
        sheet.compCorrection = CompCorrection::Density;
        const double density = 0.005 * psia_ * Between(0.5, 2);
        sheet.zf = Typed(density / units_.Of("density", sheet.zfDensityUnit.text));
    }
}

void RandomSheets::FillSteam(InputSheet& sheet) {
    FillPressure(sheet);
    sheet.steamFromTable = Coin();
    if (sheet.steamFromTable) {
        testing::RecordingPlatform platform;
        const Module1 module(platform, testing::kUnitedStates);
        sheet.density = Entry(SteamDensityTextOf(sheet, module).density);
    } else {
        const double density = 0.0023 * psia_ * Between(0.5, 1);
        sheet.density = Typed(density / units_.Of("density", sheet.densityUnit.text));
    }
}

InputSheet RandomSheets::Next(tarvix::Fluid fluid, SolveFor mode) {
    InputSheet sheet;
    sheet.fluid = fluid;
    sheet.mode = mode;
    psia_ = 0;
    PickUnits(sheet);
    PickPipe(sheet);
    if (fluid == tarvix::Fluid::Liquid) {
        FillLiquid(sheet);
    } else if (fluid == tarvix::Fluid::Gas) {
        FillGas(sheet);
    } else {
        FillSteam(sheet);
    }
    const double most = psia_ == 0 ? 400 : std::min(400.0, 0.3 * psia_ * kInchesOfWaterPerPsi);
    const double h = LogBetween(1, most);
    sheet.beta = Typed(Between(0.1, 0.75));
    sheet.deltaP = Typed(h / units_.Of("deltaP", sheet.deltaPUnit.text));
    if (mode != SolveFor::FlowRate) {
        sheet.flow = Typed(ExactResult(sheet, SolveFor::FlowRate, units_), kFlowDigits);
        (mode == SolveFor::Beta ? sheet.beta : sheet.deltaP) = {};
    }
    return sheet;
}

}  // namespace tarvix::accuracy
