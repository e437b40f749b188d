// The installed logos in windows: as fine as the screen, without the white around the drawing.
#include "ui/windows/logo_picture.h"

#include "tests/core/recording_platform.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <ostream>
#include <vector>

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

// Whatever is darker than the white of the picture is drawing, in the outermost rows and columns,
// too.
TEST(LogoDrawingTest, IsCutOutToTheDot) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("logo.png");
    const auto sizeWith = [&](const std::vector<QPoint>& ink, int grey) {
        QImage picture(40, 20, QImage::Format_RGB32);
        picture.fill(Qt::white);
        for (const QPoint& dot : ink) {
            picture.setPixelColor(dot, QColor(grey, grey, grey));
        }
        EXPECT_TRUE(picture.save(file));
        RecordingPlatform platform;
        return Logo(file.toStdString(), platform).Pixmap(picture.size(), 1).size();
    };
    EXPECT_EQ(sizeWith({{0, 0}, {39, 19}}, 0), QSize(40, 20));
    EXPECT_EQ(sizeWith({{0, 5}, {7, 0}}, 239), QSize(8, 6));
    EXPECT_EQ(sizeWith({{39, 19}}, 239), QSize(1, 1));
    EXPECT_EQ(sizeWith({{3, 4}, {0, 0}}, 240), QSize(40, 20)) << "all white, and shown as it is";
}

}  // namespace
}  // namespace tarvix::testing
