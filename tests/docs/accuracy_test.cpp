// What docs/accuracy.md rests on: the program's estimate differs from ISO 5167-2 by nothing but the
// discharge coefficient and the expansion factor, and the beta error is the flow error seen through
// the flow equation.
#include "tests/docs/document_figures.h"
#include "tests/docs/double_solver.h"
#include "tests/docs/estimate_error.h"
#include "tests/docs/iso5167.h"

#include <cmath>
#include <gtest/gtest.h>
#include <tuple>

namespace tarvix::accuracy {

namespace {

constexpr float kPipesIn[] = {2.067F, 4.026F, 7.981F, 22.624F};
constexpr float kBetas[] = {0.15F, 0.3F, 0.45F, 0.6F, 0.67F};
constexpr double kReynolds[] = {1e4, 1e5, 1e6, 1e7};
constexpr float kHigh = 795.0F;  // about a quarter of 114.7 psia, in inches of water

template <typename Check>
void ForEachPoint(Fluid fluid, float diffPressInH2O, Check check) {
    for (const float pipe : kPipesIn) {
        for (const float beta : kBetas) {
            for (const double reynolds : kReynolds) {
                SCOPED_TRACE(::testing::Message()
                             << pipe << " in, beta " << beta << ", Re " << reynolds);
                check(Point{fluid, pipe, beta, diffPressInH2O, reynolds});
            }
        }
    }
}

double CoefficientAt(const Point& point) {
    const double mm = double{point.pipeDiameterIn} * 25.4;
    return iso5167::DischargeCoefficient(double{point.beta}, mm, point.reynolds,
                                         iso5167::FlangeTaps(mm));
}

double ExpansibilityAt(const Point& point, double exponent) {
    const double fraction = double{point.diffPressInH2O} * kPascalPerInchWater /
                            (double{kPressurePsia} * kPascalPerPsi);
    return iso5167::Expansibility(double{point.beta}, 1 - fraction, exponent);
}

double YAt(const Point& point) {
    return double{ExpansionFactor(point.beta, point.diffPressInH2O, kPressurePsia)};
}

// The constants of the program against SI units: nothing left but 0.6 / C and Y / epsilon.
constexpr double kUnitConstants = 5e-5;

}  // namespace

// The constant of the standard volume equation is 0.007% low. A liquid does not expand.
TEST(Accuracy, FlowsDifferByCoefficientAndExpansionFactorAlone) {
    for (const auto& [fluid, exponent, constant] :
         {std::tuple{Fluid::Liquid, 0.0, 1.0}, std::tuple{Fluid::Gas, kAirExponent, 1 - 0.00007},
          std::tuple{Fluid::Steam, kSteamExponent, 1.0}}) {
        for (const float h : {100.0F, kHigh}) {
            ForEachPoint(fluid, h, [exponent = exponent, constant = constant](const Point& point) {
                const Comparison c = Compare(point);
                const double expansion = point.fluid == Fluid::Liquid
                                             ? 1
                                             : YAt(point) / ExpansibilityAt(point, exponent);
                EXPECT_NEAR(c.estimate / c.standard / (0.6 / CoefficientAt(point) * expansion),
                            constant, kUnitConstants);
            });
        }
    }
}

// The differential pressure and the beta that are solved carry the standard's flow.
TEST(Accuracy, WhatIsSolvedCarriesTheStandardsFlow) {
    for (const Fluid fluid : {Fluid::Liquid, Fluid::Gas, Fluid::MonatomicGas, Fluid::Steam}) {
        for (const float h : {100.0F, kHigh}) {
            ForEachPoint(fluid, h, [](const Point& point) {
                const Comparison c = Compare(point);
                const auto flowOf = [&](double diffPress, double beta) {
                    const MeteringRun run{SolveFor::FlowRate, point.pipeDiameterIn, 0,
                                          static_cast<float>(diffPress), static_cast<float>(beta)};
                    return double{Solve(point.fluid, run).value.value()};
                };
                const auto beta = double{point.beta};
                const auto drop = double{point.diffPressInH2O};
                EXPECT_NEAR(flowOf(c.solvedDiffPress, beta) / c.standard, 1, 3e-6);
                // Beta has 5 decimals: half of the last one, times the slope of the flow.
                const double slope = 2 / (1 - std::pow(beta, 4));
                EXPECT_NEAR(flowOf(drop, c.solvedBeta) / c.standard, 1, slope * 5.5e-6 / beta);
            });
        }
    }
}

// For small errors the error of beta is -(1 - beta^4) / 2 times that of the flow, for all fluids.
TEST(Accuracy, BetaErrorIsAboutHalfOfTheFlowError) {
    for (const Fluid fluid : {Fluid::Liquid, Fluid::Gas, Fluid::Steam}) {
        ForEachPoint(fluid, 100.0F, [](const Point& point) {
            const Comparison c = Compare(point);
            const double expected = -(1 - std::pow(double{point.beta}, 4)) / 2 * c.flowErrorPercent;
            // 5 decimals of beta, and what is left of the series at errors of some percent.
            const double fiveDecimals = 100 * 5.5e-6 / double{point.beta};
            EXPECT_NEAR(c.betaErrorPercent, expected,
                        fiveDecimals + 0.025 * std::fabs(c.flowErrorPercent));
        });
    }
}

// Re = 4 qm / (pi D mu), in the document's units.
TEST(AccuracyDocument, ReynoldsFormulas) {
    const docs::FigureTable figures = docs::ReadFigures("accuracy.md", "reynolds");
    const double perInchAndCentipoise = std::acos(-1.0) * kMetersPerInch * 1e-3;

    const double poundPerHour = kKgPerPound / 3600;
    EXPECT_NEAR(figures.Number("qm, lb/h"), 4 * poundPerHour / perInchAndCentipoise, 0.005);

    const double gallonM3 = 231 * std::pow(kMetersPerInch, 3);
    const double gpmOfWater = gallonM3 * 62.366 * kKgPerM3PerPoundPerFt3 / 60;
    EXPECT_NEAR(figures.Number("Q, gpm, of a liquid with flowing specific gravity SG"),
                4 * gpmOfWater / perInchAndCentipoise, 5);
}

}  // namespace tarvix::accuracy
