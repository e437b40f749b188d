// The unit lists against a second copy of their entries.
#include "units/unit_tables.h"

#include "data_file.h"
#include "units/flow_units.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

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

}  // namespace
}  // namespace tarvix::testing
