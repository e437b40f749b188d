// The steam table against a second copy of its pairs, and the interpolation in it.
#include "calc/steam_table.h"

#include "data_file.h"

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>

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
