// The flow units of the three fluids against a second copy of their entries.
#include "units/flow_units.h"

#include "data_file.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace tarvix {

namespace {

using namespace testing;

// A fluid with the letter by which the copy names it.
using NamedFluid = std::pair<const char*, Fluid>;

class FluidFlowUnitsTest : public ::testing::TestWithParam<NamedFluid> {};

TEST_P(FluidFlowUnitsTest, AreTheListedOnesEntryByEntry) {
    const auto& [letter, fluid] = GetParam();
    const auto units = FlowUnitsOf(fluid).units;
    const auto rows = RowsOf(ReadDataFile("units.tsv"), std::string("flow ") + letter);
    ASSERT_EQ(units.size(), rows.size());
    ASSERT_FALSE(rows.empty());
    for (size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(rows[i][2]);
        EXPECT_EQ(rows[i][1], std::to_string(i));
        EXPECT_EQ(units[i].text, rows[i][2]);
        EXPECT_EQ(units[i].kind == FlowKind::Mass ? "M" : "V", rows[i][3]);
        EXPECT_EQ(units[i].factor, std::strtof(rows[i][4].c_str(), nullptr));
    }
}

INSTANTIATE_TEST_SUITE_P(FlowUnits, FluidFlowUnitsTest,
                         ::testing::Values(NamedFluid{"L", Fluid::Liquid},
                                           NamedFluid{"S", Fluid::Steam},
                                           NamedFluid{"G", Fluid::Gas}));

TEST(FlowUnitsTest, EachFluidHasItsDefaults) {
    EXPECT_EQ(FlowUnitsOf(Fluid::Liquid).defaultFlowUnit, "Gallons");
    EXPECT_EQ(FlowUnitsOf(Fluid::Liquid).defaultTimeUnit, "Minute");
    EXPECT_EQ(FlowUnitsOf(Fluid::Steam).defaultFlowUnit, "Pounds");
    EXPECT_EQ(FlowUnitsOf(Fluid::Steam).defaultTimeUnit, "Hour");
    EXPECT_EQ(FlowUnitsOf(Fluid::Gas).defaultFlowUnit, "Standard Cubic Feet");
    EXPECT_EQ(FlowUnitsOf(Fluid::Gas).defaultTimeUnit, "Day");
}

TEST(FlowUnitsTest, EveryDefaultIsInItsList) {
    for (const Fluid fluid : {Fluid::Liquid, Fluid::Steam, Fluid::Gas}) {
        SCOPED_TRACE(static_cast<int>(fluid));
        const auto flowUnits = FlowUnitsOf(fluid);
        int flow = 0;
        for (const FlowUnit& unit : flowUnits.units) {
            flow += unit.text == flowUnits.defaultFlowUnit ? 1 : 0;
        }
        int time = 0;
        for (const Unit& unit : kTimeUnits) {
            time += unit.text == flowUnits.defaultTimeUnit ? 1 : 0;
        }
        EXPECT_EQ(flow, 1);
        EXPECT_EQ(time, 1);
    }
}

TEST(FlowUnitsTest, AFluidHasACodeOfOneCapitalLetter) {
    EXPECT_EQ(FluidOf("L"), Fluid::Liquid);
    EXPECT_EQ(FluidOf("S"), Fluid::Steam);
    EXPECT_EQ(FluidOf("G"), Fluid::Gas);
    for (const char* code : {"", "l", "g", "s", "LG", "X", " L"}) {
        EXPECT_EQ(FluidOf(code), std::nullopt) << code;
    }
}

TEST(FlowUnitsTest, TenStandardCubicMetersPerHourInCubicFeet) {
    const float cubicFeetPerHour = 10.0F * FlowUnitsOf(Fluid::Gas).units[3].factor;
    EXPECT_EQ(cubicFeetPerHour, 353.1466F);
    EXPECT_EQ(cubicFeetPerHour / kTimeUnits[1].factor, 5.885777F);
}

TEST(FlowUnitsTest, OneGallonPerSecondIsNotQuiteSixtyPerMinute) {
    const float perMinute = 1.0F / kTimeUnits[3].factor;
    EXPECT_EQ(perMinute, 59.99988F);
}

}  // namespace

}  // namespace tarvix
