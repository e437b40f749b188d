// The tables of docs/method.md against the program's own, row by row.
#include "calc/orifice_gas.h"
#include "calc/steam_table.h"
#include "tests/docs/document_figures.h"
#include "tests/docs/double_solver.h"
#include "tests/docs/estimate_error.h"
#include "units/flow_units.h"
#include "units/nominal_sizes.h"
#include "units/unit_tables.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <span>
#include <type_traits>

namespace tarvix::docs {

namespace {

using accuracy::HalfOfLastDigit;

constexpr const char* kMethod = "method.md";

std::string_view WithoutTrailingBlank(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

template <typename UnitType>
void ExpectUnits(const char* name, std::span<const UnitType> units) {
    SCOPED_TRACE(name);
    const FigureTable table = ReadFigures(kMethod, name);
    ASSERT_EQ(table.rows().size(), units.size());
    for (std::size_t i = 0; i < units.size(); ++i) {
        EXPECT_EQ(table.rows()[i][0], WithoutTrailingBlank(units[i].text));
        EXPECT_EQ(static_cast<float>(NumberOf(table.rows()[i][1])), units[i].factor)
            << units[i].text;
        if constexpr (std::is_same_v<UnitType, FlowUnit>) {
            EXPECT_EQ(table.rows()[i][2], units[i].kind == FlowKind::Mass ? "mass" : "volume");
        }
    }
}

float FactorOf(std::span<const FlowUnit> units, std::string_view text) {
    return std::ranges::find(units, text, &FlowUnit::text)->factor;
}

float SteamDensityAt(int psig) {
    return SaturatedSteamDensity(static_cast<float>(psig)).density;
}

double Midway(int below, int above) {
    return (double{SteamDensityAt(below)} + double{SteamDensityAt(above)}) / 2;
}

// A row of "figures kept on purpose": the figure, what it might have been, and the difference.
void ExpectKept(std::string_view row, double figure, double plain) {
    SCOPED_TRACE(row);
    const FigureTable table = ReadFigures(kMethod, "kept");
    EXPECT_NEAR(table.Number(row, 1), figure, std::fabs(figure) * 1e-7);
    EXPECT_NEAR(table.Number(row, 2), plain, HalfOfLastDigit(table.Text(row, 2)));
    const double difference = 100 * (figure / plain - 1);
    EXPECT_NEAR(table.Number(row, 3), difference, HalfOfLastDigit(table.Text(row, 3)));
}

}  // namespace

TEST(MethodTables, UnitFactorsAreTheProgramsOwn) {
    ExpectUnits("pressure", std::span<const Unit>(kPressUnits));
    ExpectUnits("differential pressure", std::span<const Unit>(kDeltaPUnits));
    ExpectUnits("density", std::span<const Unit>(kDensityUnits));
    ExpectUnits("length", std::span<const Unit>(kLengthUnits));
    ExpectUnits("time", std::span<const Unit>(kTimeUnits));
    ExpectUnits("liquid flow", FlowUnitsOf(Fluid::Liquid).units);
    ExpectUnits("gas flow", FlowUnitsOf(Fluid::Gas).units);
    ExpectUnits("steam flow", FlowUnitsOf(Fluid::Steam).units);
}

// What the rounding of divisor and quotient to single adds.
constexpr double kSingleQuotient = 1.2e-7;

// "Formed as" of a quotient, worked out again; the gas's pounds by hand.
TEST(MethodTables, QuotientsGiveTheFactors) {
    for (const char* name : {"pressure", "density", "length"}) {
        const FigureTable table = ReadFigures(kMethod, name);
        for (const auto& row : table.rows()) {
            if (!row[2].empty()) {
                EXPECT_NEAR(NumberOf(row[1]), NumberOf(row[2]),
                            HalfOfLastDigit(row[1]) + NumberOf(row[1]) * kSingleQuotient)
                    << row[0];
            }
        }
    }
    const FigureTable gas = ReadFigures(kMethod, "gas flow");
    EXPECT_NEAR(gas.Number("Pounds"), 1 / (2.698825 * 14.696 / (459.67 + 60)), 5e-6);
    EXPECT_NEAR(gas.Number("Kilograms"), gas.Number("Kilograms", 3), 6e-6);
    EXPECT_NEAR(gas.Number("Standard Cubic Meters"), gas.Number("Standard Cubic Meters", 3), 6e-6);
}

TEST(MethodTables, SteamTableIsTheProgramsOwn) {
    const FigureTable table = ReadFigures(kMethod, "steam table");
    std::size_t i = 0;
    for (const auto& row : table.rows()) {
        for (const std::string& cell : row) {
            ASSERT_LT(i, kSteamTable.size());
            const auto colon = cell.find(": ");
            ASSERT_NE(colon, std::string::npos) << cell;
            EXPECT_EQ(NumberOf(cell.substr(0, colon)), kSteamTable[i].pressurePsig);
            EXPECT_EQ(static_cast<float>(NumberOf(cell.substr(colon + 2))), kSteamTable[i].density)
                << cell;
            ++i;
        }
    }
    EXPECT_EQ(i, kSteamTable.size());
}

TEST(MethodTables, FiguresKeptOnPurpose) {
    const auto liquid = FlowUnitsOf(Fluid::Liquid).units;
    ExpectKept("Metric Tons of a liquid, gallons", double{FactorOf(liquid, "Metric Tons")},
               1000 * double{FactorOf(liquid, "Kilograms")});
    ExpectKept("Kilograms of a gas, standard cubic feet (from 13.1)",
               double{FactorOf(FlowUnitsOf(Fluid::Gas).units, "Kilograms")}, 13.10249 / 0.4535924);
    ExpectKept("Second, minutes", double{kTimeUnits[3].factor}, 1.0 / 60);
    ExpectKept("Steam at 68 psi gauge, lb per cubic foot", double{SteamDensityAt(68)},
               Midway(67, 69));
    ExpectKept("Steam at 385 psi gauge, lb per cubic foot", double{SteamDensityAt(385)},
               Midway(380, 390));

    const auto schedules = SchedulesOf("6");
    const auto sch160 =
        std::ranges::find(schedules, std::string_view("Sch 160 5.187"), &PipeSchedule::text);
    ASSERT_NE(sch160, schedules.end());
    ExpectKept("6 inch pipe \"Sch 160 5.187\", inside diameter in inches",
               NumberOf(sch160->insideDiameter), 5.187);

    const FigureTable kept = ReadFigures(kMethod, "kept");
    const std::string pascal = "Differential pressure in Pa, inches of water";
    EXPECT_EQ(static_cast<float>(kept.Number(pascal)), kDeltaPUnits[8].factor);
    EXPECT_NEAR(kept.Number(pascal, 2), double{kDeltaPUnits[7].factor} / 1000, 1e-9);
    EXPECT_NEAR(kept.Number(pascal) / kept.Number(pascal, 2), 1e6, 1e-3);
}

// Where the document says that a constant comes from, it does, up to the difference that it names.
TEST(MethodTables, ConstantsFollowFromEachOther) {
    const FigureTable constants = ReadFigures(kMethod, "constants");
    const FigureTable origins = ReadFigures(kMethod, "origins");
    const auto expectOrigin = [&](std::string_view constant, double workedOut) {
        SCOPED_TRACE(constant);
        EXPECT_NEAR(origins.Number(constant), workedOut, HalfOfLastDigit(origins.Text(constant)));
        EXPECT_NEAR(origins.Number(constant, 3), 100 * (constants.Number(constant) / workedOut - 1),
                    HalfOfLastDigit(origins.Text(constant, 3)));
    };
    const double km = constants.Number("KM");
    const double kg = constants.Number("KG");

    // lb/h from pi/4 sqrt(2) d^2 sqrt(dp rho), d in inches, dp in inches of water, rho in lb/ft3.
    const double meter = accuracy::kMetersPerInch;
    const double fromUnits =
        std::acos(-1.0) / 4 * std::sqrt(2.0) * meter * meter *
        std::sqrt(accuracy::kPascalPerInchWater * accuracy::kKgPerM3PerPoundPerFt3) /
        accuracy::kKgPerPound * 3600;
    expectOrigin("KM", fromUnits);

    const double gallonsPerCubicFoot = 1728.0 / 231.0;
    expectOrigin("KL", km / std::sqrt(constants.Number("W")) * gallonsPerCubicFoot / 60);
    expectOrigin("KG", 28.9625 / 10.7316);
    expectOrigin("KV", km / std::sqrt(kg));
    EXPECT_EQ(origins.rows().size(), 4U);
    // "within 0.001% for all but KV", which is "0.007% below what KM and KG give".
    for (const char* constant : {"KM", "KL", "KG"}) {
        EXPECT_LE(std::fabs(origins.Number(constant, 3)), 0.001) << constant;
    }
    EXPECT_NEAR(origins.Number("KV", 3), -0.007, 5e-4);

    EXPECT_NEAR(kg * 14.696, 39.6619322, 1e-7);
    EXPECT_EQ(constants.Number("ρa"), kBaseAirDensityNumerator / kBaseAirDensityDenominator);
}

}  // namespace tarvix::docs
