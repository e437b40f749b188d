// How large the main window is and where it stands when it is loaded, on screens with and without
// room for it.
#include "app/window/frm_tarvix.h"
#include "app/window/window_place.h"
#include "tests/core/locales.h"
#include "tests/window/layout_fixtures.h"
#include "tests/window_script/script_desk.h"
#include "ui/windows/frm_splash.h"

#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <stdexcept>
#include <utility>

namespace tarvix::testing {
namespace {

// The points of a font on this screen, and what has no room with it.
struct SizeCase {
    int points;
    bool wide;
    bool high;
};

class WindowSizeTest : public LayoutTest, public ::testing::WithParamInterface<SizeCase> {
  protected:
    WindowSizeTest() { QApplication::setFont(QFont("DejaVu Sans", GetParam().points)); }

    ScriptDesk desk_{[](int) { throw std::runtime_error("the program ended"); }};
    Module1 module_{desk_, kUnitedStates};
};

INSTANTIATE_TEST_SUITE_P(Screens, WindowSizeTest,
                         ::testing::Values(SizeCase{8, false, false}, SizeCase{10, true, false},
                                           SizeCase{16, true, true}));

TEST_P(WindowSizeTest, LeavesRoomForTheFrameAndForScrollBarsWhereTheyAreNeeded) {
    module_.AppPath = AppPathOf(QCoreApplication::applicationDirPath());
    frmTarvix window(module_, desk_);
    window.Form_Load();
    const MainForm& form = window.form();
    const int menu = window.menuBar()->sizeHint().height();
    const QSize whole(form.WholeSize().width(), form.WholeSize().height() + menu);
    const QMargins frame = window.windowHandle()->frameMargins();
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const int roomWidth = screen.width() - frame.left() - frame.right();
    const int roomHeight = screen.height() - frame.top() - frame.bottom();
    ASSERT_EQ(whole.width() > roomWidth, GetParam().wide) << whole.width();
    ASSERT_EQ(whole.height() > roomHeight, GetParam().high) << whole.height();

    const int bar = window.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &window);
    const int most = whole.width() + (GetParam().high ? bar : 0);
    const int highest = whole.height() + (GetParam().wide ? bar : 0);
    EXPECT_EQ(window.maximumSize(), QSize(most, highest));
    EXPECT_EQ(window.size(), QSize(std::min(most, roomWidth), std::min(highest, roomHeight)));
    // A frame whole, with what surrounds it, a line more, and what stands below the form.
    const QWidget& options = *form.fraCalcOptions;
    constexpr int kMayBeLost = 3;  // of the canvas, before it scrolls
    const int footer = form.WholeSize().height() - form.canvas().minimumHeight() - kMayBeLost;
    EXPECT_EQ(window.minimumWidth(), form.fraBeta->width() + 2 * options.x() + bar);
    EXPECT_EQ(window.minimumHeight(), options.height() + 2 * options.y() + footer +
                                          window.fontMetrics().lineSpacing() + bar + menu);

    // With its frame in the middle of the screen.
    EXPECT_NEAR(window.frameGeometry().center().x(), screen.center().x(), 3);
    EXPECT_EQ(window.geometry().topLeft() - screen.topLeft(),
              QPoint((roomWidth - window.width()) / 2 + frame.left(),
                     (roomHeight - window.height()) / 2 + frame.top()));
}

// The place on the screen and the sizes of both.
TEST(StartPlaceTest, IsInTheMiddleOrAtTheTopOfAScreenOf500PixelsOrLess) {
    const std::pair<QPoint, ScreenPoint> places[] = {{{234, 118}, StartPlace(1280, 900, 811, 663)},
                                                     {{200, 100}, StartPlace(1000, 501, 600, 301)},
                                                     {{200, 0}, StartPlace(1000, 500, 600, 300)},
                                                     {{200, 0}, StartPlace(1000, 499, 600, 300)}};
    for (const auto& [expected, place] : places) {
        EXPECT_EQ(QPoint(place.x, place.y), expected);
    }
}

}  // namespace
}  // namespace tarvix::testing
