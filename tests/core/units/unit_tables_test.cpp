// The unit lists against a second copy of their entries, and the derivation of the factors that are
// quotients.
#include "units/unit_tables.h"

#include "data_file.h"
#include "units/flow_units.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarvix::testing {
namespace {

std::string KindOf(const Unit& /*unit*/) {
    return "";
}
std::string KindOf(const FlowUnit& unit) {
    return unit.kind == FlowKind::Mass ? "M" : "V";
}

template <typename Units>
void ExpectSameUnits(const Units& units, const std::string& list) {
    const auto rows = RowsOf(ReadDataFile("units.tsv"), list);
    ASSERT_EQ(units.size(), rows.size()) << list;
    for (size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(list + " " + rows[i][2]);
        EXPECT_EQ(rows[i][1], std::to_string(i));
        EXPECT_EQ(units[i].text, rows[i][2]);
        EXPECT_EQ(KindOf(units[i]), rows[i][3]);
        EXPECT_EQ(units[i].factor, std::strtof(rows[i][4].c_str(), nullptr));
    }
}

TEST(UnitTablesTest, AreTheListedOnesEntryByEntry) {
    ExpectSameUnits(kPressUnits, "press");
    ExpectSameUnits(kDeltaPUnits, "deltaP");
    ExpectSameUnits(kDensityUnits, "density");
    ExpectSameUnits(kLengthUnits, "length");
    ExpectSameUnits(kTimeUnits, "time");
    ExpectSameUnits(FlowUnitsOf(Fluid::Liquid).units, "flow L");
    ExpectSameUnits(FlowUnitsOf(Fluid::Steam).units, "flow S");
    ExpectSameUnits(FlowUnitsOf(Fluid::Gas).units, "flow G");
}

TEST(UnitTablesTest, AFluidHasACodeOfOneCapitalLetter) {
    EXPECT_EQ(FluidOf("L"), Fluid::Liquid);
    EXPECT_EQ(FluidOf("S"), Fluid::Steam);
    EXPECT_EQ(FluidOf("G"), Fluid::Gas);
    for (const char* code : {"", "l", "g", "s", "LG", "X", " L"}) {
        EXPECT_EQ(FluidOf(code), std::nullopt) << code;
    }
}

TEST(UnitTablesTest, AQuotientIsTheSingleOneWithSevenDigits) {
    // Operands and results are singles, step by step.
    const float poundProduct = 2.698825F * 14.696F;
    const float poundSum = 459.67F + 60.0F;
    const float poundQuotient = poundProduct / poundSum;
    struct Quotient {
        const char* list;
        const char* unit;
        float factor;
    };
    for (const auto& [list, unit, factor] : {
             Quotient{"press", "kg/cm2", 10000.0F / 703.0696F},
             Quotient{"press", "kPa", 1.0F / 6.894757F},
             Quotient{"press", "Pa", 1.0F / 6894.757F},
             Quotient{"density", "kg/cubic meter", 1.0F / 16.01846F},
             Quotient{"length", "Millimeters", 1.0F / 25.4F},
             Quotient{"length", "Centimeters", 1.0F / 2.54F},
             Quotient{"flow G", "Pounds", 1.0F / poundQuotient},
             Quotient{"flow G", "Kilograms", 13.1F / 0.4535924F},
             Quotient{"flow G", "Standard Cubic Meters", 1.0F / 0.02831685F},
         }) {
        SCOPED_TRACE(std::string(list) + " " + unit);
        char sevenDigits[32];
        std::snprintf(sevenDigits, sizeof sevenDigits, "%.7g", double{factor});
        std::vector<std::string> found;
        for (const auto& row : RowsOf(ReadDataFile("units.tsv"), list)) {
            if (row[2] == unit) {
                found.push_back(row[4]);
            }
        }
        EXPECT_EQ(found, std::vector<std::string>{sevenDigits});
    }
}

}  // namespace
}  // namespace tarvix::testing
