// The worked examples of docs/method.md: every figure against an independent calculation in double
// precision with the document's own constants, and against the program.
#include "app/sheet/derived_densities.h"
#include "calc/orifice_liquid.h"
#include "calc/orifice_steam.h"
#include "calc/steam_table.h"
#include "tests/core/app/sheets.h"
#include "tests/docs/document_figures.h"
#include "tests/docs/estimate_error.h"
#include "tests/docs/random_sheets.h"
#include "units/bore_and_beta.h"
#include "units/flow_units.h"
#include "units/unit_tables.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <initializer_list>
#include <optional>
#include <string>

namespace tarvix::docs {

namespace {

using accuracy::HalfOfLastDigit;
using accuracy::ShownResult;

constexpr const char* kMethod = "method.md";

// What single precision may add to a figure worked out in doubles, step after step.
constexpr double kSingleRounding = 1.2e-7;

// The figure in the document is the value in single precision, rounded to the digits that stand
// there, and the independent value within what single precision may add.
void ExpectFigure(const FigureTable& table, std::string_view symbol, double independent,
                  std::optional<float> program = std::nullopt) {
    const std::string& text = table.Text(symbol);
    EXPECT_NEAR(NumberOf(text), independent,
                HalfOfLastDigit(text) + std::fabs(independent) * kSingleRounding)
        << symbol;
    if (program) {
        EXPECT_NEAR(NumberOf(text), double{*program}, HalfOfLastDigit(text) * 1.000001) << symbol;
    }
}

// The row of step n, from its second column on.
void ExpectStep(const FigureTable& steps, int n, std::initializer_list<double> values) {
    SCOPED_TRACE(n);
    std::size_t column = 1;
    for (const double value : values) {
        EXPECT_NEAR(steps.Number(std::to_string(n), column++), value, std::max(1.0, value) * 1e-6);
    }
}

constexpr float kGasPsia = 114.7F;
constexpr float kGasR = 519.67F;

class MethodExamples : public ::testing::Test {
  protected:
    double Constant(std::string_view name) const { return constants_.Number(name); }

    double VelocityTerm(double beta) const {
        return Constant("Cd") / std::sqrt(1 - std::pow(beta, 4));
    }
    double Expansion(double beta, double h, double p) const {
        return 1 - (Constant("a") + Constant("b") * std::pow(beta, 4)) *
                       (h / (Constant("KY") * p)) / Constant("κ");
    }

    // What gas and steam have in common at beta 0.5 and 100 inches of water.
    void ExpectExpansion(const FigureTable& table, double p) const {
        const double beta = table.Number("β");
        const double h = table.Number("h");
        ExpectFigure(table, "P", p, kGasPsia);
        ExpectFigure(table, "β⁴", std::pow(beta, 4), static_cast<float>(BetaToTheFourth(0.5F)));
        ExpectFigure(table, "E", VelocityTerm(beta), CoefficientTimesApproach(0.5F));
        ExpectFigure(table, "h/(KY P)", h / (Constant("KY") * p));
        ExpectFigure(table, "Y", Expansion(beta, h, p), ExpansionFactor(0.5F, 100.0F, kGasPsia));
    }

    FigureTable constants_ = ReadFigures(kMethod, "constants");
};

InputSheet GasSheet(SolveFor mode) {
    InputSheet sheet = testing::GasSheet(mode);
    sheet.pipeDiameter = "2.067";
    return sheet;
}

InputSheet SteamSheet(SolveFor mode) {
    InputSheet sheet = testing::SteamSheet(mode);
    sheet.steamFromTable = true;
    testing::RecordingPlatform platform;
    const Module1 module(platform, testing::kUnitedStates);
    sheet.density = {SteamDensityTextOf(sheet, module).density, module.locale()};
    return sheet;
}

}  // namespace

TEST_F(MethodExamples, Liquid) {
    const FigureTable t = ReadFigures(kMethod, "liquid example");
    const double beta = t.Number("β");
    const double d = t.Number("D");
    const double root = std::sqrt(t.Number("h") * t.Number("Gf"));
    const double q =
        Constant("KL") * VelocityTerm(beta) * beta * beta * d * d * root / t.Number("Gb");

    const MeteringRun run{SolveFor::FlowRate, 4.026F, 0.0F, 100.0F, 0.5F};
    const Outcome solved = SolveLiquid(run, {.flowingSG = 1.0F, .baseSG = 1.0F});

    ExpectFigure(t, "Ff", 1, FlowUnitsOf(Fluid::Liquid).units[0].factor / kTimeUnits[0].factor);
    ExpectFigure(t, "β⁴", std::pow(beta, 4), static_cast<float>(BetaToTheFourth(0.5F)));
    ExpectFigure(t, "E", VelocityTerm(beta), CoefficientTimesApproach(0.5F));
    ExpectFigure(t, "√(h Gf)", root);
    ExpectFigure(t, "Q", q, solved.value);
    EXPECT_EQ(t.Text("shown"), ShownResult(testing::LiquidSheet(SolveFor::FlowRate)));
}

TEST_F(MethodExamples, LiquidBack) {
    const FigureTable t = ReadFigures(kMethod, "liquid example back");
    const double d = 4.026;
    const double q = t.Number("Q");
    const double a = q / (d * d * Constant("KL") * std::sqrt(100.0));
    const double beta = std::pow(a * a / (a * a + Constant("Cd²")), 0.25);
    const double h = std::pow(q / (VelocityTerm(0.5) * Constant("KL") * 0.25 * d * d), 2);

    ExpectFigure(t, "A", a);
    ExpectFigure(t, "A²", a * a);
    ExpectFigure(t, "β", beta);

    const MeteringRun run{SolveFor::DiffPressure, 4.026F, 142.3F, 0.0F, 0.5F};
    const Outcome solved = SolveLiquid(run, {.flowingSG = 1.0F, .baseSG = 1.0F});
    ExpectFigure(t, "h", h, solved.value);

    InputSheet sheet = testing::LiquidSheet(SolveFor::Beta);
    sheet.flow = {t.Text("Q"), testing::kUnitedStates};
    EXPECT_EQ(t.Text("β shown"), ShownResult(sheet));

    const auto betaValue = TextToSingle(t.Text("β shown"), testing::kUnitedStates);
    ASSERT_TRUE(betaValue);
    const auto bore = BoreFromBeta(*betaValue, 4.026F, kLengthUnits[0].factor);
    ASSERT_TRUE(bore);
    EXPECT_EQ(t.Text("bore shown"), FormatNumber(*bore, 3, testing::kUnitedStates, Grouping::Off));

    sheet = testing::LiquidSheet(SolveFor::DiffPressure);
    sheet.flow = {t.Text("Q"), testing::kUnitedStates};
    EXPECT_EQ(t.Text("h shown"), ShownResult(sheet));
}

TEST_F(MethodExamples, Gas) {
    const FigureTable t = ReadFigures(kMethod, "gas example");
    const double beta = t.Number("β");
    const double h = t.Number("h");
    const double d = t.Number("D");
    const double p = 100 + Constant("Pb");
    const double tempR = 60 + Constant("T0");
    const double radicand = h * p / (tempR * t.Number("G") * t.Number("Zf"));
    const double y = Expansion(beta, h, p);
    const double q = Constant("KV") * VelocityTerm(beta) * y * beta * beta * d * d *
                     (tempR / Constant("Pb")) * std::sqrt(radicand);

    const MeteringRun run{SolveFor::FlowRate, 2.067F, 0.0F, 100.0F, 0.5F};
    const Outcome solved = SolveGas(run, accuracy::GasAt(kGasPsia));

    ExpectExpansion(t, p);
    ExpectFigure(t, "Tf", tempR, kGasR);
    ExpectFigure(t, "Tb", tempR, kGasR);
    ExpectFigure(t, "Pb", Constant("Pb"), kAtmosphericPressurePsi);
    ExpectFigure(t, "Ff", 60.0 / 1440);
    ExpectFigure(t, "Tb/Pb", tempR / Constant("Pb"));
    ExpectFigure(t, "h P/(Tf G Zf)", radicand);
    ExpectFigure(t, "Q", q, solved.value);
    ExpectFigure(t, "Q/Ff", q / (60.0 / 1440));
    EXPECT_EQ(t.Text("shown"), ShownResult(GasSheet(SolveFor::FlowRate)));
}

TEST_F(MethodExamples, GasBack) {
    const FigureTable t = ReadFigures(kMethod, "gas example back");
    const double p = 100 + Constant("Pb");
    const double tempR = 60 + Constant("T0");
    const double q = 570361 * (60.0 / 1440);
    const double target =
        q / (Constant("KV") * VelocityTerm(0.5) * 0.25 * (tempR / Constant("Pb")));
    ExpectFigure(t, "Q", q);
    ExpectFigure(t, "T", target);

    InputSheet sheet = GasSheet(SolveFor::DiffPressure);
    sheet.flow = "570361";
    EXPECT_EQ(t.Text("h shown"), ShownResult(sheet));

    const MeteringRun run{SolveFor::DiffPressure, 2.067F,
                          570361.0F * static_cast<float>(60.0 / 1440), 0.0F, 0.5F};
    const Outcome solved = SolveGas(run, accuracy::GasAt(kGasPsia));

    const FigureTable steps = ReadFigures(kMethod, "gas example steps");
    const int last = std::stoi(steps.rows().back()[0]);
    std::optional<int> endInDoubles;
    double h = 50;
    for (int n = 1; n <= last; ++n) {
        const double y = Expansion(0.5, h, p);
        const double r = target / (y * std::sqrt(h * p / tempR));
        const double s = std::sqrt(r) / 2.067;
        if (n <= 3 || n == last) {
            ExpectStep(steps, n, {h, y, r, s});
        }
        // "In double precision ... the same steps end one earlier: step 44, h = 99.99950."
        if (!endInDoubles && std::fabs(s - 1) < 1e-6) {
            endInDoubles = n;
            EXPECT_NEAR(h, 99.99950, 5e-6);
        }
        h *= s;
    }
    EXPECT_EQ(steps.rows().size(), 4U);
    EXPECT_EQ(endInDoubles, 44);
    ASSERT_TRUE(solved.value);
    EXPECT_NEAR(steps.Number(steps.rows().back()[0], 1), double{*solved.value}, 5.1e-6);
}

TEST_F(MethodExamples, Steam) {
    const FigureTable t = ReadFigures(kMethod, "steam example");
    const double beta = t.Number("β");
    const double h = t.Number("h");
    const double d = t.Number("D");
    const double p = 100 + Constant("Pb");
    const double y = Expansion(beta, h, p);
    const double q = Constant("KM") * VelocityTerm(beta) * y * beta * beta * d * d *
                     std::sqrt(h * t.Number("ρ"));

    const MeteringRun run{SolveFor::FlowRate, 4.026F, 0.0F, 100.0F, 0.5F};
    const float density = SaturatedSteamDensity(100.0F).density;
    const Outcome solved = SolveSteam(run, {.pressurePsia = kGasPsia, .density = density});

    ExpectExpansion(t, p);
    ExpectFigure(t, "ρ", t.Number("ρ"), density);
    ExpectFigure(t, "Ff", 1);
    ExpectFigure(t, "h ρ", h * t.Number("ρ"));
    ExpectFigure(t, "Q", q, solved.value);

    InputSheet sheet = SteamSheet(SolveFor::FlowRate);
    EXPECT_EQ(t.Text("ρ"), sheet.density.text());
    EXPECT_EQ(t.Text("shown"), ShownResult(sheet));
}

TEST_F(MethodExamples, SteamBack) {
    const FigureTable t = ReadFigures(kMethod, "steam example back");
    const double p = 100 + Constant("Pb");
    const double target = t.Number("Q") / (Constant("KM") * std::sqrt(100 * 0.25704));
    ExpectFigure(t, "T", target);

    InputSheet sheet = SteamSheet(SolveFor::Beta);
    sheet.flow = {t.Text("Q"), testing::kUnitedStates};
    EXPECT_EQ(t.Text("β shown"), ShownResult(sheet));

    const MeteringRun run{SolveFor::Beta, 4.026F, 7000.0F, 100.0F, 0.0F};
    const Outcome solved = SolveSteam(
        run, {.pressurePsia = kGasPsia, .density = SaturatedSteamDensity(100.0F).density});

    const FigureTable steps = ReadFigures(kMethod, "steam example steps");
    const int last = static_cast<int>(steps.rows().size());
    double beta = 0.5;
    for (int n = 1; n <= last; ++n) {
        SCOPED_TRACE(n);
        const double e = VelocityTerm(beta);
        const double y = Expansion(beta, 100, p);
        const double r = target / (y * e * beta * beta);
        const double s = std::sqrt(r) / 4.026;
        // Only the last step lies within the band.
        EXPECT_EQ(std::fabs(s - 1) < 1e-6, n == last);
        ExpectStep(steps, n, {beta, e, y, r, s});
        beta *= s;
    }
    ASSERT_TRUE(solved.value);
    EXPECT_NEAR(steps.Number(std::to_string(last), 1), double{*solved.value}, 5.1e-6);
}

}  // namespace tarvix::docs
