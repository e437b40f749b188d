// The layout in every state of the window, at every font size from 8 to 14 points.
#include "tests/window/desktop_colors.h"
#include "tests/window/layout_faults.h"
#include "tests/window/layout_fixtures.h"
#include "tests/window/window_states.h"
#include "ui/controls/readable_palette.h"
#include "units/nominal_sizes.h"

#include <QApplication>
#include <QMenu>

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace tarvix::testing {
namespace {

constexpr int kScreenWidth = 1024;
constexpr int kScreenHeight = 768;

// What a window manager adds above a window.
constexpr int kTitleBar = 24;

INSTANTIATE_TEST_SUITE_P(Fonts, LayoutAtFontTest, Fonts(), FontName);

TEST_P(LayoutAtFontTest, TheFontIsThere) {
    EXPECT_EQ(QFontInfo(QApplication::font()).family(), std::get<0>(GetParam()));
}

TEST_P(LayoutAtFontTest, EveryStateShowsItsTextsAndKeepsItsPlaces) {
    for (const WindowState& state : AllWindowStates()) {
        Play(state);
        const QStringList faults = LayoutFaults(Player().form());
        EXPECT_TRUE(faults.isEmpty())
            << state.name.toStdString() << "\n  " << faults.join("\n  ").toStdString();
    }
}

TEST_P(LayoutAtFontTest, EveryEntryOfEveryListCanBeReadWhole) {
    std::set<std::string> faults;
    const auto measure = [&] {
        for (const QString& fault : ListEntryFaults(Player().form())) {
            faults.insert(fault.toStdString());
        }
    };
    for (const char* fluid : {"optLiquid", "optGas", "optSteam"}) {
        Play({fluid, {QString("click ") + fluid}});
        measure();
    }
    Play({"", {"click optGas", "click optCompDensity"}});
    measure();
    for (int unit = 0; unit < 3; ++unit) {
        Play({"", {QString("choose cboPipeIDUnit #%1").arg(unit)}});
        const int sizes = Player().form().cboNomSize->count();
        ASSERT_EQ(sizes, static_cast<int>(kNominalSizes.size()));
        for (int size = 0; size < sizes; ++size) {
            Play({"", {QString("choose cboNomSize #%1").arg(size)}});
            measure();
        }
    }
    for (const std::string& fault : faults) {
        ADD_FAILURE() << fault;
    }
}

// The tightest list decides how wide the form is; the others would be seen to be cut off with
// another font only.
TEST_F(LayoutTest, EveryListAsksForRoomForTheEntriesThatItHolds) {
    const int aroundEntries = DropDownList(nullptr).sizeHint().width();
    for (const char* fluid : {"optLiquid", "optGas", "optSteam"}) {
        Play({"",
              {QString("click ") + fluid, "choose cboPipeIDUnit Millimeters",
               "choose cboNomSize 254.0"}});
        for (const NamedControl& control : Player().form().Controls()) {
            const auto* list = dynamic_cast<const DropDownList*>(control.widget);
            for (int entry = 0; list != nullptr && entry < list->count(); ++entry) {
                EXPECT_GE(list->sizeHint().width() - aroundEntries,
                          list->fontMetrics().horizontalAdvance(list->itemText(entry)))
                    << control.name.toStdString() << " " << list->itemText(entry).toStdString();
            }
        }
    }
}

TEST_P(LayoutAtFontTest, AFontChangedWhileTheWindowIsOpenChangesTheLayout) {
    const QFont last = QApplication::font();
    QApplication::setFont(QFont(last.family(), 22 - last.pointSize()));
    Play(OptionStates().front());
    QApplication::setFont(last);
    QCoreApplication::processEvents();
    for (const WindowState& state : OptionStates()) {
        Play(state);
        const QStringList faults = LayoutFaults(Player().form());
        ASSERT_TRUE(faults.isEmpty())
            << state.name.toStdString() << "\n  " << faults.join("\n  ").toStdString();
    }
}

TEST_F(LayoutTest, FitsOnASmallScreenUpToTenPoints) {
    for (const char* family : {"DejaVu Sans", "Liberation Sans"}) {
        for (const int size : {8, 9, 10}) {
            QApplication::setFont(QFont(family, size));
            frmTarvix& window = Player().window();
            const QSize whole =
                window.form().WholeSize() + QSize(0, window.menuBar()->sizeHint().height());
            EXPECT_LE(whole.width(), kScreenWidth) << family << size;
            EXPECT_LE(whole.height(), kScreenHeight - kTitleBar) << family << size;
        }
    }
}

struct Desktop {
    const char* name;
    QPalette (*colors)();
};

class LayoutOnDesktopTest : public LayoutTest, public ::testing::WithParamInterface<Desktop> {};

INSTANTIATE_TEST_SUITE_P(
    Desktops, LayoutOnDesktopTest,
    ::testing::Values(Desktop{"Toolkit", [] { return QApplication::palette(); }},
                      Desktop{"Light", LightPalette}, Desktop{"Dark", DarkPalette},
                      Desktop{"PaleDark", PaleDarkPalette}),
    [](const ::testing::TestParamInfo<Desktop>& desktop) {
        return std::string(desktop.param.name);
    });

TEST_P(LayoutOnDesktopTest, TextsCanBeReadOnEveryColor) {
    // At 14 points the strokes of letters are as strong as their color.
    QApplication::setFont(QFont("DejaVu Sans", 14));
    QApplication::setPalette(GetParam().colors());
    for (const WindowState& state : AllWindowStates()) {
        // The pipe changes texts, but no colors.
        if (state.name.contains("2 inch pipe") || state.name.contains("user entered")) {
            continue;
        }
        Play(state);
        const QStringList faults = ContrastFaults(Player().window(), true);
        EXPECT_TRUE(faults.isEmpty())
            << state.name.toStdString() << "\n  " << faults.join("\n  ").toStdString();
    }
}

TEST_P(LayoutOnDesktopTest, ColorsChangedWhileTheWindowIsOpenAreFollowed) {
    Play(OptionStates().front());
    QApplication::setPalette(GetParam().colors());
    QCoreApplication::processEvents();
    for (const char* fluid : {"optLiquid", "optGas", "optSteam"}) {
        Play({fluid, {QString("click ") + fluid}});
        const QStringList faults = ContrastFaults(Player().window(), false);
        EXPECT_TRUE(faults.isEmpty()) << fluid << "\n  " << faults.join("\n  ").toStdString();
    }
}

TEST_F(LayoutTest, DisabledMenuItemsCanBeRead) {
    for (const QPalette& desktop : {QApplication::palette(), LightPalette(), DarkPalette()}) {
        QApplication::setPalette(desktop);
        const QPalette colors = Player().form().mnuFile->palette();
        for (const auto background : {QPalette::Window, QPalette::Base, QPalette::Button}) {
            EXPECT_GE(ContrastOf(colors.color(QPalette::Disabled, QPalette::WindowText),
                                 colors.color(background)),
                      4.5);
            EXPECT_GE(ContrastOf(colors.color(QPalette::Disabled, QPalette::ButtonText),
                                 colors.color(background)),
                      4.5);
        }
    }
}

TEST_F(LayoutTest, ResultsAreBoldAndInputsAreNot) {
    Play({"", {"click optCalcFR"}});
    const MainForm& form = Player().form();
    EXPECT_TRUE(form.txtFlow->font().bold());
    EXPECT_FALSE(form.txtBeta->font().bold());
    EXPECT_FALSE(form.txtOriBoreDia->font().bold());
    EXPECT_FALSE(form.txtDeltaP->font().bold());
    Play({"", {"click optCalcBeta"}});
    EXPECT_FALSE(form.txtFlow->font().bold());
    EXPECT_TRUE(form.txtBeta->font().bold());
    EXPECT_TRUE(form.txtOriBoreDia->font().bold());
}

// A mistake in the measuring would pass everything: it finds faults where there are some.
TEST_F(LayoutTest, TheMeasuringFindsFaults) {
    Play(OptionStates().front());
    const MainForm& form = Player().form();
    ASSERT_TRUE(LayoutFaults(Player().form()).isEmpty());
    const auto faultsWith = [&](QWidget* widget, const QRect& geometry) {
        const QRect before = widget->geometry();
        widget->setGeometry(geometry);
        QStringList faults = LayoutFaults(Player().form());
        widget->setGeometry(before);
        return faults;
    };
    const QRect flow = form.txtFlow->geometry();
    EXPECT_TRUE(faultsWith(form.txtFlow, flow.translated(20, 0))
                    .contains("txtFlow and cboFlowUnit: overlap"));
    EXPECT_TRUE(faultsWith(form.txtFlow, flow.translated(-30, 0))
                    .contains("txtFlow: sticks out of what is around it"));
    EXPECT_TRUE(faultsWith(form.txtFlow, flow.translated(0, 1))
                    .contains("txtFlow and cboFlowUnit: stand nearly in one row"));
    const QRect per = form.lblPer->geometry();
    EXPECT_TRUE(faultsWith(form.lblPer, per.translated(1, 0))
                    .contains("cboFlowUnit and lblPer: are nearly aligned"));
    EXPECT_EQ(faultsWith(form.lblPer, per.adjusted(0, 0, 3 - per.width(), 0)).size(), 1);

    ASSERT_TRUE(ContrastFaults(Player().window(), false).isEmpty());
    QPalette pale;
    pale.setColor(QPalette::WindowText, QColor(0x90, 0x90, 0x90));
    form.lblPer->setPalette(pale);
    EXPECT_EQ(ContrastFaults(Player().window(), false).size(), 1);
    form.lblPer->setPalette(QPalette());
    form.lblPer->setText("A text that is far too long for its place");
    EXPECT_EQ(LayoutFaults(Player().form()).size(), 1);
}

}  // namespace
}  // namespace tarvix::testing
