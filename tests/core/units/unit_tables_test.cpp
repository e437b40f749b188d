// The unit lists against a second copy of their entries, and the derivation of the factors that are
// quotients.
#include "units/unit_tables.h"

#include "data_file.h"
#include "named_row.h"
#include "units/flow_units.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <span>
#include <string>

namespace tarvix {

namespace {

using namespace testing;

void ExpectSameUnits(std::span<const Unit> units, const std::string& list) {
    const auto rows = RowsOf(ReadDataFile("units.tsv"), list);
    ASSERT_EQ(units.size(), rows.size());
    for (size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(rows[i][2]);
        EXPECT_EQ(rows[i][1], std::to_string(i));
        EXPECT_EQ(units[i].text, rows[i][2]);
        EXPECT_EQ(rows[i][3], "");
        EXPECT_EQ(units[i].factor, std::strtof(rows[i][4].c_str(), nullptr));
    }
}

TEST(UnitTablesTest, PressureUnitsEntryByEntry) {
    ExpectSameUnits(kPressUnits, "press");
}

TEST(UnitTablesTest, DifferentialPressureUnitsEntryByEntry) {
    ExpectSameUnits(kDeltaPUnits, "deltaP");
}

TEST(UnitTablesTest, DensityUnitsEntryByEntry) {
    ExpectSameUnits(kDensityUnits, "density");
}

TEST(UnitTablesTest, LengthUnitsEntryByEntry) {
    ExpectSameUnits(kLengthUnits, "length");
}

TEST(UnitTablesTest, TimeUnitsEntryByEntry) {
    ExpectSameUnits(kTimeUnits, "time");
}

TEST(UnitTablesTest, LengthUnitNamesAreThoseOfTheTable) {
    EXPECT_EQ(kLengthUnits[0].text, kInches);
    EXPECT_EQ(kLengthUnits[1].text, kMillimeters);
    EXPECT_EQ(kLengthUnits[2].text, kCentimeters);
}

TEST(UnitTablesTest, TheFirstUnitOfAListIsItsCalculationUnit) {
    EXPECT_EQ(kPressUnits[0].factor, 1.0F);
    EXPECT_EQ(kDeltaPUnits[0].factor, 1.0F);
    EXPECT_EQ(kDensityUnits[0].factor, 1.0F);
    EXPECT_EQ(kLengthUnits[0].factor, 1.0F);
    EXPECT_EQ(kTimeUnits[0].factor, 1.0F);
}

// Quotients ---------------------------------------------------------------------------------------

struct QuotientRow : NamedRow {
    const char* list;
    const char* text;
    float quotient;
};

class ComputedFactor : public ::testing::TestWithParam<QuotientRow> {};

TEST_P(ComputedFactor, IsTheSingleQuotientWithSevenDigits) {
    const auto& row = GetParam();
    char sevenDigits[32];
    std::snprintf(sevenDigits, sizeof sevenDigits, "%.7g", double{row.quotient});
    int found = 0;
    for (const auto& unit : RowsOf(ReadDataFile("units.tsv"), row.list)) {
        if (unit[2] == row.text) {
            EXPECT_EQ(unit[4], sevenDigits);
            ++found;
        }
    }
    EXPECT_EQ(found, 1);
}

// Operands and results are singles, step by step.
const float kPoundProduct = 2.698825F * 14.696F;
const float kPoundSum = 459.67F + 60.0F;
const float kPoundQuotient = kPoundProduct / kPoundSum;

// clang-format off
const QuotientRow kQuotientRows[] = {
    {"KgPerCm2",             "press",   "kg/cm2",         10000.0F / 703.0696F},
    {"Kilopascal",           "press",   "kPa",            1.0F / 6.894757F},
    {"Pascal",               "press",   "Pa",             1.0F / 6894.757F},
    {"KgPerCubicMeter",      "density", "kg/cubic meter", 1.0F / 16.01846F},
    {"Millimeter",           "length",  "Millimeters",    1.0F / 25.4F},
    {"Centimeter",           "length",  "Centimeters",    1.0F / 2.54F},
    {"PoundOfAir",           "flow G",  "Pounds",         1.0F / kPoundQuotient},
    {"KilogramOfAir",        "flow G",  "Kilograms",      13.1F / 0.4535924F},
    {"StandardCubicMeter",   "flow G",  "Standard Cubic Meters", 1.0F / 0.02831685F},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(UnitTables, ComputedFactor, ::testing::ValuesIn(kQuotientRows), kRowName);

// What the factors do -----------------------------------------------------------------------------

TEST(UnitTablesTest, HundredKilopascalAre14Point50378Psi) {
    const float psi = 100.0F * kPressUnits[2].factor;
    EXPECT_EQ(kPressUnits[2].text, "kPa");
    EXPECT_EQ(psi, 14.50378F);
}

TEST(UnitTablesTest, OnePascalOfDifferentialPressureCounts4017Point5InchesOfWater) {
    EXPECT_EQ(kDeltaPUnits[8].text, "Pa");
    EXPECT_EQ(1.0F * kDeltaPUnits[8].factor, 4017.5F);
}

}  // namespace

}  // namespace tarvix
