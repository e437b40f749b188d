#include "ui/windows/about_box.h"

#include <QApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

struct LabelText {
    const char* label;
    const char* text;
};

constexpr LabelText kTexts[] = {
    {"Label17", "Brindle Tarvix        Version 3.0"},
    {"Label1", "The Tarvix is made available from Brindle Measurement and Control, Inc."},
    {"Label2",
     "to assist in the calculation of orifice diameters.  For a given set of input variables, the"},
    {"Label3", "Tarvix will display the respective beta value (ratio of orifice diameter to"},
    {"Label4", "pipe diameter), pressure differential or flow rate."},
    {"Label5",
     "Values for the beta ratio are approximate, typically within 2% - 5% for gases and steam,"},
    {"Label6",
     "and 1% for liquids.  The ASME MFC-3M 1989 equation is used in this program along with"},
    {"Label7",
     "several assumed factors, which are noted on the printout.  This program does not take"},
    {"Label8",
     "into consideration two calculation variables - the Reynolds Number correction and the"},
    {"Label9", "expansion factor.  For gas calculations with high operating pressures, greater"},
    {"Label18", "inaccuracies will occur if no compressibility correction factor is entered"},
    {"Label10", "The Tarvix is provided for estimation purposes only.  If it is necessary to"},
    {"Label11",
     "have a closely specified pressure differential, flow rate, or bore diameter, please consult"},
    {"Label12", "your Brindle representative for assistance."},
    {"Label13",
     "Final selection decisions may be influenced by information not evaluated by the Tarvix"},
    {"Label14", "and final selection responsibility is that of the individual user."},
    {"Label15", "For further information on Brindle products and services, visit our web site at"},
    {"Label16", "www.brindle.example"},
};

// How its frames and paragraphs stand is in the kept picture.
TEST(AboutBoxTest, EveryLineIsShownInFullAndBelowTheOneBefore) {
    // Each time it is opened.
    for (int time = 1; time <= 2; ++time) {
        AboutBox box;
        box.show();
        EXPECT_EQ(box.windowTitle(), "About Brindle Tarvix");
        EXPECT_EQ(box.findChild<QScrollArea*>("texts")->accessibleName(), box.windowTitle());
        EXPECT_EQ(box.findChildren<QLabel*>().size(), 18);
        int bottom = 0;
        for (const LabelText& expected : kTexts) {
            SCOPED_TRACE(expected.label);
            const auto* label = box.findChild<QLabel*>(expected.label);
            ASSERT_NE(label, nullptr);
            EXPECT_EQ(label->text(), QString::fromUtf8(expected.text));
            EXPECT_TRUE(label->isVisible());
            const QRect place(label->mapTo(&box, QPoint(0, 0)), label->size());
            EXPECT_GE(place.top(), bottom);
            bottom = place.bottom();
            EXPECT_GE(label->width(), label->sizeHint().width());
            EXPECT_TRUE(box.rect().contains(place));
        }
    }
}

TEST(AboutBoxTest, ButtonEnterAndEscapeCloseIt) {
    AboutBox box;
    EXPECT_TRUE(box.isModal());
    box.show();
    QTest::mouseClick(box.cmdExit, Qt::LeftButton);
    EXPECT_FALSE(box.isVisible());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        box.show();
        QTest::keyClick(&box, key);
        EXPECT_FALSE(box.isVisible()) << key;
    }
}

// A font so large that the texts don't fit on the screen.
class AboutBoxOnASmallScreenTest : public ::testing::Test {
  protected:
    void SetUp() override { QApplication::setFont(QFont(font_.family(), 40)); }
    void TearDown() override { QApplication::setFont(font_); }

  private:
    QFont font_ = QApplication::font();
};

// From its upper to its lower edge.
bool IsSeen(const QScrollArea& texts, const QWidget& label) {
    const int top = label.mapTo(texts.viewport(), QPoint()).y();
    return top >= 0 && top + label.height() <= texts.viewport()->height();
}

TEST_F(AboutBoxOnASmallScreenTest, KeysScrollToTheLastLineAndTheButtonStaysInSight) {
    AboutBox box;
    box.show();
    QApplication::setActiveWindow(&box);
    const QSize screen = box.screen()->availableGeometry().size();
    EXPECT_EQ(screen.expandedTo(box.size()), screen);
    const QRect button(box.cmdExit->mapTo(&box, QPoint()), box.cmdExit->size());
    EXPECT_TRUE(box.rect().contains(button));
    EXPECT_GE(button.height(), box.cmdExit->sizeHint().height());
    const auto& texts = *box.findChild<QScrollArea*>("texts");
    const QScrollBar& down = *texts.verticalScrollBar();
    ASSERT_GT(down.maximum(), 0);
    const auto& last = *box.findChild<QLabel*>("Label16");
    EXPECT_FALSE(IsSeen(texts, last));
    QWidget* focused = box.focusWidget();
    ASSERT_NE(focused, nullptr);
    QTest::keyClick(focused, Qt::Key_Down);
    EXPECT_GT(down.value(), 0);
    for (int pages = 0; pages < 100 && down.value() < down.maximum(); ++pages) {
        QTest::keyClick(focused, Qt::Key_PageDown);
    }
    EXPECT_TRUE(IsSeen(texts, last));
    EXPECT_EQ(box.cmdExit->mapTo(&box, QPoint()), button.topLeft());
    QTest::keyClick(focused, Qt::Key_PageUp);
    EXPECT_FALSE(IsSeen(texts, last));
    QTest::keyClick(focused, Qt::Key_Return);
    EXPECT_FALSE(box.isVisible());
}

TEST(AboutBoxTest, DoesNotScrollWhereItFits) {
    AboutBox box;
    box.show();
    QApplication::processEvents();
    const auto& texts = *box.findChild<QScrollArea*>("texts");
    EXPECT_EQ(texts.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(texts.horizontalScrollBar()->maximum(), 0);
    EXPECT_FALSE(texts.verticalScrollBar()->isVisible());
    EXPECT_EQ(box.focusWidget(), box.cmdExit);
}

}  // namespace
}  // namespace tarvix::testing
