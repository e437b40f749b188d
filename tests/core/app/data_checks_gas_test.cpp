// The check of a gas's inputs.
#include "app/sheet/data_checks.h"
#include "app/sheets.h"
#include "named_row.h"

#include <gtest/gtest.h>

namespace tarvix {

namespace {

using namespace testing;

void TypedZf(InputSheet& sheet, const char* zf) {
    sheet.compCorrection = CompCorrection::Zf;
    sheet.zfVisible = true;
    sheet.zf = zf;
}
void TypedDensity(InputSheet& sheet, const char* density) {
    sheet.compCorrection = CompCorrection::Density;
    sheet.zfVisible = true;
    sheet.zf = density;
}

class DataChkGasRow : public SheetRowTest {};

TEST_P(DataChkGasRow, SaysWhatIsWrong) {
    InputSheet sheet = GasSheet();
    GetParam().change(sheet);
    EXPECT_EQ(MessageOf(DataChkGas, sheet), GetParam().message);
}

// clang-format off
const SheetRow kGasRows[] = {
    {"Good", [](InputSheet&) {}, ""},
    {"GoodZf", [](InputSheet& s) { TypedZf(s, "0.9"); }, ""},
    {"GoodDensity", [](InputSheet& s) { TypedDensity(s, "0.6"); }, ""},
    // The field being edited.
    {"EditedTemperatureNotNumeric",
     [](InputSheet& s) { s.activeField = Field::Tf; s.tf = "warm"; },
     "Non-Numeric Op. Temperature"},
    {"EditedPressureNotNumeric",
     [](InputSheet& s) { s.activeField = Field::Pf; s.pf = "x"; },
     "Non-Numeric Op. Pressure"},
    {"EditedGravityNotNumeric",
     [](InputSheet& s) { s.activeField = Field::GasSGb; s.gasSGb = "x"; },
     "Non-Numeric Base Specific Gravity"},
    {"EditedZfNotNumeric",
     [](InputSheet& s) { s.activeField = Field::Zf; TypedZf(s, "x"); },
     "Non-Numeric Zf"},
    {"EditedDensityNotNumeric",
     [](InputSheet& s) { s.activeField = Field::Zf; TypedDensity(s, "x"); },
     "Non-Numeric Density"},
    {"EditedTemperatureZeroIsGood",
     [](InputSheet& s) { s.activeField = Field::Tf; s.tf = "0"; }, ""},
    {"EditedTemperatureNegativeIsGood",
     [](InputSheet& s) { s.activeField = Field::Tf; s.tf = "-20"; }, ""},
    {"EditedAbsoluteZero",
     [](InputSheet& s) { s.activeField = Field::Pf; s.absolutePressure = true; s.pf = "0"; },
     "Op. Pressure must be greater than 0"},
    {"EditedGaugeVacuum",
     [](InputSheet& s) { s.activeField = Field::Pf; s.pf = "-14.7"; },
     "Op. Pressure must be greater than -14.7000 PSI."},
    {"EditedGravityZero",
     [](InputSheet& s) { s.activeField = Field::GasSGb; s.gasSGb = "0"; },
     "Base Specific Gravity must be greater than 0."},
    {"EditedZfZero",
     [](InputSheet& s) { s.activeField = Field::Zf; TypedZf(s, "0"); },
     "Zf must be greater than 0."},
    {"EditedDensityNegative",
     [](InputSheet& s) { s.activeField = Field::Zf; TypedDensity(s, "-1"); },
     "Density must be greater than 0."},
    {"EditedEmptyTemperature",
     [](InputSheet& s) { s.activeField = Field::Tf; s.tf = ""; },
     "Incomplete fluid data (Op. Temperature)."},
    {"EditedBeforeTheSet",
     [](InputSheet& s) { s.activeField = Field::GasSGb; s.gasSGb = "x"; s.tf = ""; },
     "Non-Numeric Base Specific Gravity"},
    // The whole set, in the order of the fields.
    {"AllEmpty",
     [](InputSheet& s) { s.tf = ""; s.pf = ""; s.gasSGb = ""; TypedZf(s, ""); },
     "Incomplete fluid data (Op. Temperature, Op. Pressure, Base Specific Gravity, Zf)."},
    {"PressureAndDensityEmpty",
     [](InputSheet& s) { s.pf = ""; TypedDensity(s, ""); },
     "Incomplete fluid data (Op. Pressure, Density)."},
    {"AllNotNumeric",
     [](InputSheet& s) { s.tf = "a"; s.pf = "b"; s.gasSGb = "c"; TypedDensity(s, "d"); },
     "Non-Numeric fluid data (Op. Temperature, Op. Pressure, Base Specific Gravity, Density)."},
    {"TemperatureNotNumeric", [](InputSheet& s) { s.tf = "sixty"; },
     "Non-Numeric fluid data (Op. Temperature)."},
    {"EmptyBeforeNonNumeric", [](InputSheet& s) { s.tf = "x"; s.gasSGb = ""; },
     "Incomplete fluid data (Base Specific Gravity)."},
    {"GravityAndZfZero", [](InputSheet& s) { s.gasSGb = "0"; TypedZf(s, "0"); },
     "Base Specific Gravity, Zf must be greater than 0."},
    {"GravityZero", [](InputSheet& s) { s.gasSGb = "0"; },
     "Base Specific Gravity must be greater than 0."},
    {"DensityZero", [](InputSheet& s) { TypedDensity(s, "0"); },
     "Density must be greater than 0."},
    {"TemperatureZeroIsGood", [](InputSheet& s) { s.tf = "0"; }, ""},
    {"TwentyBelowIsGood", [](InputSheet& s) { s.tf = "-20"; }, ""},
    {"BelowAbsoluteZeroIsGoodHere", [](InputSheet& s) { s.tf = "-1000"; }, ""},
    {"PressureZeroGaugeIsGood", [](InputSheet& s) { s.pf = "0"; }, ""},
    {"AbsoluteZero", [](InputSheet& s) { s.absolutePressure = true; s.pf = "0"; },
     "Op. Pressure must be greater than 0."},
    {"GaugeVacuum", [](InputSheet& s) { s.pf = "-14.7"; },
     "Op. Pressure must be greater than -14.7000 PSI."},
    {"GaugeVacuumInMbar",
     [](InputSheet& s) { s.pressUnit = UnitNamed(kPressUnits, "mbar"); s.pf = "-1100"; },
     "Op. Pressure must be greater than -1,013.5270 mbar."},
    {"LimitBeforePositive", [](InputSheet& s) { s.pf = "-20"; s.gasSGb = "0"; },
     "Op. Pressure must be greater than -14.7000 PSI."},
    {"NonNumericBeforeLimit", [](InputSheet& s) { s.pf = "-20"; s.gasSGb = "x"; },
     "Non-Numeric fluid data (Base Specific Gravity)."},
    // Hidden fields are not looked at.
    {"HiddenGravity", [](InputSheet& s) { s.gasSGbVisible = false; s.gasSGb = ""; }, ""},
    {"HiddenGravityZero", [](InputSheet& s) { s.gasSGbVisible = false; s.gasSGb = "0"; }, ""},
    {"HiddenZf", [](InputSheet& s) { s.zf = "abc"; }, ""},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(DataChecks, DataChkGasRow, ::testing::ValuesIn(kGasRows), kRowName);

class DataChkGasTest : public SheetTest {};

TEST_F(DataChkGasTest, StoresTemperaturesGravityAndPressures) {
    InputSheet sheet = GasSheet();
    sheet.tf = "75.5";
    sheet.gasSGb = "0.6";
    sheet.pressUnit = UnitNamed(kPressUnits, "bar");
    sheet.pf = "7";
    EXPECT_EQ(MessageOf(DataChkGas, sheet), "");
    EXPECT_EQ(module.working.FlowTempF, 75.5F);
    EXPECT_EQ(module.working.BaseTempF, 60.0F);
    EXPECT_EQ(module.working.BaseSG, 0.6F);
    EXPECT_EQ(module.working.OperPress, 7.0F * 14.5039F);
    EXPECT_EQ(module.working.BasePress, 14.7F);
    EXPECT_EQ(module.working.OperDensity, 0.0F);
    EXPECT_EQ(module.working.UserZf, 0.0F);
    EXPECT_EQ(module.working.FlowingSG, 0.0F);
}

TEST_F(DataChkGasTest, CelsiusIsConverted) {
    InputSheet sheet = GasSheet();
    sheet.degC = true;
    sheet.tf = "100";
    EXPECT_EQ(MessageOf(DataChkGas, sheet), "");
    EXPECT_EQ(module.working.FlowTempF, 212.0F);
    sheet.tf = "-40";
    EXPECT_EQ(MessageOf(DataChkGas, sheet), "");
    EXPECT_EQ(module.working.FlowTempF, -40.0F);
}

TEST_F(DataChkGasTest, TheCorrectionDecidesWhatTheThirdFieldIs) {
    InputSheet sheet = GasSheet();
    module.working.OperDensity = 3.0F;
    module.working.UserZf = 4.0F;
    TypedZf(sheet, "0.9");
    EXPECT_EQ(MessageOf(DataChkGas, sheet), "");
    EXPECT_EQ(module.working.UserZf, 0.9F);
    EXPECT_EQ(module.working.OperDensity, 3.0F);

    TypedDensity(sheet, "10");
    sheet.zfDensityUnit = UnitNamed(kDensityUnits, "kg/cubic meter");
    sheet.densityUnit = {"none of its business", 1000.0F};
    EXPECT_EQ(MessageOf(DataChkGas, sheet), "");
    EXPECT_EQ(module.working.OperDensity, 0.6242798F);
    EXPECT_EQ(module.working.UserZf, 0.9F);
}

TEST_F(DataChkGasTest, AHiddenGravityIsNotStored) {
    InputSheet sheet = GasSheet();
    module.working.BaseSG = 7.0F;
    sheet.gasSGbVisible = false;
    sheet.gasSGb = "0.6";
    EXPECT_EQ(MessageOf(DataChkGas, sheet), "");
    EXPECT_EQ(module.working.BaseSG, 7.0F);
}

TEST_F(DataChkGasTest, ABadSheetLeavesTheWorkingValues) {
    module.working = {1, 2, 3, 4, 5, 6, 7, 8};
    InputSheet sheet = GasSheet();
    sheet.gasSGb = "0";
    EXPECT_NE(MessageOf(DataChkGas, sheet), "");
    EXPECT_EQ(module.working.BaseSG, 2.0F);
    EXPECT_EQ(module.working.FlowTempF, 3.0F);
    EXPECT_EQ(module.working.BaseTempF, 4.0F);
    EXPECT_EQ(module.working.OperPress, 5.0F);
    EXPECT_EQ(module.working.BasePress, 6.0F);
    EXPECT_EQ(module.working.OperDensity, 7.0F);
    EXPECT_EQ(module.working.UserZf, 8.0F);
}

}  // namespace

}  // namespace tarvix
