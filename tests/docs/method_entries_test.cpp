// What docs/method.md says of entries against the program's checks. named_in_docs.py compares the
// messages.
#include "tests/core/app/sheets.h"
#include "tests/docs/document_figures.h"
#include "units/flow_units.h"
#include "units/unit_tables.h"

#include <gtest/gtest.h>
#include <string>

namespace tarvix::docs {

namespace {

constexpr const char* kMethod = "method.md";

// What the checks say about these entries; empty when they are good.
std::string MessageOf(const InputSheet& sheet) {
    testing::RecordingPlatform platform;
    Module1 module(platform, testing::kUnitedStates);
    return CheckInputs(sheet, {}, module).message;
}

// A run of which nothing has been entered yet.
InputSheet EmptyRun(Fluid fluid, CompCorrection correction = CompCorrection::None) {
    InputSheet sheet;
    sheet.fluid = fluid;
    sheet.mode = SolveFor::FlowRate;
    sheet.flowKind = FlowKind::Volume;
    sheet.pressUnit = kPressUnits[0];
    sheet.sgbVisible = sheet.gasSGbVisible = true;
    sheet.compCorrection = correction;
    sheet.zfVisible = correction != CompCorrection::None;
    return sheet;
}

}  // namespace

// The names of what is required are those that a run without any entry is said to lack.
TEST(MethodEntries, RequiredEntries) {
    const FigureTable table = ReadFigures(kMethod, "required entries");
    std::size_t rows = 0;
    const auto expect = [&](std::string_view run, const InputSheet& empty) {
        EXPECT_EQ("Incomplete fluid data (" + table.Text(run) + ").", MessageOf(empty)) << run;
        ++rows;
    };
    InputSheet liquid = EmptyRun(Fluid::Liquid);
    expect("Liquid", liquid);
    liquid.sgCalculated = true;
    expect("Liquid, gravity from density", liquid);
    // The window hides the base gravity of a mass flow.
    liquid.sgCalculated = liquid.sgbVisible = false;
    expect("Liquid, mass flow", liquid);

    expect("Gas", EmptyRun(Fluid::Gas));
    expect("Gas, correction by Zf", EmptyRun(Fluid::Gas, CompCorrection::Zf));
    InputSheet gas = EmptyRun(Fluid::Gas, CompCorrection::Density);
    expect("Gas, correction by density", gas);
    gas.gasSGbVisible = false;
    expect("Gas, correction by density, mass flow", gas);

    InputSheet steam = EmptyRun(Fluid::Steam);
    expect("Steam", steam);
    steam.steamFromTable = true;
    expect("Steam, density from the table", steam);
    EXPECT_EQ(rows, table.rows().size());
}

TEST(MethodEntries, FormsOfANumber) {
    const FigureTable table = ReadFigures(kMethod, "number forms");
    EXPECT_EQ(table.rows().size(), 9U);
    const auto expect = [](const std::string& entry, const std::string& cell,
                           const NumberLocale& locale) {
        const auto value = TextToDouble(entry, locale);
        if (cell == "no number") {
            EXPECT_FALSE(value) << entry;
        } else {
            EXPECT_EQ(value, NumberOf(cell)) << entry;
        }
    };
    for (const auto& row : table.rows()) {
        expect(row[0], row[1], testing::kUnitedStates);
        expect(row[0], row[2], testing::kGermany);
    }
}

}  // namespace tarvix::docs
