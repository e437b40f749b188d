// The contrast of two colors against the figures of the Web Content Accessibility Guidelines 2.1.
#include "ui/controls/readable_palette.h"

#include <gtest/gtest.h>

namespace tarvix {
namespace {

constexpr double kNoRoom = 1e-7;

// Black against white is 21 to 1, which is (1 + 0.05) / 0.05; each pure color has its own share of
// the luminance: 0.2126, 0.7152 and 0.0722.
TEST(ContrastTest, OfThePureColors) {
    EXPECT_NEAR(ContrastOf(Qt::black, Qt::white), 21, kNoRoom);
    EXPECT_NEAR(ContrastOf(Qt::red, Qt::black), 5.252, kNoRoom);
    EXPECT_NEAR(ContrastOf(Qt::green, Qt::black), 15.304, kNoRoom);
    EXPECT_NEAR(ContrastOf(Qt::blue, Qt::black), 2.444, kNoRoom);
    EXPECT_EQ(ContrastOf(Qt::white, Qt::black), ContrastOf(Qt::black, Qt::white));
    EXPECT_EQ(ContrastOf(Qt::red, Qt::red), 1);
}

// 8/255 lies on the straight part of the curve: 0.0313725490 / 12.92 = 0.00242821587; 128/255 on
// the bent one: ((0.501960784 + 0.055) / 1.055) to the power 2.4 = 0.215860500.
TEST(ContrastTest, OfGreys) {
    constexpr double kSingle = 2e-6;  // parts of colors have 16 bits
    EXPECT_NEAR(ContrastOf(QColor(8, 8, 8), Qt::black), 1.0485643, kSingle);
    EXPECT_NEAR(ContrastOf(QColor(128, 128, 128), Qt::black), 5.3172100, kSingle);
}

}  // namespace
}  // namespace tarvix
