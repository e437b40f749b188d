// Colors that can be read and seen: contrast by the figures of the Web Content Accessibility
// Guidelines 2.1, and the limits from which a desktop's own colors are left as they are.
#include "ui/controls/readable_palette.h"

#include "tests/window/desktop_colors.h"

#include <gtest/gtest.h>

namespace tarvix::testing {
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

// What is left of 5.00332 to 1 on white is a text that can be read; 4.99822 is moved one step.
TEST(ReadablePaletteTest, LeavesADisabledTextOfFiveToOne) {
    const auto disabledText = [](const QColor& own) {
        return ReadablePalette(DesktopPalette(Qt::white, Qt::white, Qt::white, Qt::black, own))
            .color(QPalette::Disabled, QPalette::WindowText);
    };
    EXPECT_EQ(disabledText(QColor(0x6E, 0x70, 0x6C)), QColor(0x6E, 0x70, 0x6C));
    // A twentieth of the way to black: 110 - 5, 112 - 5 and 109 - 5.
    EXPECT_EQ(disabledText(QColor(0x6E, 0x70, 0x6D)), QColor(105, 107, 104));
}

// 1.52072 to 1 beside a window of #2E2E2E is seen; 1.51941 is darkened by a twentieth, which is
// less than one of 255 shades, and again until the whole of a shade is gone.
TEST(ReadablePaletteTest, LeavesAFieldOfOnePointFiveTwoToOne) {
    const auto field = [](const QColor& own) {
        return ReadablePalette(DesktopPalette(0x2E2E2E, own, 0x585858, Qt::white, Qt::gray))
            .color(QPalette::Base);
    };
    EXPECT_EQ(field(QColor(3, 3, 0)), QColor(3, 3, 0));
    EXPECT_EQ(field(QColor(160, 160, 160)), QColor(160, 160, 160)) << "seen, as it is lighter";
    // The first step whose contrast is 1.52 or more: 7 twentieths of the way, 3 - 1 and 2 - 0.
    EXPECT_EQ(field(QColor(3, 3, 2)), QColor(2, 2, 2));
}

// Of a window of #151515 and texts of #BDBDBD the 19th step is #B4B4B4; its ring, #787878, stands
// 3.80147 to 1 against the lighter shade of the window. The 18th, #ACACAC, does not reach 3.8.
TEST(ReadablePaletteTest, LightensTheRingOfAnOptionToThreePointEightToOne) {
    const QPalette desktop = DesktopPalette(0x151515, 0x151515, 0x151515, 0xBDBDBD, Qt::gray);
    EXPECT_EQ(DiscPalette(desktop, desktop).color(QPalette::Window), QColor(0xB4, 0xB4, 0xB4));
}

}  // namespace
}  // namespace tarvix::testing
