// The windows against pictures that are kept: whatever is painted elsewhere, in another colour or
// not at all is seen, though no other test asks for it.
#include "tests/core/locales.h"
#include "tests/core/recording_platform.h"
#include "tests/window/desktop_colors.h"
#include "tests/window/kept_picture.h"
#include "tests/window/layout_fixtures.h"
#include "ui/form/form_view.h"
#include "ui/windows/about_box.h"
#include "ui/windows/frm_cust_info.h"
#include "ui/windows/frm_splash.h"

#include <QAbstractItemView>
#include <QMenu>
#include <QScrollBar>
#include <QTest>

#include <utility>

namespace tarvix::testing {
namespace {

// Another processor may round a shade otherwise.
constexpr int kShades = 6;

class WindowLooksTest : public LayoutTest {
  protected:
    void SetUp() override {
        if (!QString(qVersion()).startsWith("6.4.")) {
            GTEST_SKIP() << "the pictures are of Qt 6.4's controls";
        }
        QApplication::setFont(QFont("DejaVu Sans", 9));
        // A caret that does not blink.
        QApplication::setCursorFlashTime(0);
    }

    void TearDown() override {
        QApplication::setCursorFlashTime(cursorFlashTime_);
        LayoutTest::TearDown();
    }

    static void Expect(QWidget& window, const char* name) {
        Settle();
        // Wherever an earlier test has left the mouse, it is over nothing.
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            widget->setAttribute(Qt::WA_UnderMouse, false);
        }
        ExpectKeptPicture(window.grab().toImage(), TARVIX_WINDOW_PICTURES, name, kShades, 0);
    }

    const int cursorFlashTime_ = QApplication::cursorFlashTime();
    RecordingPlatform platform_;
    Module1 module_{platform_, kUnitedStates};
};

const QStringList kLiquid = {"click optLiquid",    "choose cboNomSize 10", "choose cboPipeID #0",
                             "click optCalcBeta",  "type txtSGf 1.024",    "type txtSGb 0.998",
                             "type txtDeltaP 200", "type txtFlow 1250"};
const QStringList kGas = {"click optGas",        "click optCalcFR",    "type txtTf 60",
                          "type txtPf 300",      "type txtGasSGb 0.6", "choose cboNomSize 4",
                          "choose cboPipeID #0", "type txtDeltaP 100", "type txtBeta 0.5"};
const QStringList kSteam = {"click optSteam",
                            "click optCalcDP",
                            "type txtPf 150",
                            "click optSteamTbl",
                            "answer text 4.001",
                            "choose cboNomSize 4",
                            "choose cboPipeID Other (User Entered)",
                            "type txtBeta 0.5",
                            "type txtFlow 12500"};

// With its warning, with a bore of earlier entries, from the table in the user's own pipe.
TEST_F(WindowLooksTest, EachFluid) {
    const std::pair<const char*, QStringList> looks[] = {
        {"liquid", kLiquid},
        {"liquid_dimmed", kLiquid + QStringList{"type txtFlow 0"}},
        {"gas", kGas},
        {"steam", kSteam}};
    for (const auto& [picture, actions] : looks) {
        player_.reset();
        Play(actions);
        Expect(window(), picture);
    }
}

TEST_F(WindowLooksTest, GasOnADarkDesktop) {
    QApplication::setPalette(DarkPalette());
    Play(kGas + QStringList{"click optCompDensity", "type txtZf 1.3", "click optCalcBeta"});
    Expect(window(), "gas_dark");
}

TEST_F(WindowLooksTest, AMessageOnALargerFont) {
    QApplication::setFont(QFont("DejaVu Sans", 13));
    Play({"click optGas", "click optCompZf"});
    Expect(window(), "message_large");
}

// As the Tab key brings it; a click shows no ring.
TEST_F(WindowLooksTest, OptionsThatHaveTheFocus) {
    Play(kGas);
    form().optCalcFR->setFocus();
    const auto press = [this](int tabs) {
        for (int i = 0; i < tabs; ++i) {
            QTest::keyClick(window().focusWidget(), Qt::Key_Tab);
        }
    };
    press(1);
    EXPECT_TRUE(form().optGas->hasFocus());
    Expect(window(), "focus_on_bar");
    press(2);
    EXPECT_TRUE(form().optDegF->hasFocus());
    Expect(window(), "focus_on_option");
}

TEST_F(WindowLooksTest, AFontInPixelsAndALongResult) {
    QFont font("DejaVu Sans");
    font.setPixelSize(13);
    QApplication::setFont(font);
    Play(kGas + QStringList{"type txtDeltaP 4000", "choose cboNomSize 12",
                            "choose cboFlowUnit Standard Cubic Meters", "type txtPf 90000"});
    Expect(window(), "gas_pixels");
}

TEST_F(WindowLooksTest, AWindowThatScrolls) {
    Play(kGas);
    window().resize(560, 420);
    Settle();
    Expect(window(), "scrolled_to_field");
    auto& view = dynamic_cast<FormView&>(*window().centralWidget());
    view.scrollArea().verticalScrollBar()->setValue(0);
    Expect(window(), "scrolled_to_top");
}

TEST_F(WindowLooksTest, OpenMenuAndList) {
    Play(kLiquid);
    window().show();
    form().mnuFile->popup(QPoint(0, 0));
    Expect(*form().mnuFile, "menu");
    form().mnuFile->hide();
    form().cboPipeID->showPopup();
    Expect(*form().cboPipeID->view()->window(), "list");
    form().cboPipeID->hidePopup();
}

TEST_F(WindowLooksTest, AboutBox) {
    class AboutBox box;
    box.show();
    Expect(box, "about");
}

TEST_F(WindowLooksTest, CustomerWindow) {
    frmCustInfo window(module_);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    Expect(window, "customer");
    window.txtCust1->setText(QString(70, 'm'));
    window.txtCust2->setText(QString(150, 'w') + QChar(0xE000));
    Expect(window, "customer_long");
}

// Two seconds pass from one look to the next.
class FastClock : public RecordingPlatform {
  public:
    int CurrentSecond() override { return seconds_ += 2; }

  private:
    int seconds_ = 0;
};

TEST_F(WindowLooksTest, Splash) {
    FastClock clock;
    Module1 module(clock, kUnitedStates);
    module.AppPath = AppPathOf(TARVIX_LOGOS);
    QImage seen;
    bool over = false;
    frmSplash* shown = nullptr;
    frmSplash splash(module, {.loadMainWindow = [] {},
                              .showMainWindow = [&] { over = true; },
                              .whileWaiting = [&] { seen = shown->grab().toImage(); }});
    shown = &splash;
    splash.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return over; }));
    ExpectKeptPicture(seen, TARVIX_WINDOW_PICTURES, "splash", kShades, 0);
}

}  // namespace
}  // namespace tarvix::testing
