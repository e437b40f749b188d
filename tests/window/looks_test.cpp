// What the eye notices beyond texts that fit: warnings that read as one text, margins that are the
// same on both sides, option discs as large as their texts and seen on every color, the icon.
#include "tests/window/desktop_colors.h"
#include "tests/window/layout_fixtures.h"
#include "ui/controls/readable_palette.h"
#include "ui/windows/window_icon.h"

#include <QResizeEvent>
#include <QSignalBlocker>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>
#include <tuple>
#include <utility>
#include <vector>

namespace tarvix::testing {
namespace {

const QStringList kBothWarnings = {"click optGas",         "click optCompCorrNone",
                                   "click optPgauge",      "choose cboPressUnit PSI",
                                   "type txtPf 300",       "choose cboPipeIDUnit Inches",
                                   "choose cboNomSize 10", "choose cboPipeID #0",
                                   "click optCalcBeta",    "choose cboDeltaPunit Inches of Mercury",
                                   "type txtDeltaP 15"};

class LooksAtFontTest : public LayoutAtFontTest {};

INSTANTIATE_TEST_SUITE_P(Fonts, LooksAtFontTest, Fonts(), FontName);

TEST_P(LooksAtFontTest, WarningsReadAsOneTextEach) {
    Play(kBothWarnings);
    ASSERT_TRUE(form().IsVisible(*form().fraPlateThicknessWarning));
    const QLabel& first = *form().lbl1PlateThicknessWarning;
    const QLabel& second = *form().lbl2PlateThicknessWarning;
    for (const QLabel* label : {&first, &second}) {
        EXPECT_TRUE(label->alignment().testFlag(Qt::AlignLeft));
        EXPECT_EQ(label->contentsRect(), label->rect());
    }
    const QFontMetrics metrics(first.font());
    const int gap = second.x() - first.x() - metrics.horizontalAdvance(first.text());
    EXPECT_NEAR(gap, metrics.horizontalAdvance(' '), 1);
    EXPECT_EQ(second.y(), first.y());
    EXPECT_EQ(second.height(), first.height());
    // Both warnings keep the same distance to the left edge.
    ASSERT_TRUE(form().IsVisible(*form().fraZfCompWarning));
    EXPECT_NEAR(first.x(), form().lbl1ZfCompWarning->x(), 1);
    EXPECT_EQ(form().lbl2ZfCompWarning->x(), form().lbl1ZfCompWarning->x());
    // And reach to the margins of their frames.
    const auto rightMargin = [](const QWidget& widget) {
        return widget.parentWidget()->width() - widget.geometry().right() - 1;
    };
    EXPECT_NEAR(rightMargin(*form().fraZfCompWarning), form().optCompCorrNone->x(), 1);
    EXPECT_NEAR(rightMargin(*form().fraPlateThicknessWarning), form().fraPlateThicknessWarning->x(),
                1);
    EXPECT_EQ(form().fraPlateThicknessWarning->x(), form().txtDeltaP->x());
}

TEST_P(LooksAtFontTest, OnlyTheLongCaptionOfTheCompressibilityFieldBreaks) {
    const QLabel& label = *form().lblCompCorr;
    const int line = QFontMetrics(label.font()).lineSpacing();
    const auto lines = [&] {
        const QRect text =
            QFontMetrics(label.font())
                .boundingRect(label.contentsRect(),
                              Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignBottom, label.text());
        // The last line stands in the row of the option beside it.
        const double middle = label.y() + text.bottom() + 1 - line / 2.0;
        EXPECT_NEAR(middle, form().optCompDensity->y() + form().optCompDensity->height() / 2.0,
                    1.5);
        return (text.height() + line / 2) / line;
    };
    Play({"click optGas", "click optCompDensity"});
    EXPECT_EQ(lines(), 1);
    EXPECT_EQ(form().Of(label).place.width, 735);
    Play({"click optCompZf"});
    EXPECT_EQ(lines(), 2);
    EXPECT_EQ(form().Of(label).place.width, 1700);
}

// 999,999,999 gallons per minute of mercury in grams per day are 7.4e16, and 1,000,000 inches of
// water 25,400,051 mm; 8 is as wide as any digit.
TEST_P(LooksAtFontTest, TheLongestResultsAreShownWhole) {
    const std::pair<QString, std::pair<QString, QString>> longest[] = {
        {"optCalcFR", {"txtFlow", "88,888,888,888,888,888"}},
        {"optCalcDP", {"txtDeltaP", "88,888,888"}},
        {"optCalcBeta", {"txtBeta", "0.88888"}},
        {"optCalcBeta", {"txtOriBoreDia", "1088.888"}},
    };
    for (const auto& [mode, result] : longest) {
        SCOPED_TRACE(result.first.toStdString());
        Play({"click optLiquid", "click " + mode});
        auto& field = dynamic_cast<NumericField&>(*form().Find(result.first)->widget);
        const double whole = QFontInfo(field.parentWidget()->font()).pointSizeF();
        form().txtBeta->setText("0.5");  // a bore without a beta is not current
        field.setText("1");
        EXPECT_NEAR(QFontInfo(field.font()).pointSizeF(), whole, 0.1);
        const QSignalBlocker noLimit(field);  // a beta is refused from 0.95 on, a bore moves beta
        field.setText(result.second);
        QResizeEvent resized(field.size(), field.size());
        QApplication::sendEvent(&field, &resized);
        EXPECT_TRUE(field.font().bold());
        const QFontMetrics metrics(field.font());
        EXPECT_LE(metrics.horizontalAdvance(result.second), field.TextArea().width());
        EXPECT_GT(QFontInfo(field.font()).pointSizeF(), whole / 2);
    }
}

std::vector<OptionButton*> VisibleOptions(const MainForm& form) {
    std::vector<OptionButton*> options;
    for (const NamedControl& control : form.Controls()) {
        if (control.kind == ControlKind::Option && form.IsVisible(*control.widget)) {
            options.push_back(dynamic_cast<OptionButton*>(control.widget));
        }
    }
    return options;
}

TEST_P(LooksAtFontTest, DiscsAreAsLargeAsTheirTexts) {
    for (const char* fluid : {"optLiquid", "optGas", "optSteam"}) {
        Play({QString("click ") + fluid});
        const auto options = VisibleOptions(form());
        ASSERT_GE(options.size(), 10U);
        for (OptionButton* option : options) {
            SCOPED_TRACE(option->objectName().toStdString());
            const QRect disc = option->DiscArea();
            EXPECT_GE(disc.height(), QFontMetrics(option->font()).ascent());
            EXPECT_EQ(disc.width(), disc.height());
            EXPECT_TRUE(option->rect().contains(disc));
            EXPECT_LT(disc.right(), option->TextArea().left());
            EXPECT_TRUE(option->rect().contains(option->TextArea()));
        }
    }
}

TEST_P(LooksAtFontTest, OptionsAreClickedOnAllOfTheirText) {
    Play({"click optGas", "click optDegF"});
    OptionButton* option = form().optDegC;
    const QRect text = option->TextArea();
    const int end =
        text.left() + QFontMetrics(option->font()).horizontalAdvance(option->text()) - 1;
    ASSERT_FALSE(option->Value());
    QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(end, text.center().y()));
    EXPECT_TRUE(option->Value());
}

class LooksTest : public LayoutTest {};

// The bore keeps its text when beta can't be solved any more, but does not look like a result.
TEST_F(LooksTest, ABoreThatIsNotCurrentIsDimmed) {
    const QPalette desktop = QGuiApplication::palette();
    const QColor dimmed("#606060");
    EXPECT_GE(ContrastOf(dimmed, Qt::green), 3);
    const NumericField& bore = *form().txtOriBoreDia;
    const QStringList solved = {"click optLiquid", "click optCalcBeta",  "type txtSGf 1",
                                "type txtSGb 1",   "type txtDeltaP 100", "type txtFlow 30"};
    const std::tuple<QStringList, bool, QColor, QColor> looks[] = {
        {solved, true, Qt::black, Qt::green},
        {{"type txtFlow 0"}, false, dimmed, Qt::green},
        // An input.
        {{"click optCalcFR"}, false, desktop.color(QPalette::Text), desktop.color(QPalette::Base)},
        // Beta is empty when the mode begins.
        {{"type txtBeta x", "click optCalcBeta"}, false, dimmed, Qt::green},
        {{"type txtFlow 30"}, true, Qt::black, Qt::green}};
    for (const auto& [actions, isResult, text, base] : looks) {
        SCOPED_TRACE(actions.last().toStdString());
        Play(actions);
        ASSERT_NE(bore.text(), "");
        EXPECT_EQ(bore.font().bold(), isResult);
        EXPECT_EQ(bore.palette().color(QPalette::Active, QPalette::Text), text);
        EXPECT_EQ(bore.palette().color(QPalette::Active, QPalette::Base), base);
    }
    const NumericField& closed = *form().txtDensity;
    ASSERT_FALSE(closed.isEnabled());
    EXPECT_EQ(closed.palette().color(QPalette::Disabled, QPalette::Text), QColor("#454545"));
}

// Of the outer quarter of an option's disc, at the height of its middle: there the ring crosses it.
double RingContrast(const QImage& picture, const QRect& disc) {
    const int y = disc.center().y() + 1;
    const QColor background = picture.pixelColor(disc.left() - 1, y);
    double strongest = 1;
    for (int x = disc.left(); x < disc.left() + disc.width() / 4; ++x) {
        strongest = std::max(strongest, ContrastOf(picture.pixelColor(x, y), background));
    }
    return strongest;
}

TEST_F(LooksTest, RingsOfOptionsAreSeenOnDarkDesktops) {
    for (const QPalette& desktop : {DarkPalette(), PaleDarkPalette()}) {
        QApplication::setPalette(desktop);
        for (const char* fluid : {"optLiquid", "optGas", "optSteam"}) {
            Play({QString("click ") + fluid, "focus txtFlow"});
            const QImage picture = form().canvas().grab().toImage();
            for (const OptionButton* option : VisibleOptions(form())) {
                const QRect disc = option->DiscArea();
                const QRect onCanvas(option->mapTo(&form().canvas(), disc.topLeft()), disc.size());
                EXPECT_GE(RingContrast(picture, onCanvas), 3.0)
                    << option->objectName().toStdString() << " on "
                    << desktop.color(QPalette::Window).name().toStdString();
            }
        }
    }
}

TEST_F(LooksTest, TheIconHasTheSizesThatWindowManagersShow) {
    const QIcon icon = WindowIcon();
    for (const int size : {48, 128}) {
        EXPECT_TRUE(icon.availableSizes().contains(QSize(size, size))) << size;
        const QImage picture = icon.pixmap(QSize(size, size), 1.0).toImage();
        ASSERT_EQ(picture.size(), QSize(size, size));
        EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0);
        EXPECT_EQ(picture.pixelColor(size / 2, size / 2).alpha(), 255);
    }
}

}  // namespace
}  // namespace tarvix::testing
