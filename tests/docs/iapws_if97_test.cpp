// The yardstick of the steam table against the release's own verification values (tables 15, 33, 35
// and 36 of IAPWS R7-97), and against the older equation of the vapour's density (IAPWS SR1-86).
#include "tests/docs/iapws_if97.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tarvix::if97 {

namespace {

// The published values have 9 digits.
void ExpectPublished(double published, double value) {
    EXPECT_NEAR(value / published, 1, 5.1e-9);
}

// Density of saturated vapour, kg/m3, by temperature: ln(rho / 322) as a sum of powers of 1 - T/Tc.
double OlderVaporDensity(double temperatureK) {
    const double t = 1 - temperatureK / 647.096;
    return 322 * std::exp(-2.03150240 * std::pow(t, 2 / 6.0) - 2.68302940 * std::pow(t, 4 / 6.0) -
                          5.38626492 * std::pow(t, 8 / 6.0) - 17.2991605 * std::pow(t, 18 / 6.0) -
                          44.7586581 * std::pow(t, 37 / 6.0) - 63.9201063 * std::pow(t, 71 / 6.0));
}

}  // namespace

TEST(If97, Region2VerificationValues) {
    ExpectPublished(0.394913866e2, VaporVolume(0.0035, 300));
    ExpectPublished(0.923015898e2, VaporVolume(0.0035, 700));
    ExpectPublished(0.542946619e-2, VaporVolume(30, 700));
}

TEST(If97, Region3VerificationValues) {
    ExpectPublished(0.255837018e2, PressureNearCritical(500, 650));
    ExpectPublished(0.222930643e2, PressureNearCritical(200, 650));
    ExpectPublished(0.783095639e2, PressureNearCritical(500, 750));
}

TEST(If97, Region4VerificationValues) {
    ExpectPublished(0.353658941e-2, SaturationPressure(300));
    ExpectPublished(0.263889776e1, SaturationPressure(500));
    ExpectPublished(0.123443146e2, SaturationPressure(600));
    ExpectPublished(0.372755919e3, SaturationTemperature(0.1));
    ExpectPublished(0.453035632e3, SaturationTemperature(1));
    ExpectPublished(0.584149488e3, SaturationTemperature(10));
}

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
