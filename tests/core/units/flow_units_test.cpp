// The flow units of the three fluids against a second copy of their entries.
#include "units/flow_units.h"

#include "data_file.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

namespace tarvix {

namespace {

using namespace testing;

class FluidFlowUnitsTest : public ::testing::TestWithParam<const char*> {};

TEST_P(FluidFlowUnitsTest, AreTheListedOnesEntryByEntry) {
    const std::string fluid = GetParam();
    const auto units = FlowUnitsOf(fluid).units;
    const auto rows = RowsOf(ReadDataFile("units.tsv"), "flow " + fluid);
    ASSERT_EQ(units.size(), rows.size());
    ASSERT_FALSE(rows.empty());
    for (size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(rows[i][2]);
        EXPECT_EQ(rows[i][1], std::to_string(i));
        EXPECT_EQ(units[i].text, rows[i][2]);
        EXPECT_EQ(units[i].kind, rows[i][3]);
        EXPECT_EQ(units[i].factor, std::strtof(rows[i][4].c_str(), nullptr));
    }
}

INSTANTIATE_TEST_SUITE_P(FlowUnits, FluidFlowUnitsTest, ::testing::Values("L", "S", "G"));

TEST(FlowUnitsTest, EachFluidHasItsDefaults) {
    EXPECT_EQ(FlowUnitsOf("L").defaultFlowUnit, "Gallons");
    EXPECT_EQ(FlowUnitsOf("L").defaultTimeUnit, "Minute");
    EXPECT_EQ(FlowUnitsOf("S").defaultFlowUnit, "Pounds");
    EXPECT_EQ(FlowUnitsOf("S").defaultTimeUnit, "Hour");
    EXPECT_EQ(FlowUnitsOf("G").defaultFlowUnit, "Standard Cubic Feet");
    EXPECT_EQ(FlowUnitsOf("G").defaultTimeUnit, "Day");
}

TEST(FlowUnitsTest, EveryDefaultIsInItsList) {
    for (const char* fluid : {"L", "S", "G"}) {
        const auto flowUnits = FlowUnitsOf(fluid);
        int flow = 0;
        for (const FlowUnit& unit : flowUnits.units) {
            flow += unit.text == flowUnits.defaultFlowUnit ? 1 : 0;
        }
        int time = 0;
        for (const Unit& unit : kTimeUnits) {
            time += unit.text == flowUnits.defaultTimeUnit ? 1 : 0;
        }
        EXPECT_EQ(flow, 1) << fluid;
        EXPECT_EQ(time, 1) << fluid;
    }
}

TEST(FlowUnitsTest, AnyOtherFluidHasNoUnits) {
    for (const char* fluid : {"", "l", "g", "s", "LG", "X", " L"}) {
        const auto flowUnits = FlowUnitsOf(fluid);
        EXPECT_TRUE(flowUnits.units.empty()) << fluid;
        EXPECT_EQ(flowUnits.defaultFlowUnit, "") << fluid;
        EXPECT_EQ(flowUnits.defaultTimeUnit, "") << fluid;
    }
}

TEST(FlowUnitsTest, KindsAreOneLetter) {
    EXPECT_EQ(kVolumeKind, "V");
    EXPECT_EQ(kMassKind, "M");
}

TEST(FlowUnitsTest, TenStandardCubicMetersPerHourInCubicFeet) {
    const float cubicFeetPerHour = 10.0F * FlowUnitsOf("G").units[3].factor;
    EXPECT_EQ(cubicFeetPerHour, 353.1466F);
    EXPECT_EQ(cubicFeetPerHour / kTimeUnits[1].factor, 5.885777F);
}

TEST(FlowUnitsTest, OneGallonPerSecondIsNotQuiteSixtyPerMinute) {
    const float perMinute = 1.0F / kTimeUnits[3].factor;
    EXPECT_EQ(perMinute, 59.99988F);
}

}  // namespace

}  // namespace tarvix
