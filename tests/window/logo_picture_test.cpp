// The installed logos in windows: as fine as the screen, without the white around the drawing.
#include "ui/windows/logo_picture.h"

#include "tests/core/recording_platform.h"

#include <gtest/gtest.h>
#include <ostream>

namespace tarvix::testing {
namespace {

// The drawings in their own units; a picture has 640 x 160 of them.
struct LogoCase {
    const char* file;
    double width;
    double height;
    int scale;
};

std::ostream& operator<<(std::ostream& out, const LogoCase& test) {
    return out << test.file << " at " << test.scale;
}

class LogoPictureTest : public ::testing::TestWithParam<LogoCase> {};

INSTANTIATE_TEST_SUITE_P(Logos, LogoPictureTest,
                         ::testing::Values(LogoCase{"/BrindleLogo.jpg", 618, 136, 1},
                                           LogoCase{"/BrindleLogo.jpg", 618, 136, 2},
                                           LogoCase{"/BrindleLogo.jpg", 618, 136, 3},
                                           LogoCase{"/VeltraneLogo.jpg", 621, 120, 3}));

TEST_P(LogoPictureTest, IsAsSharpAsTheScreen) {
    RecordingPlatform platform;
    const Logo logo(TARVIX_LOGOS + std::string(GetParam().file), platform);
    const QPixmap pixmap = logo.Pixmap(QSize(240, 60), GetParam().scale);
    // 240 points for 640 units.
    const double dots = 240.0 / 640 * GetParam().scale;
    EXPECT_NEAR(pixmap.width(), GetParam().width * dots, 1.5);
    EXPECT_NEAR(pixmap.height(), GetParam().height * dots, 1.5);
    EXPECT_EQ(pixmap.devicePixelRatio(), GetParam().scale);

    // Along the middle row every edge is one or two pixels wide, whatever the scale: few dots are
    // neither white nor as dark or bright as an ink.
    const QImage picture = pixmap.toImage();
    int between = 0;
    for (int x = 0; x < picture.width(); ++x) {
        const QColor dot = picture.pixelColor(x, picture.height() * 2 / 5);
        between += dot.saturation() > 25 && dot.saturation() < 110 && dot.lightness() > 120 ? 1 : 0;
    }
    EXPECT_GT(between, 0);
    EXPECT_LT(between, 36);
}

}  // namespace
}  // namespace tarvix::testing
