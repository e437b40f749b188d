// The steam table against a second copy of its pairs, and the interpolation in it.
#include "calc/steam_table.h"

#include "data_file.h"

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace tarvix::testing {
namespace {

float DensityAt(float pressurePsig) {
    const SteamDensity steam = SaturatedSteamDensity(pressurePsig);
    EXPECT_EQ(steam.range, SteamRange::InTable) << pressurePsig;
    return steam.density;
}

TEST(SteamTableTest, AllPairsEntryByEntry) {
    const auto rows = ReadDataFile("steam_table.tsv");
    ASSERT_EQ(kSteamTable.size(), rows.size());
    ASSERT_EQ(rows.size(), 230U);
    for (size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(rows[i][0]);
        EXPECT_EQ(kSteamTable[i].pressurePsig, std::strtol(rows[i][0].c_str(), nullptr, 10));
        EXPECT_EQ(kSteamTable[i].density, std::strtof(rows[i][1].c_str(), nullptr));
    }
}

TEST(SteamTableTest, ARowGivesItsOwnDensity) {
    for (const SteamTableRow& row : kSteamTable) {
        EXPECT_EQ(DensityAt(static_cast<float>(row.pressurePsig)), row.density);
    }
}

TEST(SteamTableTest, BetweenRowsItIsInterpolated) {
    struct Point {
        const char* name;
        float pressure;
        double density;  // by hand: d1 + (p - p1) (d2 - d1) / (p2 - p1)
    };
    for (const auto& [name, pressure, density] : {
             Point{"first half", 0.5F, 0.038565},
             Point{"nearest above", 0.75F, 0.0391575},
             Point{"falling part", 67.5F, 0.184565},
             Point{"falling near the upper row", 67.75F, 0.1836025},
             Point{"rising again", 68.5F, 0.186715},
             Point{"near 105 from below", 104.0F, 0.265544},
             Point{"before 385", 384.0F, 0.850366},
             Point{"after 385", 386.0F, 0.854664},
             Point{"near 525 from below", 524.0F, 1.162904},
             Point{"wide rows, lower", 2100.0F, 5.850012},
             Point{"wide rows, upper", 2400.0F, 7.262598},
             Point{"half-way to 3000", 2750.0F, 9.79764},
         }) {
        EXPECT_NEAR(double{DensityAt(pressure)}, density, density * 2e-7) << name;
    }
}

// Half-way between two rows the lower one is the nearest; it shows in the last place only.
TEST(SteamTableTest, OnATieTheLowerRowIsTheNearest) {
    int told = 0;
    for (size_t i = 0; i + 1 < kSteamTable.size(); ++i) {
        const SteamTableRow& low = kSteamTable[i];
        const SteamTableRow& high = kSteamTable[i + 1];
        const auto step = static_cast<float>(high.pressurePsig - low.pressurePsig);
        const float p = static_cast<float>(low.pressurePsig) + step / 2;
        const float fromLow =
            (p - static_cast<float>(low.pressurePsig)) * (high.density - low.density) / step +
            low.density;
        const float fromHigh =
            (p - static_cast<float>(high.pressurePsig)) * (low.density - high.density) / -step +
            high.density;
        EXPECT_EQ(DensityAt(p), fromLow) << p;
        told += fromLow != fromHigh ? 1 : 0;
    }
    EXPECT_GT(told, 0) << "rows where the two ways differ";
}

TEST(SteamTableTest, BothEndsAreInTheTable) {
    EXPECT_EQ(DensityAt(0.0F), 0.03738F);
    EXPECT_EQ(DensityAt(-0.0F), 0.03738F);
    EXPECT_EQ(DensityAt(3000.0F), 11.86182F);
    EXPECT_NEAR(double{DensityAt(std::nextafter(3000.0F, 0.0F))}, 11.86182, 1e-5);
    EXPECT_NEAR(double{DensityAt(std::nextafter(0.0F, 1.0F))}, 0.03738, 1e-7);
}

TEST(SteamTableTest, OneSingleOutsideIsOutside) {
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    for (const float below : {std::nextafter(0.0F, -1.0F), -14.7F, -kInfinity}) {
        EXPECT_EQ(SaturatedSteamDensity(below).range, SteamRange::BelowTable) << below;
    }
    for (const float above : {std::nextafter(3000.0F, 4000.0F), 3001.0F, kInfinity}) {
        EXPECT_EQ(SaturatedSteamDensity(above).range, SteamRange::AboveTable) << above;
    }
}

}  // namespace
}  // namespace tarvix::testing
