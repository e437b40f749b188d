// The yardstick itself: the formulas of ISO 5167-2 against values worked out term by term, and
// against what is known of their course. Published values stand beside the yardstick's in
// docs/validation.md.
#include "tests/docs/iso5167.h"

#include <gtest/gtest.h>

namespace tarvix::iso5167 {

namespace {

double FlangeCoefficient(double beta, double diameterMm, double reynolds) {
    return DischargeCoefficient(beta, diameterMm, reynolds, FlangeTaps(diameterMm));
}

}  // namespace

// One value is published with the open library "fluids" (C. Bell), the other worked out by hand.
TEST(Iso5167, ExpansibilityPublishedAndByHand) {
    EXPECT_NEAR(Expansibility(0.0222 / 0.0739, 0.99, 1.4), 0.9974739057343425, 1e-12);
    // A quarter of the pressure, exponent 1: the bracket is exactly 0.25.
    EXPECT_NEAR(Expansibility(0.5, 0.75, 1), 1 - (0.351 + 0.016 + 0.93 / 256) * 0.25, 1e-15);
}

// beta 0.5, Re 100,000, D 50.8 mm, all terms by hand:
//   A = 0.095^0.8 = 0.1521174;  L1 = L2' = 0.5;  M2' = 2
//   0.5961 + 0.006525 - 0.00084375                                        = 0.60178125
//   0.000521 x 5^0.7 = 0.000521 x 3.0851693                               = 0.00160737
//   (0.0188 + 0.00095834) x 0.08838835 x 10^0.3 (1.99526231)              = 0.00348454
//   (0.043 + 0.080 x 0.00673795 - 0.123 x 0.03019738) x 0.98326709 / 15   = 0.00261056
//   -0.031 x (2 - 0.8 x 2.14354693) x 0.40612620                          = -0.00359017
//   small pipe: 0.011 x 0.25 x 0.8                                        = 0.0022
TEST(Iso5167, CoefficientTermByTerm) {
    EXPECT_NEAR(FlangeCoefficient(0.5, 50.8, 1e5), 0.60809355, 2e-8);
}

// The small-pipe term starts at 71.12 mm without a jump and makes a smaller pipe's C larger.
TEST(Iso5167, SmallPipeTermStartsSmoothly) {
    for (const double beta : {0.2, 0.5, 0.7}) {
        EXPECT_NEAR(FlangeCoefficient(beta, 71.12 - 1e-6, 1e5),
                    FlangeCoefficient(beta, 71.12 + 1e-6, 1e5), 1e-8);
    }
    // Its slope: 0.011 (0.75 - beta) an inch.
    const double with = DischargeCoefficient(0.5, 1.8 * 25.4, 1e5, kCornerTaps);
    const double without = DischargeCoefficient(0.5, 2.8 * 25.4, 1e5, kCornerTaps);
    EXPECT_NEAR(with - without, 0.011 * 0.25, 1e-12);
}

TEST(Iso5167, MassFlowByHand) {
    // d = 0.05 m, dp = 20 kPa, rho = 1000 kg/m3: sqrt(2 dp rho) = 6324.5553.
    // 0.6 / sqrt(0.9375) = 0.6196773; pi/4 0.05^2 = 0.0019634954.
    MeteringConditions run;
    run.diameterM = 0.1;
    run.beta = 0.5;
    run.diffPressurePa = 20000;
    run.upstreamDensity = 1000;
    run.dischargeCoefficient = 0.6;
    EXPECT_NEAR(MassFlow(run), 7.695299, 2e-6);
    run.expansibility = 0.5;
    EXPECT_NEAR(MassFlow(run), 7.695299 / 2, 1e-6);
}

TEST(Iso5167, LimitsOfFlangeTaps) {
    EXPECT_TRUE(IsWithinFlangeTapLimits(0.5, 100, 5000));
    EXPECT_FALSE(IsWithinFlangeTapLimits(0.5, 100, 4999));
    EXPECT_TRUE(IsWithinFlangeTapLimits(0.25, 50, 1e5));
    EXPECT_FALSE(IsWithinFlangeTapLimits(0.249, 50, 1e5));  // a bore below 12.5 mm
    EXPECT_FALSE(IsWithinFlangeTapLimits(0.5, 49.9, 1e5));
    EXPECT_TRUE(IsWithinFlangeTapLimits(0.5, 1000, 1e5));
    EXPECT_FALSE(IsWithinFlangeTapLimits(0.5, 1000.1, 1e5));
    EXPECT_TRUE(IsWithinFlangeTapLimits(0.75, 1000, 1e6));
    EXPECT_FALSE(IsWithinFlangeTapLimits(0.751, 1000, 1e6));
    EXPECT_FALSE(IsWithinFlangeTapLimits(0.099, 1000, 1e6));
    EXPECT_TRUE(IsWithinFlangeTapLimits(0.5, 400, 17001));  // 170 x 0.25 x 400 = 17000
    EXPECT_FALSE(IsWithinFlangeTapLimits(0.5, 400, 16999));
}

}  // namespace tarvix::iso5167
