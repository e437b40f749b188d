// The yardstick of the steam table against the older equation of the vapour's density (IAPWS
// SR1-86). The release's own verification values stand beside the yardstick's in
// docs/validation.md.
#include "tests/docs/iapws_if97.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tarvix::if97 {

namespace {

// Density of saturated vapour, kg/m3, by temperature: ln(rho / 322) as a sum of powers of 1 - T/Tc.
double OlderVaporDensity(double temperatureK) {
    const double t = 1 - temperatureK / 647.096;
    return 322 * std::exp(-2.03150240 * std::pow(t, 2 / 6.0) - 2.68302940 * std::pow(t, 4 / 6.0) -
                          5.38626492 * std::pow(t, 8 / 6.0) - 17.2991605 * std::pow(t, 18 / 6.0) -
                          44.7586581 * std::pow(t, 37 / 6.0) - 63.9201063 * std::pow(t, 71 / 6.0));
}

}  // namespace

TEST(If97, SaturationLineIsItsOwnInverse) {
    for (int kelvin = 300; kelvin <= 645; kelvin += 15) {
        EXPECT_NEAR(SaturationTemperature(SaturationPressure(kelvin)), kelvin, 1e-8);
    }
}

// The older equation differs by a little, more towards the critical point.
TEST(If97, VaporDensityAgreesWithTheOlderEquation) {
    for (int kelvin = 300; kelvin <= 642; kelvin += 3) {
        const double density = SaturatedVaporDensity(SaturationPressure(kelvin));
        EXPECT_NEAR(density / OlderVaporDensity(kelvin), 1, kelvin < 620 ? 5e-4 : 3e-3) << kelvin;
    }
}

// From one region to the other, at 623.15 K, without a jump that anyone would see.
TEST(If97, RegionsMeet) {
    const double p = SaturationPressure(623.15);
    EXPECT_NEAR(SaturatedVaporDensity(p + 1e-6) / SaturatedVaporDensity(p - 1e-6), 1, 2e-4);
}

}  // namespace tarvix::if97
