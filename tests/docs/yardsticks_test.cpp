// The yardsticks themselves: ISO 5167-2 against values worked out term by term, IAPWS-IF97 against
// the older equation of the vapour's density (IAPWS SR1-86). Published values stand beside the
// yardsticks' in docs/validation.md.
#include "tests/docs/iapws_if97.h"
#include "tests/docs/iso5167.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tarvix {

namespace {

// Density of saturated vapour, kg/m3, by temperature: ln(rho / 322) as a sum of powers of 1 - T/Tc.
double OlderVaporDensity(double temperatureK) {
    const double t = 1 - temperatureK / 647.096;
    return 322 * std::exp(-2.03150240 * std::pow(t, 2 / 6.0) - 2.68302940 * std::pow(t, 4 / 6.0) -
                          5.38626492 * std::pow(t, 8 / 6.0) - 17.2991605 * std::pow(t, 18 / 6.0) -
                          44.7586581 * std::pow(t, 37 / 6.0) - 63.9201063 * std::pow(t, 71 / 6.0));
}

}  // namespace

// A quarter of the pressure, exponent 1: the bracket is exactly 0.25.
TEST(Iso5167, ExpansibilityByHand) {
    EXPECT_NEAR(iso5167::Expansibility(0.5, 0.75, 1), 1 - (0.351 + 0.016 + 0.93 / 256) * 0.25,
                1e-15);
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
    EXPECT_NEAR(iso5167::DischargeCoefficient(0.5, 50.8, 1e5, iso5167::FlangeTaps(50.8)),
                0.60809355, 2e-8);
}

TEST(Iso5167, LimitsOfFlangeTaps) {
    using iso5167::IsWithinFlangeTapLimits;
    EXPECT_TRUE(IsWithinFlangeTapLimits(0.5, 100, 5000));
    EXPECT_FALSE(IsWithinFlangeTapLimits(0.5, 100, 4999));
    EXPECT_TRUE(IsWithinFlangeTapLimits(0.25, 50, 1e5));
    EXPECT_FALSE(IsWithinFlangeTapLimits(0.249, 50, 1e5));  // a bore below 12.5 mm
    EXPECT_FALSE(IsWithinFlangeTapLimits(0.5, 49.9, 1e5));
    EXPECT_TRUE(IsWithinFlangeTapLimits(0.75, 1000, 1e6));
    EXPECT_FALSE(IsWithinFlangeTapLimits(0.5, 1000.1, 1e5));
    EXPECT_FALSE(IsWithinFlangeTapLimits(0.751, 1000, 1e6));
    EXPECT_FALSE(IsWithinFlangeTapLimits(0.099, 1000, 1e6));
    EXPECT_TRUE(IsWithinFlangeTapLimits(0.5, 400, 17001));  // 170 x 0.25 x 400 = 17000
    EXPECT_FALSE(IsWithinFlangeTapLimits(0.5, 400, 16999));
}

// The older equation differs by a little, more towards the critical point.
TEST(If97, VaporDensityAgreesWithTheOlderEquation) {
    for (int kelvin = 300; kelvin <= 642; kelvin += 3) {
        const double density = if97::SaturatedVaporDensity(if97::SaturationPressure(kelvin));
        EXPECT_NEAR(density / OlderVaporDensity(kelvin), 1, kelvin < 620 ? 5e-4 : 3e-3) << kelvin;
    }
}

}  // namespace tarvix
