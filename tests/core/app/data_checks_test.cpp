// What the checks say of entries: of every required one alone and of each two of a run, then what
// is particular to one of them.
#include "app/sheet/data_checks.h"

#include "app/sheets.h"
#include "named_row.h"

#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <utility>
#include <vector>

namespace tarvix::testing {
namespace {

using Check =
    std::function<CheckResult(const InputSheet&, const WorkingValues& before, Module1& module)>;

const Check kOrificeCheck = [](const InputSheet& sheet, const WorkingValues& before, Module1&) {
    return OrificeDataCheck(sheet, before);
};

enum class Rule { Positive, Pressure, AnyNumber };

struct Entry {
    Field field;
    EnteredNumber InputSheet::*text;
    const char* name;
    Rule rule = Rule::Positive;
};

const Entry kFlowingSG{Field::SGf, &InputSheet::sgf, "Flowing Specific Gravity"};
const Entry kBaseSG{Field::SGb, &InputSheet::sgb, "Base Specific Gravity"};
const Entry kDensity{Field::Density, &InputSheet::density, "Operating Density"};
const Entry kSteamPressure{Field::Pf, &InputSheet::pf, "Operating Pressure", Rule::Pressure};
const Entry kTemperature{Field::Tf, &InputSheet::tf, "Op. Temperature", Rule::AnyNumber};
const Entry kPressure{Field::Pf, &InputSheet::pf, "Op. Pressure", Rule::Pressure};
const Entry kGasSG{Field::GasSGb, &InputSheet::gasSGb, "Base Specific Gravity"};
const Entry kZf{Field::Zf, &InputSheet::zf, "Zf"};
const Entry kGasDensity{Field::Zf, &InputSheet::zf, "Density"};
const Entry kFlow{Field::Flow, &InputSheet::flow, "Flow Rate"};
const Entry kDeltaP{Field::DeltaP, &InputSheet::deltaP, "Differential Pressure"};
const Entry kBeta{Field::Beta, &InputSheet::beta, "Beta Ratio"};

InputSheet GasWith(CompCorrection correction) {
    InputSheet sheet = GasSheet();
    sheet.compCorrection = correction;
    sheet.zfVisible = true;
    sheet.zf = "0.9";
    return sheet;
}

struct CheckRow : NamedRow {
    Check check;
    InputSheet (*sheet)();
    std::vector<Entry> required;  // in the order of the messages
    std::vector<Entry> ignored;
};

// clang-format off
const CheckRow kCheckRows[] = {
    {"Liquid", DataChkLiquid, [] { return LiquidSheet(); }, {kFlowingSG, kBaseSG}, {kDensity}},
    {"LiquidFromDensity", DataChkLiquid,
     [] { InputSheet s = LiquidSheet(); s.sgCalculated = true; s.density = "60"; return s; },
     {kBaseSG, kDensity}, {kFlowingSG}},
    {"LiquidMass", DataChkLiquid, [] { InputSheet s = LiquidSheet(); s.sgbVisible = false; return s; },
     {kFlowingSG}, {kBaseSG}},
    {"Steam", DataChkSteam, [] { return SteamSheet(); }, {kDensity, kSteamPressure}, {}},
    {"SteamFromTable", DataChkSteam,
     [] { InputSheet s = SteamSheet(); s.steamFromTable = true; return s; }, {kSteamPressure}, {}},
    {"Gas", DataChkGas, [] { return GasSheet(); }, {kTemperature, kPressure, kGasSG}, {kZf}},
    {"GasWithZf", DataChkGas, [] { return GasWith(CompCorrection::Zf); },
     {kTemperature, kPressure, kGasSG, kZf}, {}},
    {"GasWithDensity", DataChkGas, [] { return GasWith(CompCorrection::Density); },
     {kTemperature, kPressure, kGasSG, kGasDensity}, {}},
    {"GasWithoutGravity", DataChkGas,
     [] { InputSheet s = GasWith(CompCorrection::Density); s.gasSGbVisible = false; return s; },
     {kTemperature, kPressure, kGasDensity}, {kGasSG}},
    {"FlowRate", kOrificeCheck, [] { return LiquidSheet(); }, {kDeltaP, kBeta}, {kFlow}},
    {"DiffPressure", kOrificeCheck, [] { return LiquidSheet(SolveFor::DiffPressure); },
     {kFlow, kBeta}, {kDeltaP}},
    {"Beta", kOrificeCheck, [] { return LiquidSheet(SolveFor::Beta); }, {kFlow, kDeltaP}, {kBeta}},
    {"WithoutMode", kOrificeCheck, [] { InputSheet s = LiquidSheet(); s.mode.reset(); return s; },
     {kFlow, kDeltaP, kBeta}, {}},
};
// clang-format on

class DataCheck : public SheetTest, public ::testing::WithParamInterface<CheckRow> {
  protected:
    const CheckRow& row = GetParam();
    const bool ofFluid =
        row.required[0].field != Field::Flow && row.required[0].field != Field::DeltaP;

    std::string Says(const InputSheet& sheet) { return MessageOf(row.check, sheet); }

    // The good sheet with other texts in these entries, one of which may be being edited.
    InputSheet With(std::initializer_list<std::pair<Entry, const char*>> texts,
                    Field active = Field::None) const {
        InputSheet sheet = row.sheet();
        for (const auto& [entry, text] : texts) {
            sheet.*entry.text = text;
        }
        sheet.activeField = active;
        return sheet;
    }

    // The messages about the whole set, and about the entry that is being edited.
    std::string Empty(const std::string& names) const {
        return (ofFluid ? "Incomplete fluid data (" : "Incomplete or Non-Numeric fluid data (") +
               names + ").";
    }
    std::string NotNumeric(const std::string& names) const {
        return ofFluid ? "Non-Numeric fluid data (" + names + ")." : Empty(names);
    }
    std::string TooSmall(const std::string& names) const {
        return (ofFluid ? names : "Fluid data (" + names + ")") + " must be greater than 0.";
    }
    std::string EditedNotNumeric(const std::string& name) const {
        return "Non-Numeric " + name + (ofFluid ? "" : " data.");
    }
    std::string EditedTooSmall(const std::string& name) const {
        return (ofFluid ? "" : "The ") + name + " must be greater than 0.";
    }

    // Calls `test` with each two required entries, in both orders of which is the first argument.
    template <typename Test>
    void ForEachTwo(Test test) {
        for (size_t i = 0; i < row.required.size(); ++i) {
            for (size_t j = i + 1; j < row.required.size(); ++j) {
                test(row.required[i], row.required[j]);
            }
        }
    }
};

TEST_P(DataCheck, AGoodSheetIsGood) {
    EXPECT_EQ(Says(row.sheet()), "");
    // The entry being edited is the other check's.
    const Entry& other = ofFluid ? kFlow : kFlowingSG;
    EXPECT_EQ(Says(With({{other, "x"}}, other.field)), "");
}

// About the whole set, and while it is being edited.
TEST_P(DataCheck, ABadEntryIsNamed) {
    for (const Entry& entry : row.required) {
        const auto expect = [&](const char* text, const std::string& whole,
                                const std::string& edited) {
            EXPECT_EQ(Says(With({{entry, text}})), whole) << text;
            EXPECT_EQ(Says(With({{entry, text}}, entry.field)), edited) << text;
        };
        expect("", Empty(entry.name), Empty(entry.name));
        for (const char* text : {"x", "1..2", "1 2", " ", "1e60"}) {
            expect(text, NotNumeric(entry.name), EditedNotNumeric(entry.name));
        }
        const bool positive = entry.rule == Rule::Positive;
        for (const char* text : {"0", "-0.5", "1e-60"}) {
            expect(text, positive ? TooSmall(entry.name) : "",
                   positive ? EditedTooSmall(entry.name) : "");
        }
        expect("1e-44", "", "");
        if (entry.rule == Rule::AnyNumber) {
            expect("-1000", "", "");  // below absolute zero: for the equation to refuse
        }
    }
}

TEST_P(DataCheck, SeveralEntriesAreNamedInTheirOrder) {
    ForEachTwo([this](const Entry& a, const Entry& b) {
        const std::string both = std::string(a.name) + ", " + b.name;
        EXPECT_EQ(Says(With({{a, ""}, {b, ""}})), Empty(both));
        EXPECT_EQ(Says(With({{a, "x"}, {b, "y"}})), NotNumeric(both));
        if (a.rule == Rule::Positive && b.rule == Rule::Positive) {
            EXPECT_EQ(Says(With({{a, "0"}, {b, "-3"}})), TooSmall(both));
        }
    });
}

// What is empty comes before what is no number, and that before what is too small.
TEST_P(DataCheck, TheWorstIsNamedAlone) {
    ForEachTwo([this](const Entry& a, const Entry& b) {
        const std::string both = std::string(a.name) + ", " + b.name;
        EXPECT_EQ(Says(With({{a, ""}, {b, "x"}})), ofFluid ? Empty(a.name) : Empty(both));
        EXPECT_EQ(Says(With({{a, "x"}, {b, ""}})), ofFluid ? Empty(b.name) : Empty(both));
        EXPECT_EQ(Says(With({{a, "-20"}, {b, "x"}})), NotNumeric(b.name));
        EXPECT_EQ(Says(With({{a, "x"}, {b, "-20"}})), NotNumeric(a.name));
    });
}

// The entry being edited is judged before what is wrong elsewhere; when it is good, all are.
TEST_P(DataCheck, TheEditedEntryComesFirst) {
    ForEachTwo([this](const Entry& a, const Entry& b) {
        EXPECT_EQ(Says(With({{b, "x"}, {a, ""}}, b.field)), EditedNotNumeric(b.name));
        EXPECT_EQ(Says(With({{a, "x"}, {b, ""}}, a.field)), EditedNotNumeric(a.name));
        EXPECT_EQ(Says(With({{a, "1"}, {b, ""}}, a.field)), Empty(b.name));
        EXPECT_EQ(Says(With({{b, "1"}, {a, ""}}, b.field)), Empty(a.name));
    });
    const Entry& first = row.required[0];
    EXPECT_EQ(Says(With({{first, "x"}}, Field::OriBoreDia)), NotNumeric(first.name));
}

TEST_P(DataCheck, WhatIsNotRequiredIsNotLookedAt) {
    for (const Entry& entry : row.ignored) {
        for (const char* text : {"", "0", "x"}) {
            EXPECT_EQ(Says(With({{entry, text}})), "") << entry.name;
            if (!ofFluid) {
                EXPECT_EQ(Says(With({{entry, text}}, entry.field)), "") << entry.name;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Runs, DataCheck, ::testing::ValuesIn(kCheckRows), kRowName);

struct PressureRow : NamedRow {
    const char* unit;
    const char* pressure;
    const char* limit;  // what it must be greater than; "": good
};

// A gauge pressure of steam and of gas, being edited or not.
class GaugePressure : public SheetTest, public ::testing::WithParamInterface<PressureRow> {};

TEST_P(GaugePressure, IsAboveTheVacuumInTheUsersUnit) {
    const auto& row = GetParam();
    for (const Field active : {Field::None, Field::Pf}) {
        for (InputSheet sheet : {SteamSheet(), GasSheet()}) {
            sheet.activeField = active;
            sheet.pressUnit = UnitNamed(kPressUnits, row.unit);
            sheet.pf = row.pressure;
            const bool steam = sheet.fluid == Fluid::Steam;
            std::string expected;
            if (*row.limit != '\0') {
                expected = steam ? "Operating Pressure" : "Op. Pressure";
                expected += " must be greater than " + std::string(row.limit);
            }
            EXPECT_EQ(steam ? MessageOf(DataChkSteam, sheet) : MessageOf(DataChkGas, sheet),
                      expected);
        }
    }
}

// The vacuum is -14.7 psi in single precision, and not good itself.
const PressureRow kPressureRows[] = {
    {"Zero", "PSI", "0", ""},
    {"BelowZero", "PSI", "-10", ""},
    {"OneSingleAbove", "PSI", "-14.699999", ""},
    {"Vacuum", "PSI", "-14.7", "-14.7000 PSI."},
    {"OneSingleBelow", "PSI", "-14.700001", "-14.7000 PSI."},
    {"FarBelow", "PSI", "-1000", "-14.7000 PSI."},
    {"Kilopascal", "kPa", "-101.5", "-101.3529 kPa."},
    {"AlmostVacuumInKilopascal", "kPa", "-101.3", ""},
    {"Pascal", "Pa", "-200000", "-101,353.0000 Pa."},
    {"Bar", "bar", "-2", "-1.0135 bar."},
    {"Millibar", "mbar", "-1100", "-1,013.5270 mbar."},
    {"InchesOfWater", "inches of W.C", "-500", "-407.1898 inches of W.C."},
};

INSTANTIATE_TEST_SUITE_P(DataChecks, GaugePressure, ::testing::ValuesIn(kPressureRows), kRowName);

class DataChecksTest : public SheetTest {};

TEST_F(DataChecksTest, AnAbsolutePressureIsAboveZero) {
    for (InputSheet sheet : {SteamSheet(), GasSheet()}) {
        const bool steam = sheet.fluid == Fluid::Steam;
        const Check check = steam ? Check(DataChkSteam) : Check(DataChkGas);
        const std::string tooSmall = steam ? "Operating Pressure must be greater than 0"
                                           : "Op. Pressure must be greater than 0";
        sheet.absolutePressure = true;
        for (const char* pressure : {"0", "-5", "-14"}) {
            sheet.pf = pressure;
            sheet.activeField = Field::None;
            EXPECT_EQ(MessageOf(check, sheet), tooSmall + ".");
            // Without a full stop while it is being edited.
            sheet.activeField = Field::Pf;
            EXPECT_EQ(MessageOf(check, sheet), tooSmall);
        }
        sheet.pf = "1e-40";
        EXPECT_EQ(MessageOf(check, sheet), "");
    }
}

InputSheet SteamFromTable(const char* pressure, const char* density, Field active = Field::None) {
    InputSheet sheet = SteamSheet();
    sheet.pf = pressure;
    sheet.density = density;
    sheet.steamFromTable = true;
    sheet.activeField = active;
    return sheet;
}

TEST_F(DataChecksTest, ThePressureLimitComesBeforeWhatIsTooSmall) {
    InputSheet steam = SteamSheet();
    InputSheet gas = GasSheet();
    steam.pf = gas.pf = "-20";
    steam.density = gas.gasSGb = "0";
    EXPECT_EQ(MessageOf(DataChkSteam, steam),
              "Operating Pressure must be greater than -14.7000 PSI.");
    EXPECT_EQ(MessageOf(DataChkGas, gas), "Op. Pressure must be greater than -14.7000 PSI.");
}

// A density from the table is not required, but must be there.
TEST_F(DataChecksTest, ADensityFromTheTable) {
    EXPECT_EQ(MessageOf(DataChkSteam, SteamFromTable("100", "0")), "");
    EXPECT_EQ(MessageOf(DataChkSteam, SteamFromTable("100", "")),
              "The Operating Density [from Op. Pressure] must not exceed steam table limits.");
    EXPECT_EQ(MessageOf(DataChkSteam, SteamFromTable("", "")),
              "Incomplete fluid data (Operating Pressure).");
}

TEST_F(DataChecksTest, ACalculatedEntryBeingEditedIsCalledSo) {
    EXPECT_EQ(MessageOf(DataChkSteam, SteamFromTable("100", "x", Field::Density)),
              "Non-Numeric Operating Density [from Op. Pressure]");
    InputSheet liquid = LiquidSheet();
    liquid.sgCalculated = true;
    liquid.activeField = Field::SGf;
    liquid.sgf = "x";
    EXPECT_EQ(MessageOf(DataChkLiquid, liquid),
              "Non-Numeric Flowing Specific Gravity [from Density]");
}

}  // namespace
}  // namespace tarvix::testing
