// What has to be seen on dark desktops, in every window: empty fields and frames.
#include "tests/core/locales.h"
#include "tests/core/recording_platform.h"
#include "tests/window/desktop_colors.h"
#include "tests/window/layout_fixtures.h"
#include "tests/window/modal_driver.h"
#include "ui/controls/readable_palette.h"
#include "ui/windows/about_box.h"
#include "ui/windows/frm_cust_info.h"
#include "ui/windows/qt_platform.h"

#include <QInputDialog>
#include <QLineEdit>

#include <gtest/gtest.h>
#include <vector>

namespace tarvix::testing {
namespace {

class DarkDesktopTest : public LayoutTest {};

// Of the inside of a field against what is around it in a picture.
double FieldContrast(const QImage& picture, const QWidget& field) {
    const QRect place(field.mapTo(field.window(), QPoint()), field.size());
    return ContrastOf(picture.pixelColor(place.center()),
                      picture.pixelColor(place.left() - 3, place.center().y()));
}

// Of common desktops, the darkest that there is, and one with fields lighter than its windows.
std::vector<QPalette> DarkPalettes() {
    return {DarkPalette(), PaleDarkPalette(),
            DesktopPalette(Qt::black, Qt::black, Qt::black, Qt::white, Qt::gray),
            DesktopPalette(0x303030, 0x383838, 0x404040, Qt::white, Qt::gray)};
}

TEST_F(DarkDesktopTest, EmptyFieldsAreSeenAndTextsInThemRead) {
    for (const QPalette& desktop : DarkPalettes()) {
        QApplication::setPalette(desktop);
        SCOPED_TRACE(desktop.color(QPalette::Window).name().toStdString());
        const QPalette shown = ReadablePalette(desktop).resolve(desktop);
        EXPECT_GE(ContrastOf(shown.color(QPalette::Text), shown.color(QPalette::Base)), 7);
        EXPECT_GE(ContrastOf(shown.color(QPalette::Disabled, QPalette::Text),
                             shown.color(QPalette::Disabled, QPalette::Base)),
                  4.5);
        for (const char* fluid : {"optLiquid", "optGas", "optSteam"}) {
            Play({QString("click ") + fluid, "click optCalcFR"});
            const MainForm& form = Player().form();
            const QImage picture = Player().window().grab().toImage();
            int measured = 0;
            for (NumericField* field : form.NumericFields()) {
                if (form.IsVisible(*field) && field->text().isEmpty()) {
                    ++measured;
                    EXPECT_GE(FieldContrast(picture, *field), 1.5)
                        << field->objectName().toStdString();
                }
            }
            EXPECT_GE(measured, 5);
        }
    }
}

TEST_F(DarkDesktopTest, EmptyFieldsOfTheOtherWindowsAreSeenOnDarkDesktops) {
    for (const QPalette& desktop : DarkPalettes()) {
        QApplication::setPalette(desktop);
        SCOPED_TRACE(desktop.color(QPalette::Window).name().toStdString());
        RecordingPlatform platform;
        Module1 module(platform, kUnitedStates);
        frmCustInfo customer(module);
        customer.show();
        const QImage picture = customer.grab().toImage();
        for (const QLineEdit* field : {customer.txtCust1, customer.txtCust2, customer.txtTag}) {
            EXPECT_GE(FieldContrast(picture, *field), 1.5) << field->objectName().toStdString();
        }
        ModalDriver<QInputDialog> user([](QInputDialog& box) {
            EXPECT_GE(FieldContrast(box.grab().toImage(), *box.findChild<QLineEdit*>()), 1.5);
            box.reject();
        });
        QtPlatform().ShowInputBox({"Enter a Pipe ID in Inches.", "Pipe ID", ""});
        EXPECT_TRUE(user.done());
    }
}

// Of the left line of a frame against what is inside.
double FrameContrast(const QWidget& frame) {
    const QImage picture = frame.window()->grab().toImage();
    const QPoint left = frame.mapTo(frame.window(), QPoint(0, frame.height() - 5));
    return ContrastOf(picture.pixelColor(left), picture.pixelColor(left + QPoint(2, 0)));
}

TEST_F(DarkDesktopTest, FramesAreAsClearInEveryWindow) {
    for (const QPalette& desktop : {LightPalette(), DarkPalette(), PaleDarkPalette()}) {
        QApplication::setPalette(desktop);
        SCOPED_TRACE(desktop.color(QPalette::Window).name().toStdString());
        Play({"click optGas"});
        const double clear = FrameContrast(*Player().form().fraPipe);
        EXPECT_GE(clear, 1.5);
        AboutBox about;
        RecordingPlatform platform;
        Module1 module(platform, kUnitedStates);
        frmCustInfo customer(module);
        about.show();
        customer.show();
        QApplication::processEvents();
        for (const QWidget* frame : {about.Frame1, about.Frame2, customer.Frame1}) {
            EXPECT_NEAR(FrameContrast(*frame), clear, 0.01)
                << frame->window()->objectName().toStdString();
        }
    }
}

}  // namespace
}  // namespace tarvix::testing
