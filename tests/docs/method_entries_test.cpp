// What docs/method.md says of entries and messages against the program's checks.
#include "app/sheet/derived_densities.h"
#include "tests/core/app/sheets.h"
#include "tests/docs/document_figures.h"
#include "units/flow_units.h"
#include "units/unit_tables.h"

#include <gtest/gtest.h>
#include <map>
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

std::string SteamTableMessageOf(const InputSheet& sheet) {
    testing::RecordingPlatform platform;
    const Module1 module(platform, testing::kUnitedStates);
    return SteamDensityTextOf(sheet, module).message;
}

// A run of which nothing has been entered yet.
InputSheet EmptyRun(Fluid fluid) {
    InputSheet sheet;
    sheet.fluid = fluid;
    sheet.mode = SolveFor::FlowRate;
    sheet.flowKind = FlowKind::Volume;
    sheet.pressUnit = kPressUnits[0];
    return sheet;
}

InputSheet EmptyLiquid() {
    InputSheet sheet = EmptyRun(Fluid::Liquid);
    sheet.sgbVisible = true;
    return sheet;
}

InputSheet EmptyGas() {
    InputSheet sheet = EmptyRun(Fluid::Gas);
    sheet.gasSGbVisible = true;
    return sheet;
}

InputSheet EmptyGasWith(CompCorrection correction) {
    InputSheet sheet = EmptyGas();
    sheet.compCorrection = correction;
    sheet.zfVisible = true;
    return sheet;
}

InputSheet SteamFromTable(const char* pressure) {
    InputSheet sheet = EmptyRun(Fluid::Steam);
    sheet.steamFromTable = true;
    sheet.pf = pressure;
    sheet.deltaP = "100";
    sheet.beta = "0.5";
    return sheet;
}

using Words = std::map<std::string, std::string>;

// A message of the document, with words in place of those that stand for them there.
std::string Filled(const std::string& cell, const Words& words) {
    EXPECT_TRUE(cell.size() > 2 && cell.front() == '`' && cell.back() == '`') << cell;
    std::string message = cell.substr(1, cell.size() - 2);
    for (const auto& [placeholder, word] : words) {
        const auto at = message.find(placeholder);
        if (at == std::string::npos) {
            ADD_FAILURE() << "no " << placeholder << " in " << message;
        } else {
            message.replace(at, placeholder.size(), word);
        }
    }
    return message;
}

// Goes through the table of messages, row by row.
class MethodMessages : public ::testing::Test {
  protected:
    void ExpectFluidMessages();
    void ExpectSteamTableMessages();
    void ExpectRunMessages();
    bool AtEnd() const { return row_ == table_.rows().size(); }

  private:
    void ExpectNext(const Words& words, const std::string& shown) {
        ++row_;
        ExpectSame(words, shown);
    }
    // The row that was compared last, with other words.
    void ExpectSame(const Words& words, const std::string& shown) const {
        ASSERT_LE(row_, table_.rows().size());
        EXPECT_EQ(Filled(table_.rows()[row_ - 1][0], words), shown);
    }

    FigureTable table_ = ReadFigures(kMethod, "messages");
    std::size_t row_ = 0;
};

}  // namespace

// The names of what is required are those that a run without any entry is said to lack.
TEST(MethodEntries, RequiredEntries) {
    const FigureTable table = ReadFigures(kMethod, "required entries");
    std::size_t rows = 0;
    const auto expect = [&](std::string_view run, const InputSheet& empty) {
        EXPECT_EQ("Incomplete fluid data (" + table.Text(run) + ").", MessageOf(empty)) << run;
        ++rows;
    };
    InputSheet liquid = EmptyLiquid();
    expect("Liquid", liquid);
    liquid.sgCalculated = true;
    expect("Liquid, gravity from density", liquid);
    // The window hides the base gravity of a mass flow.
    expect("Liquid, mass flow", EmptyRun(Fluid::Liquid));

    expect("Gas", EmptyGas());
    expect("Gas, correction by Zf", EmptyGasWith(CompCorrection::Zf));
    InputSheet gas = EmptyGasWith(CompCorrection::Density);
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

// Of the fluid's entries, in the order of the document.
void MethodMessages::ExpectFluidMessages() {
    InputSheet sheet = testing::GasSheet();
    ASSERT_EQ(MessageOf(sheet), "");
    sheet.tf = "-";
    sheet.activeField = Field::Tf;
    ExpectNext({{"NAME", "Op. Temperature"}}, MessageOf(sheet));

    sheet = testing::GasSheet();
    sheet.gasSGb = "0";
    sheet.activeField = Field::GasSGb;
    ExpectNext({{"NAME", "Base Specific Gravity"}}, MessageOf(sheet));

    sheet = testing::GasSheet();
    sheet.absolutePressure = true;
    sheet.pf = "0";
    sheet.activeField = Field::Pf;
    ExpectNext({{"NAME", "Op. Pressure"}}, MessageOf(sheet));

    sheet.absolutePressure = false;
    sheet.pf = "-14.7";
    const Words vacuum{{"NAME", "Op. Pressure"}, {"LIMIT", "-14.7000"}, {"UNIT", "PSI"}};
    ExpectNext(vacuum, MessageOf(sheet));
    sheet.activeField = Field::None;
    ExpectSame(vacuum, MessageOf(sheet));

    const Words both{{"NAMES", "Op. Temperature, Op. Pressure"}};
    sheet = testing::GasSheet();
    sheet.tf = "";
    sheet.pf = "";
    ExpectNext(both, MessageOf(sheet));
    sheet.tf = "-";
    sheet.pf = ".";
    ExpectNext(both, MessageOf(sheet));

    sheet = testing::LiquidSheet();
    ASSERT_EQ(MessageOf(sheet), "");
    sheet.sgf = "0";
    sheet.sgb = "-1";
    ExpectNext({{"NAMES", "Flowing Specific Gravity, Base Specific Gravity"}}, MessageOf(sheet));
}

void MethodMessages::ExpectSteamTableMessages() {
    struct Side {
        const char* gauge;
        const char* absolute;
        const char* gaugeLimit;
        const char* absoluteLimit;
    };
    const Side sides[] = {{"-0.1", "14.6", "0.0", "14.70"}, {"3000.1", "3014.8", "3,000", "3,015"}};
    for (const Side& side : sides) {
        ExpectNext({{"LIMIT", side.gaugeLimit}, {"UNIT", "PSI"}},
                   SteamTableMessageOf(SteamFromTable(side.gauge)));
        InputSheet absolute = SteamFromTable(side.absolute);
        absolute.absolutePressure = true;
        ExpectSame({{"LIMIT", side.absoluteLimit}, {"UNIT", "PSI"}, {"gauge", "absolute"}},
                   SteamTableMessageOf(absolute));
    }
    ExpectNext({}, MessageOf(SteamFromTable("-0.1")));
    ExpectSame({}, MessageOf(SteamFromTable("3000.1")));
}

// Of flow rate, differential pressure and beta.
void MethodMessages::ExpectRunMessages() {
    InputSheet sheet = testing::LiquidSheet();
    sheet.activeField = Field::DeltaP;
    sheet.deltaP = "-";
    ExpectNext({{"NAME", "Differential Pressure"}}, MessageOf(sheet));
    sheet.deltaP = "0";
    ExpectNext({{"NAME", "Differential Pressure"}}, MessageOf(sheet));

    const Words both{{"NAMES", "Differential Pressure, Beta Ratio"}};
    sheet.activeField = Field::None;
    sheet.deltaP = "";
    sheet.beta = "-";
    ExpectNext(both, MessageOf(sheet));
    sheet.deltaP = "0";
    sheet.beta = "-1";
    ExpectNext(both, MessageOf(sheet));
}

TEST_F(MethodMessages, AreTheProgramsOwn) {
    ExpectFluidMessages();
    ExpectSteamTableMessages();
    ExpectRunMessages();
    EXPECT_TRUE(AtEnd()) << "a message of the document that is not compared";
}

}  // namespace tarvix::docs
