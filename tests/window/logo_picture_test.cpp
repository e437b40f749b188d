// The installed logos in windows: as fine as the screen, without the white around the drawing.
#include "ui/windows/logo_picture.h"

#include "tests/core/recording_platform.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <vector>

namespace tarvix::testing {
namespace {

TEST(LogoPictureTest, IsAsSharpAsTheScreen) {
    // The drawings in their own units; a picture has 640 x 160 of them.
    const std::tuple<const char*, double, double, int> logos[] = {
        {"/BrindleLogo.jpg", 618, 136, 1},
        {"/BrindleLogo.jpg", 618, 136, 2},
        {"/BrindleLogo.jpg", 618, 136, 3},
        {"/VeltraneLogo.jpg", 621, 120, 3}};
    for (const auto& [file, width, height, scale] : logos) {
        SCOPED_TRACE(file + std::string(" at ") + std::to_string(scale));
        RecordingPlatform platform;
        const Logo logo(TARVIX_LOGOS + std::string(file), platform);
        const QPixmap pixmap = logo.Pixmap(QSize(240, 60), scale);
        // 240 points for 640 units.
        const double dots = 240.0 / 640 * scale;
        EXPECT_NEAR(pixmap.width(), width * dots, 1.5);
        EXPECT_NEAR(pixmap.height(), height * dots, 1.5);
        EXPECT_EQ(pixmap.devicePixelRatio(), scale);

        // Along the middle row every edge is one or two pixels wide, whatever the scale: few dots
        // are neither white nor as dark or bright as an ink.
        const QImage picture = pixmap.toImage();
        int between = 0;
        for (int x = 0; x < picture.width(); ++x) {
            const QColor dot = picture.pixelColor(x, picture.height() * 2 / 5);
            const bool isEdge =
                dot.saturation() > 25 && dot.saturation() < 110 && dot.lightness() > 120;
            between += isEdge ? 1 : 0;
        }
        EXPECT_GT(between, 0);
        EXPECT_LT(between, 36);
    }
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
