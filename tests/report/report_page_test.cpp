// The upper half of the page: title, customer, values.
#include "tests/report/report_page_fixture.h"

namespace tarvix::testing {
namespace {

TEST_F(ReportPageTest, LiquidFromTopToBottom) {
    const Rows expected{
        "",
        "",
        "",
        "Orifice calculation for Bore size - Flange Taps - Liquid",
        "",
        "Customer: Northfield Refinery",
        "          Unit 4, Crude Distillation",
        "     Tag: FE-4102",
        "",
        "Flow Rate                       1,234.50 Gallons/Minute",
        "Differential Pressure             100.00 Inches Water",
        "Base Specific Gravity               1.00",
        "Flowing Specific Gravity            0.99",
        "",
        "Pipe Diameter                      2.067 Inches",
        "Bore Diameter (approximate)        1.098 Inches",
        "Beta (approximate)               0.53123",
    };
    EXPECT_EQ(RowsOf(LiquidSheet()), expected);
}

TEST_F(ReportPageTest, GasFromTopToBottom) {
    const Rows expected{
        "",
        "",
        "",
        "Orifice calculation for Bore size - Flange Taps - Gas",
        "",
        "Customer: Northfield Refinery",
        "          Unit 4, Crude Distillation",
        "     Tag: FE-4102",
        "",
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
        "Beta (approximate)               0.25000",
    };
    EXPECT_EQ(RowsOf(GasSheet()), expected);
}

TEST_F(ReportPageTest, SteamFromTopToBottom) {
    const Rows expected{
        "",
        "",
        "",
        "Orifice calculation for Bore size - Flange Taps - Steam",
        "",
        "Customer: Northfield Refinery",
        "          Unit 4, Crude Distillation",
        "     Tag: FE-4102",
        "",
        "Flow Rate                       5,000.00 Pounds/Hour",
        "Differential Pressure             100.00 Inches Water",
        "Operating Density                  0.257 lb/cubic foot",
        "                                         (Saturated)",
        "Operating Pressure                100.00 PSI (gauge)",
        "",
        "Pipe Diameter                      2.067 Inches",
        "Bore Diameter (approximate)        1.240 Inches",
        "Beta (approximate)               0.60000",
    };
    EXPECT_EQ(RowsOf(SteamSheet()), expected);
}

TEST_F(ReportPageTest, TitleNamesWhatWasCalculated) {
    ReportSheet sheet = LiquidSheet();
    sheet.inputs.mode = SolveFor::FlowRate;
    EXPECT_EQ(RowsOf(sheet).at(3), "Orifice calculation for Flow Rate - Flange Taps - Liquid");
    sheet.inputs.mode = SolveFor::DiffPressure;
    EXPECT_EQ(RowsOf(sheet).at(3),
              "Orifice calculation for Pressure Differential - Flange Taps - Liquid");
    sheet = SteamSheet();
    sheet.inputs.mode = SolveFor::FlowRate;
    EXPECT_EQ(RowsOf(sheet).at(3), "Orifice calculation for Flow Rate - Flange Taps - Steam");
    sheet = GasSheet();
    sheet.inputs.mode = SolveFor::DiffPressure;
    EXPECT_EQ(RowsOf(sheet).at(3),
              "Orifice calculation for Pressure Differential - Flange Taps - Gas");
}

TEST_F(ReportPageTest, BoreAndBetaAreApproximateInEveryMode) {
    for (const SolveFor mode : {SolveFor::Beta, SolveFor::DiffPressure, SolveFor::FlowRate}) {
        ReportSheet sheet = LiquidSheet();
        sheet.inputs.mode = mode;
        EXPECT_TRUE(HasRow(Page(sheet), "Bore Diameter (approximate)        1.098 Inches"));
        EXPECT_TRUE(HasRow(Page(sheet), "Beta (approximate)               0.53123"));
    }
}

TEST_F(ReportPageTest, NoModeSelectedIsFatal) {
    ReportSheet sheet = LiquidSheet();
    sheet.inputs.mode.reset();
    ExpectFatal(sheet, "Calculation type not selected");
}

TEST_F(ReportPageTest, UnknownPipeUnitIsFatal) {
    ReportSheet sheet = LiquidSheet();
    sheet.pipeIdUnit = "Feet";
    ExpectFatal(sheet, "Unrecognized pipe ID unit for 'User Entered' pipe ID");
}

TEST_F(ReportPageTest, SecondCustomerLineThatIsEmptyTakesNoRow) {
    module_.CustLine2 = "";
    const Rows rows = RowsOf(LiquidSheet());
    EXPECT_EQ(rows.at(5), "Customer: Northfield Refinery");
    EXPECT_EQ(rows.at(6), "     Tag: FE-4102");
    EXPECT_EQ(rows.at(7), "");
    EXPECT_EQ(rows.at(8), "Flow Rate                       1,234.50 Gallons/Minute");
}

TEST_F(ReportPageTest, SecondCustomerLineOfBlanksTakesNoRow) {
    module_.CustLine2 = "    ";
    EXPECT_EQ(RowsOf(LiquidSheet()).at(6), "     Tag: FE-4102");
    module_.CustLine2 = "\r\n \t";  // pasted
    EXPECT_EQ(RowsOf(LiquidSheet()).at(6), "     Tag: FE-4102");
}

TEST_F(ReportPageTest, SecondCustomerLineKeepsItsOwnBlanks) {
    module_.CustLine2 = "  Unit 4 ";
    EXPECT_EQ(RowsOf(LiquidSheet()).at(6), "            Unit 4 ");
}

TEST_F(ReportPageTest, EmptyCustomerAndTagKeepTheirLabels) {
    module_.CustLine1 = "";
    module_.CustLine2 = "";
    module_.TagText = "";
    const Rows rows = RowsOf(LiquidSheet());
    EXPECT_EQ(rows.at(5), "Customer: ");
    EXPECT_EQ(rows.at(6), "     Tag: ");
}

TEST_F(ReportPageTest, PastedLineBreaksBecomeBlanks) {
    module_.CustLine1 = "Northfield\r\nRefinery\nUnit\t4";
    module_.TagText = "FE\u20284102";
    const Rows rows = RowsOf(LiquidSheet());
    EXPECT_EQ(rows.at(5), "Customer: Northfield Refinery Unit 4");
    EXPECT_EQ(rows.at(7), "     Tag: FE 4102");
}

TEST_F(ReportPageTest, CustomerLinesAreNotChangedByPrinting) {
    module_.CustLine1 = "A\nB";
    Page(LiquidSheet());
    EXPECT_EQ(module_.CustLine1, "A\nB");
    EXPECT_EQ(module_.CustLine2, "Unit 4, Crude Distillation");
    EXPECT_EQ(module_.TagText, "FE-4102");
}

TEST_F(ReportPageTest, SteamStateNamesTheTable) {
    const std::string blanks(41, ' ');
    ReportSheet sheet = SteamSheet();
    sheet.inputs.steamFromTable = true;
    EXPECT_TRUE(HasRow(Page(sheet), blanks + "(Saturated - from ASME table)"));
    sheet.saturated = false;
    EXPECT_TRUE(HasRow(Page(sheet), blanks + "(Superheated)"));
    sheet.inputs.steamFromTable = false;
    EXPECT_TRUE(HasRow(Page(sheet), blanks + "(Superheated)"));
}

TEST_F(ReportPageTest, PressureAndTemperatureOptions) {
    ReportSheet sheet = GasSheet();
    sheet.inputs.degC = true;
    sheet.inputs.absolutePressure = true;
    sheet.inputs.pressUnit = {"kPa", 0.1450378F};
    EXPECT_TRUE(HasRow(Page(sheet), "Operating Temperature            (20.00) Deg C"));
    EXPECT_TRUE(HasRow(Page(sheet), "Operating Pressure                150.00 kPa (absolute)"));
    sheet = SteamSheet();
    sheet.inputs.absolutePressure = true;
    EXPECT_TRUE(HasRow(Page(sheet), "Operating Pressure                100.00 PSI (absolute)"));
}

TEST_F(ReportPageTest, HiddenGasGravityTakesNoRow) {
    ReportSheet sheet = GasSheet();
    sheet.inputs.gasSGbVisible = false;
    const Rows rows = RowsOf(sheet);
    EXPECT_EQ(rows.at(12), "Operating Pressure                150.00 PSI (gauge)");
    EXPECT_EQ(rows.at(13), "Compressibility Factor:");
}

TEST_F(ReportPageTest, EnteredCompressibility) {
    ReportSheet sheet = GasSheet();
    sheet.inputs.compCorrection = CompCorrection::Zf;
    sheet.inputs.zf = "0.95";
    EXPECT_EQ(RowsOf(sheet).at(14), "Compressibility Factor:");
    EXPECT_EQ(RowsOf(sheet).at(15), "     Zf                          0.95000");
}

TEST_F(ReportPageTest, MeasuredGasDensity) {
    ReportSheet sheet = GasSheet();
    sheet.inputs.compCorrection = CompCorrection::Density;
    sheet.inputs.zf = "1.2345";
    sheet.inputs.zfDensityUnit = {"kg/cubic meter", 0.06242798F};
    EXPECT_EQ(RowsOf(sheet).at(14), "Compressibility Factor:");
    EXPECT_EQ(RowsOf(sheet).at(15), "     Operating Density             1.235 kg/cubic meter");
}

TEST_F(ReportPageTest, LiquidGravityFromDensity) {
    ReportSheet sheet = LiquidSheet();
    sheet.inputs.sgCalculated = true;
    sheet.inputs.density = "61.5";
    const Rows rows = RowsOf(sheet);
    EXPECT_EQ(rows.at(12), "Flowing Specific Gravity            0.99 (Calculated from Density)");
    EXPECT_EQ(rows.at(13), "Operating Density                 61.500 lb/cubic foot");
    EXPECT_EQ(rows.at(14), "");
}

TEST_F(ReportPageTest, TypedLiquidGravityHasNoDensityRow) {
    ReportSheet sheet = LiquidSheet();
    sheet.inputs.density = "61.5";
    EXPECT_EQ(RowOf(sheet, "Operating Density"), "no row Operating Density");
}

TEST_F(ReportPageTest, MetricPipeShowsWhatTheListShows) {
    ReportSheet sheet = LiquidSheet();
    sheet.pipeIdUnit = "Millimeters";
    sheet.pipeIdText = "2.067\"  (52.50 mm)  Sch 40, STD, Sch 40S";
    EXPECT_TRUE(HasRow(Page(sheet), "Pipe Diameter                      52.50 Millimeters"));
    sheet.pipeIdUnit = "Centimeters";
    sheet.pipeIdText = "2.067\"  (5.25 cm)  Sch 40, STD, Sch 40S";
    EXPECT_TRUE(HasRow(Page(sheet), "Pipe Diameter                       5.25 Centimeters"));
}

TEST_F(ReportPageTest, UserEnteredPipe) {
    ReportSheet sheet = LiquidSheet();
    sheet.inputs.pipeDiameter = "3.250";
    sheet.pipeIdText = "3.250\" (User Entered)";
    EXPECT_TRUE(HasRow(Page(sheet), "Pipe Diameter (User Entered)       3.250 Inches"));
    sheet.pipeIdUnit = "Millimeters";
    sheet.pipeIdText = "3.250\"  (82.55 mm)   (User Entered)";
    EXPECT_TRUE(HasRow(Page(sheet), "Pipe Diameter (User Entered)       82.55 Millimeters"));
}

TEST_F(ReportPageTest, MetricPipeWithoutMetricTextIsEmpty) {
    ReportSheet sheet = LiquidSheet();
    sheet.pipeIdUnit = "Millimeters";
    EXPECT_TRUE(HasRow(Page(sheet), "Pipe Diameter                            Millimeters"));
}

TEST_F(ReportPageTest, FieldWithoutNumberIsEmpty) {
    ReportSheet sheet = LiquidSheet();
    sheet.inputs.flow = "";
    sheet.inputs.beta = "abc";
    EXPECT_TRUE(HasRow(Page(sheet), "Flow Rate                                Gallons/Minute"));
    EXPECT_TRUE(HasRow(Page(sheet), "Beta (approximate)                      "));
}

TEST_F(ReportPageTest, UnitTextsStandAsTheListHasThem) {
    ReportSheet sheet = LiquidSheet();
    sheet.inputs.flowUnit = {"Cubic Meters ", 264.172F};  // ends in a blank
    EXPECT_EQ(RowOf(sheet, "Flow Rate"),
              "Flow Rate                       1,234.50 Cubic Meters /Minute");
}

TEST_F(ReportPageTest, NumbersAsTheUsersSystemWritesThem) {
    Module1 german(platform_, kGermany);
    ReportSheet sheet = LiquidSheet();
    sheet.inputs.flow = {"1.234,5", kGermany};
    sheet.inputs.deltaP = {"-100", kGermany};
    sheet.inputs.beta = {"0,53123", kGermany};
    ReportPage page = ComposeReport(sheet, german);
    EXPECT_TRUE(HasRow(page, "Flow Rate                       1.234,50 Gallons/Minute"));
    EXPECT_TRUE(HasRow(page, "Differential Pressure           (100,00) Inches Water"));
    EXPECT_TRUE(HasRow(page, "Beta (approximate)               0,53123"));

    // The group separator is three bytes long, but one character.
    Module1 french(platform_, kFrance);
    sheet.inputs.flow = {"12345", kFrance};
    page = ComposeReport(sheet, french);
    EXPECT_TRUE(HasRow(page, "Flow Rate                      12\u202F345,00 Gallons/Minute"));

    sheet = GasSheet();
    page = ComposeReport(sheet, german);
    EXPECT_TRUE(HasRow(page, "     Zf                          1,00000 (assumed)"));
}

TEST_F(ReportPageTest, MoreDigitsThanASingleHolds) {
    ReportSheet sheet = LiquidSheet();
    sheet.inputs.flow = "123456789.12";
    EXPECT_EQ(RowOf(sheet, "Flow Rate"), "Flow Rate                 123,456,789.12 Gallons/Minute");
}

TEST_F(ReportPageTest, HalvesRoundAwayFromZero) {
    ReportSheet sheet = LiquidSheet();
    sheet.inputs.deltaP = "0.005";
    EXPECT_EQ(RowOf(sheet, "Differential Pressure"),
              "Differential Pressure               0.01 Inches Water");
    sheet.inputs.deltaP = "-0.001";
    EXPECT_EQ(RowOf(sheet, "Differential Pressure"),
              "Differential Pressure               0.00 Inches Water");
}

TEST_F(ReportPageTest, ValueTooLongForItsColumnFollowsOneBlank) {
    ReportSheet sheet = LiquidSheet();
    sheet.inputs.deltaP = "1e15";  // 24 characters, 45 with the label
    EXPECT_EQ(RowOf(sheet, "Differential Pressure"),
              "Differential Pressure 1,000,000,000,000,000.00 Inches Water");
}

}  // namespace
}  // namespace tarvix::testing
