// The layout in every state of the window, at every font size from 8 to 14 points.
#include "tests/core/named_row.h"
#include "tests/window/desktop_colors.h"
#include "tests/window/layout_faults.h"
#include "tests/window/layout_fixtures.h"
#include "ui/controls/readable_palette.h"
#include "units/nominal_sizes.h"

#include <QMenu>

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <tuple>

namespace tarvix::testing {
namespace {

constexpr int kScreenWidth = 1024;
constexpr int kScreenHeight = 768;

// What a window manager adds above a window.
constexpr int kTitleBar = 24;

INSTANTIATE_TEST_SUITE_P(Fonts, LayoutAtFontTest, Fonts(), FontName);

void ExpectNone(const QStringList& faults, const QString& where) {
    EXPECT_TRUE(faults.isEmpty()) << where.toStdString() << "\n  "
                                  << faults.join("\n  ").toStdString();
}

TEST_P(LayoutAtFontTest, TheFontIsThere) {
    EXPECT_EQ(QFontInfo(QApplication::font()).family(), std::get<0>(GetParam()));
}

TEST_P(LayoutAtFontTest, EveryStateShowsItsTextsAndKeepsItsPlaces) {
    for (const WindowState& state : AllWindowStates()) {
        Show(state);
        ExpectNone(LayoutFaults(form()), state.name);
    }
}

TEST_P(LayoutAtFontTest, EveryEntryOfEveryListCanBeReadWhole) {
    std::set<std::string> faults;
    const auto measure = [&] {
        for (const QString& fault : ListEntryFaults(form())) {
            faults.insert(fault.toStdString());
        }
    };
    for (const char* fluid : {"optLiquid", "optGas", "optSteam"}) {
        Play({QString("click ") + fluid});
        measure();
    }
    Play({"click optGas", "click optCompDensity"});
    measure();
    for (int unit = 0; unit < 3; ++unit) {
        Play({QString("choose cboPipeIDUnit #%1").arg(unit)});
        const int sizes = form().cboNomSize->count();
        ASSERT_EQ(sizes, static_cast<int>(kNominalSizes.size()));
        for (int size = 0; size < sizes; ++size) {
            Play({QString("choose cboNomSize #%1").arg(size)});
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
        Play({QString("click ") + fluid, "choose cboPipeIDUnit Millimeters",
              "choose cboNomSize 254.0"});
        for (const NamedControl& control : form().Controls()) {
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
    Show(OptionStates().front());
    QApplication::setFont(last);
    QCoreApplication::processEvents();
    for (const WindowState& state : OptionStates()) {
        Show(state);
        ExpectNone(LayoutFaults(form()), state.name);
    }
}

TEST_F(LayoutTest, FitsOnASmallScreenUpToTenPoints) {
    for (const char* family : {"DejaVu Sans", "Liberation Sans"}) {
        for (const int size : {8, 9, 10}) {
            QApplication::setFont(QFont(family, size));
            const QSize whole =
                form().WholeSize() + QSize(0, window().menuBar()->sizeHint().height());
            EXPECT_LE(whole.width(), kScreenWidth) << family << size;
            EXPECT_LE(whole.height(), kScreenHeight - kTitleBar) << family << size;
        }
    }
}

struct Desktop : NamedRow {
    QPalette (*colors)();
};

class LayoutOnDesktopTest : public LayoutTest, public ::testing::WithParamInterface<Desktop> {};

INSTANTIATE_TEST_SUITE_P(
    Desktops, LayoutOnDesktopTest,
    ::testing::Values(Desktop{{"Toolkit"}, [] { return QApplication::palette(); }},
                      Desktop{{"Light"}, LightPalette}, Desktop{{"Dark"}, DarkPalette},
                      Desktop{{"PaleDark"}, PaleDarkPalette}),
    kRowName);

TEST_P(LayoutOnDesktopTest, TextsCanBeReadOnEveryColor) {
    // At 14 points the strokes of letters are as strong as their color.
    QApplication::setFont(QFont("DejaVu Sans", 14));
    QApplication::setPalette(GetParam().colors());
    for (const WindowState& state : AllWindowStates()) {
        // The pipe changes texts, but no colors.
        if (state.name.contains("2 inch pipe") || state.name.contains("user entered")) {
            continue;
        }
        Show(state);
        ExpectNone(ContrastFaults(window(), true), state.name);
    }
}

TEST_P(LayoutOnDesktopTest, ColorsChangedWhileTheWindowIsOpenAreFollowed) {
    Show(OptionStates().front());
    QApplication::setPalette(GetParam().colors());
    QCoreApplication::processEvents();
    for (const char* fluid : {"optLiquid", "optGas", "optSteam"}) {
        Play({QString("click ") + fluid});
        ExpectNone(ContrastFaults(window(), false), fluid);
    }
}

TEST_F(LayoutTest, DisabledMenuItemsCanBeRead) {
    for (const QPalette& desktop : {QApplication::palette(), LightPalette(), DarkPalette()}) {
        QApplication::setPalette(desktop);
        const QPalette colors = form().mnuFile->palette();
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

// A mistake in the measuring would pass everything: it finds faults where there are some.
TEST_F(LayoutTest, TheMeasuringFindsFaults) {
    Show(OptionStates().front());
    ASSERT_TRUE(LayoutFaults(form()).isEmpty());
    QLabel& label = *form().lblPer;
    const QRect flow = form().txtFlow->geometry();
    const QRect per = label.geometry();
    const std::tuple<QWidget*, QRect, QString> misplaced[] = {
        {form().txtFlow, flow.translated(20, 0), "txtFlow and cboFlowUnit: overlap"},
        {form().txtFlow, flow.translated(-30, 0), "txtFlow: sticks out of what is around it"},
        {form().txtFlow, flow.translated(0, 1), "txtFlow and cboFlowUnit: stand nearly in one row"},
        {&label, per.translated(1, 0), "cboFlowUnit and lblPer: are nearly aligned"},
        {&label, QRect(per.topLeft(), QSize(3, per.height())), "lblPer: \"Per\" needs "}};
    for (const auto& [widget, place, fault] : misplaced) {
        const QRect before = widget->geometry();
        widget->setGeometry(place);
        EXPECT_EQ(LayoutFaults(form()).filter(fault).size(), 1) << fault.toStdString();
        widget->setGeometry(before);
    }

    ASSERT_TRUE(ContrastFaults(window(), false).isEmpty());
    QPalette pale;
    pale.setColor(QPalette::WindowText, QColor(0x90, 0x90, 0x90));
    label.setPalette(pale);
    EXPECT_EQ(ContrastFaults(window(), false).size(), 1);
    label.setPalette(QPalette());
    label.setText("A text that is far too long for its place");
    EXPECT_EQ(LayoutFaults(form()).size(), 1);
}

}  // namespace
}  // namespace tarvix::testing
