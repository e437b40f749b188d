// The upper half of the page: title, customer, values, warnings.
#include "tests/core/fatal_errors.h"
#include "tests/core/named_row.h"
#include "tests/report/report_page_fixture.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace tarvix::testing {
namespace {

using Rows = std::vector<std::string>;

// The rows above the notes, top down, empty rows among them; the height of a row is that of a line
// of 12 points, Courier New's 1.1328125 times 12 points of 20 twips. Fails the test when a line
// stands between two rows or not at the left edge.
Rows UpperRows(const ReportPage& page) {
    Rows rows;
    for (const ReportLine& line : page.lines) {
        if (line.yTwips >= 8000) {
            continue;
        }
        const double row = line.yTwips / 271.875;
        EXPECT_NEAR(row, std::round(row), 1e-6) << line.text;
        EXPECT_EQ(line.xTwips, 0) << line.text;
        EXPECT_EQ(line.font.sizePt, 12) << line.text;
        EXPECT_TRUE(line.font.bold) << line.text;
        EXPECT_FALSE(line.font.italic) << line.text;
        rows.resize(std::max(rows.size(), static_cast<std::size_t>(std::lround(row)) + 1));
        rows.at(static_cast<std::size_t>(std::lround(row))) += line.text;
    }
    return rows;
}

// What follows the last line of the upper half in the tables below.
const std::string kEnd = "(the notes)";

struct PageRow : NamedRow {
    ReportSheet (*sheet)();
    void (*change)(ReportSheet& sheet, Module1& module);
    Rows expected;  // they follow each other on the page
};

class ReportPageRow : public ReportPageTest, public ::testing::WithParamInterface<PageRow> {};

TEST_P(ReportPageRow, StandsOnThePage) {
    const auto& row = GetParam();
    ReportSheet sheet = row.sheet();
    row.change(sheet, module_);
    Rows rows = UpperRows(Page(sheet));
    rows.push_back(kEnd);
    EXPECT_NE(std::search(rows.begin(), rows.end(), row.expected.begin(), row.expected.end()),
              rows.end())
        << ::testing::PrintToString(row.expected) << " in " << ::testing::PrintToString(rows);
}

Rows FromTheTop(const char* fluid, const Rows& values) {
    const std::string title = "Orifice calculation for Bore size - Flange Taps - ";
    Rows rows{"",
              "",
              "",
              title + fluid,
              "",
              "Customer: Northfield Refinery",
              "          Unit 4, Crude Distillation",
              "     Tag: FE-4102",
              ""};
    rows.insert(rows.end(), values.begin(), values.end());
    rows.push_back(kEnd);
    return rows;
}

void Unchanged(ReportSheet& /*sheet*/, Module1& /*module*/) {}
template <SolveFor mode>
void Solved(ReportSheet& sheet, Module1& /*module*/) {
    sheet.inputs.mode = mode;
}

// clang-format off
const PageRow kWholePages[] = {
    {"Liquid", LiquidSheet, Unchanged, FromTheTop("Liquid", {
        "Flow Rate                       1,234.50 Gallons/Minute",
        "Differential Pressure             100.00 Inches Water",
        "Base Specific Gravity               1.00",
        "Flowing Specific Gravity            0.99",
        "",
        "Pipe Diameter                      2.067 Inches",
        "Bore Diameter (approximate)        1.098 Inches",
        "Beta (approximate)               0.53123"})},
    {"Gas", GasSheet, Unchanged, FromTheTop("Gas", {
        "Flow Rate                      25,000.00 Standard Cubic Feet/Day",
        "Differential Pressure              50.25 Inches Water",
        "Operating Temperature            (20.00) Deg F",
        "Operating Pressure                150.00 PSI (gauge)",
        "Base Specific Gravity               0.60",
        "Compressibility Factor:",
        "     Zf                          1.00000 (assumed)",
        "",
        "Pipe Diameter                      2.067 Inches",
        "Bore Diameter (approximate)        0.517 Inches",
        "Beta (approximate)               0.25000"})},
    {"Steam", SteamSheet, Unchanged, FromTheTop("Steam", {
        "Flow Rate                       5,000.00 Pounds/Hour",
        "Differential Pressure             100.00 Inches Water",
        "Operating Density                  0.257 lb/cubic foot",
        "                                         (Saturated)",
        "Operating Pressure                100.00 PSI (gauge)",
        "",
        "Pipe Diameter                      2.067 Inches",
        "Bore Diameter (approximate)        1.240 Inches",
        "Beta (approximate)               0.60000"})},
};

const PageRow kTitles[] = {
    {"SteamFlowRate", SteamSheet, Solved<SolveFor::FlowRate>, {"Orifice calculation for Flow Rate - Flange Taps - Steam"}},
    {"GasDiffPressure", GasSheet, Solved<SolveFor::DiffPressure>, {"Orifice calculation for Pressure Differential - Flange Taps - Gas"}},
};

const PageRow kCustomers[] = {
    // A second line that is empty, or of blanks, takes no row.
    {"EmptySecondLine", LiquidSheet, [](ReportSheet&, Module1& m) { m.CustLine2 = ""; },
     {"Customer: Northfield Refinery", "     Tag: FE-4102", "", "Flow Rate                       1,234.50 Gallons/Minute"}},
    {"PastedBlanks", LiquidSheet, [](ReportSheet&, Module1& m) { m.CustLine2 = "\r\n \t"; },
     {"Customer: Northfield Refinery", "     Tag: FE-4102"}},
    {"BlanksAroundSecondLine", LiquidSheet, [](ReportSheet&, Module1& m) { m.CustLine2 = "  Unit 4 "; },
     {"Customer: Northfield Refinery", "            Unit 4 ", "     Tag: FE-4102"}},
    {"NobodyAndNoTag", LiquidSheet, [](ReportSheet&, Module1& m) { m.CustLine1 = m.CustLine2 = m.TagText = ""; },
     {"Customer: ", "     Tag: ", ""}},
    {"PastedLineBreaks", LiquidSheet,
     [](ReportSheet&, Module1& m) { m.CustLine1 = "Northfield\r\nRefinery\nUnit\t4"; m.TagText = "FE\u20284102"; },
     {"Customer: Northfield Refinery Unit 4", "          Unit 4, Crude Distillation", "     Tag: FE 4102"}},
};

const PageRow kValues[] = {
    {"SaturatedFromTheTable", SteamSheet, [](ReportSheet& s, Module1&) { s.inputs.steamFromTable = true; },
     {"                                         (Saturated - from ASME table)"}},
    {"SuperheatedNotFromTheTable", SteamSheet,
     [](ReportSheet& s, Module1&) { s.saturated = false; s.inputs.steamFromTable = true; },
     {"                                         (Superheated)"}},
    {"CelsiusAndKilopascal", GasSheet,
     [](ReportSheet& s, Module1&) {
         s.inputs.degC = true; s.inputs.absolutePressure = true; s.inputs.pressUnit = {"kPa", 0.1450378F}; },
     {"Operating Temperature            (20.00) Deg C", "Operating Pressure                150.00 kPa (absolute)"}},
    {"HiddenGasGravity", GasSheet, [](ReportSheet& s, Module1&) { s.inputs.gasSGbVisible = false; },
     {"Operating Pressure                150.00 PSI (gauge)", "Compressibility Factor:"}},
    {"EnteredZf", GasSheet,
     [](ReportSheet& s, Module1&) { s.inputs.compCorrection = CompCorrection::Zf; s.inputs.zf = "0.95"; },
     {"Compressibility Factor:", "     Zf                          0.95000", ""}},
    {"EnteredGasDensity", GasSheet,
     [](ReportSheet& s, Module1&) {
         s.inputs.compCorrection = CompCorrection::Density; s.inputs.zf = "1.2345";
         s.inputs.zfDensityUnit = {"kg/cubic meter", 0.06242798F}; },
     {"Compressibility Factor:", "     Operating Density             1.235 kg/cubic meter", ""}},
    {"GravityFromDensity", LiquidSheet,
     [](ReportSheet& s, Module1&) { s.inputs.sgCalculated = true; s.inputs.density = "61.5"; },
     {"Flowing Specific Gravity            0.99 (Calculated from Density)",
      "Operating Density                 61.500 lb/cubic foot", ""}},
    {"TypedGravityBesideADensity", LiquidSheet, [](ReportSheet& s, Module1&) { s.inputs.density = "61.5"; },
     {"Flowing Specific Gravity            0.99", ""}},
    {"MillimeterPipe", LiquidSheet,
     [](ReportSheet& s, Module1&) {
         s.pipeIdUnit = "Millimeters"; s.pipeIdText = "2.067\"  (52.50 mm)  Sch 40, STD, Sch 40S"; },
     {"Pipe Diameter                      52.50 Millimeters"}},
    {"MetricPipeWithoutMetricText", LiquidSheet, [](ReportSheet& s, Module1&) { s.pipeIdUnit = "Millimeters"; },
     {"Pipe Diameter                            Millimeters"}},
    {"EnteredPipe", LiquidSheet,
     [](ReportSheet& s, Module1&) { s.inputs.pipeDiameter = "3.250"; s.pipeIdText = "3.250\" (User Entered)"; },
     {"Pipe Diameter (User Entered)       3.250 Inches"}},
    {"EnteredMetricPipe", LiquidSheet,
     [](ReportSheet& s, Module1&) {
         s.inputs.pipeDiameter = "3.250"; s.pipeIdUnit = "Millimeters";
         s.pipeIdText = "3.250\"  (82.55 mm)   (User Entered)"; },
     {"Pipe Diameter (User Entered)       82.55 Millimeters"}},
    {"BetaThatIsNoNumber", LiquidSheet, [](ReportSheet& s, Module1&) { s.inputs.beta = "abc"; },
     {"Beta (approximate)                      "}},
    {"UnitThatEndsInABlank", LiquidSheet, [](ReportSheet& s, Module1&) { s.inputs.flowUnit = {"Cubic Meters ", 264.172F}; },
     {"Flow Rate                       1,234.50 Cubic Meters /Minute"}},
    {"MoreDigitsThanASingleHolds", LiquidSheet, [](ReportSheet& s, Module1&) { s.inputs.flow = "123456789.12"; },
     {"Flow Rate                 123,456,789.12 Gallons/Minute"}},
};

const PageRow kWarnings[] = {
    {"Message", LiquidSheet,
     [](ReportSheet& s, Module1&) { s.message = "Warning: Beta value exceeds standard range (0.15 to 0.67)."; },
     {"Beta (approximate)               0.53123", "",
      "Warning: Beta value exceeds standard range (0.15 to 0.67).", kEnd}},
    {"Plate", LiquidSheet,
     [](ReportSheet& s, Module1&) {
         s.plateWarning = true; s.plateWarning1 = "Orifice plate deflection"; s.plateWarning2 = "should be checked."; },
     {"Beta (approximate)               0.53123", "",
      "Warning: Orifice plate deflection should be checked.", kEnd}},
    {"Compressibility", GasSheet, [](ReportSheet& s, Module1&) { s.zfCompWarning = CompressibilityWarning::May; },
     {"Beta (approximate)               0.25000", "",
      "  **************************************************************",
      "  * WARNING: A compressibility correction factor has not been  *",
      "  *          entered.  At this pressure, no compressibility    *",
      "  *          correction may result in erroneous computations.  *",
      "  **************************************************************",
      kEnd}},
    {"CompressibilityOfSteam", SteamSheet, [](ReportSheet& s, Module1&) { s.zfCompWarning = CompressibilityWarning::Will; },
     {"Beta (approximate)               0.60000", kEnd}},
    {"CompressibilityOfALiquid", LiquidSheet, [](ReportSheet& s, Module1&) { s.zfCompWarning = CompressibilityWarning::Will; },
     {"Beta (approximate)               0.53123", kEnd}},
    {"EveryWarning", FullestSheet, Unchanged,
     {"Beta (approximate)               0.25000", "",
      "Warning: Beta value exceeds standard range (0.15 to 0.67).",
      "Warning: Orifice plate deflection should be checked.",
      "",
      "  **************************************************************",
      "  * WARNING: A compressibility correction factor has not been  *",
      "  *          entered.  At this pressure, no compressibility    *",
      "  *          correction will result in erroneous computations. *",
      "  **************************************************************",
      kEnd}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(WholePages, ReportPageRow, ::testing::ValuesIn(kWholePages), kRowName);
INSTANTIATE_TEST_SUITE_P(Titles, ReportPageRow, ::testing::ValuesIn(kTitles), kRowName);
INSTANTIATE_TEST_SUITE_P(Customers, ReportPageRow, ::testing::ValuesIn(kCustomers), kRowName);
INSTANTIATE_TEST_SUITE_P(Values, ReportPageRow, ::testing::ValuesIn(kValues), kRowName);
INSTANTIATE_TEST_SUITE_P(Warnings, ReportPageRow, ::testing::ValuesIn(kWarnings), kRowName);

TEST_F(ReportPageTest, NumbersAsTheUsersSystemWritesThem) {
    const auto expectRow = [this](const ReportSheet& sheet, const NumberLocale& locale,
                                  const char* row) {
        Module1 module(platform_, locale);
        EXPECT_EQ(std::ranges::count(UpperRows(ComposeReport(sheet, module)), row), 1) << row;
    };
    ReportSheet sheet = LiquidSheet();
    sheet.inputs.flow = {"1.234,5", kGermany};
    sheet.inputs.deltaP = {"-100", kGermany};
    expectRow(sheet, kGermany, "Flow Rate                       1.234,50 Gallons/Minute");
    expectRow(sheet, kGermany, "Differential Pressure           (100,00) Inches Water");
    expectRow(GasSheet(), kGermany, "     Zf                          1,00000 (assumed)");
    // The group separator is three bytes long, but one character.
    sheet.inputs.flow = {"12345", kFrance};
    expectRow(sheet, kFrance, "Flow Rate                      12\u202F345,00 Gallons/Minute");
}

TEST_F(ReportPageTest, WithoutAModeOrAKnownPipeUnitTheProgramEnds) {
    const auto expectFatal = [this](const ReportSheet& sheet, const char* cause) {
        const auto box = FatalBoxOf(platform_, [&] { Page(sheet); });
        EXPECT_EQ(box.text, FatalText(cause));
        EXPECT_EQ(box.title, "Fatal Error");
    };
    ReportSheet sheet = LiquidSheet();
    sheet.pipeIdUnit = "Feet";
    expectFatal(sheet, "Unrecognized pipe ID unit for 'User Entered' pipe ID");
    sheet = LiquidSheet();
    sheet.inputs.mode.reset();
    expectFatal(sheet, "Calculation type not selected");
}

TEST_F(ReportPageTest, CustomerLinesAreNotChangedByPrinting) {
    module_.CustLine1 = "A\nB";
    Page(LiquidSheet());
    EXPECT_EQ(module_.CustLine1, "A\nB");
    EXPECT_EQ(module_.CustLine2, "Unit 4, Crude Distillation");
    EXPECT_EQ(module_.TagText, "FE-4102");
}

TEST_F(ReportPageTest, TheFullestPageEndsAboveTheNotes) {
    for (const ReportLine& line : Page(FullestSheet()).lines) {
        EXPECT_TRUE(line.font.sizePt != 12 || line.yTwips + 271.875 <= 8000) << line.text;
    }
}

}  // namespace
}  // namespace tarvix::testing
