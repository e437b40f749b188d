#include "ui/windows/about_box.h"

#include "tests/window/modal_driver.h"

#include <QApplication>
#include <QFontInfo>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>
#include <set>
#include <string>

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

void ExpectTexts(const AboutBox& box) {
    EXPECT_EQ(box.windowTitle(), "About Brindle Tarvix");
    for (const LabelText& expected : kTexts) {
        const auto* label = box.findChild<QLabel*>(expected.label);
        ASSERT_NE(label, nullptr) << expected.label;
        EXPECT_EQ(label->text(), QString::fromUtf8(expected.text)) << expected.label;
        EXPECT_TRUE(label->isVisible()) << expected.label;
    }
    EXPECT_EQ(box.findChildren<QLabel*>().size(), 18);
}

TEST(AboutBoxTest, ShowsItsTextsEachTimeItIsOpened) {
    for (int time = 1; time <= 2; ++time) {
        AboutBox box;
        box.show();
        ExpectTexts(box);
    }
}

TEST(AboutBoxTest, EveryLineIsShownInFullAndBelowTheOneBefore) {
    AboutBox box;
    box.show();
    int bottom = 0;
    for (const LabelText& expected : kTexts) {
        const auto* label = box.findChild<QLabel*>(expected.label);
        const QRect place(label->mapTo(&box, QPoint(0, 0)), label->size());
        EXPECT_GE(place.top(), bottom) << expected.label;
        bottom = place.bottom();
        EXPECT_GE(label->width(), label->sizeHint().width()) << expected.label;
        EXPECT_TRUE(box.rect().contains(place)) << expected.label;
    }
}

// The lines of a paragraph follow each other closely; half a line parts it from the one above, and
// as much the first and the last from their frame.
TEST(AboutBoxTest, StandsInTwoFramesAndParagraphs) {
    AboutBox box;
    box.show();
    const auto* frame1 = box.findChild<QFrame*>("Frame1");
    const auto* frame2 = box.findChild<QFrame*>("Frame2");
    ASSERT_NE(frame1, nullptr);
    ASSERT_NE(frame2, nullptr);
    EXPECT_EQ(frame1->x(), frame2->x());
    EXPECT_EQ(frame1->width(), frame2->width());
    const int line = box.fontMetrics().lineSpacing();
    const std::set<std::string> begins = {"Label1", "Label5", "Label10", "Label13", "Label15"};
    const QLabel* above = nullptr;
    for (const LabelText& expected : kTexts) {
        const auto* label = box.findChild<QLabel*>(expected.label);
        if (above != nullptr && above->parentWidget() == label->parentWidget()) {
            const int gap = label->y() - above->geometry().bottom() - 1;
            EXPECT_EQ(gap, begins.contains(expected.label) ? line / 2 : 0) << expected.label;
        } else if (above != nullptr) {
            EXPECT_EQ(label->x(), line + frame1->frameWidth()) << expected.label;
            EXPECT_EQ(label->y(), line / 2 + frame1->frameWidth()) << expected.label;
        }
        above = label;
    }
    const QFont usual = box.font();
    const auto* title = box.findChild<QLabel*>("Label17");
    EXPECT_TRUE(title->font().bold());
    EXPECT_NEAR(QFontInfo(title->font()).pointSizeF(), 1.4 * QFontInfo(usual).pointSizeF(), 0.3);
    EXPECT_EQ(box.findChild<QScrollArea*>("texts")->accessibleName(), "About Brindle Tarvix");
}

TEST(AboutBoxTest, ButtonClosesIt) {
    AboutBox box;
    bool modal = false;
    const ModalDriver<AboutBox> user([&modal](AboutBox& shown) {
        modal = shown.isModal();
        QTest::mouseClick(shown.findChild<QPushButton*>("cmdExit"), Qt::LeftButton);
    });
    box.exec();
    EXPECT_TRUE(user.done());
    EXPECT_TRUE(modal);
    EXPECT_FALSE(box.isVisible());
}

TEST(AboutBoxTest, EnterAndEscapeCloseIt) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        AboutBox box;
        box.show();
        QTest::keyClick(&box, key);
        EXPECT_FALSE(box.isVisible());
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

TEST_F(AboutBoxOnASmallScreenTest, KeysScrollToTheLastLine) {
    AboutBox box;
    box.show();
    QApplication::setActiveWindow(&box);
    EXPECT_TRUE(box.screen()->availableGeometry().size().expandedTo(box.size()) ==
                box.screen()->availableGeometry().size());
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
    QTest::keyClick(focused, Qt::Key_PageUp);
    EXPECT_FALSE(IsSeen(texts, last));
}

TEST_F(AboutBoxOnASmallScreenTest, TheButtonStaysInSight) {
    AboutBox box;
    box.show();
    const QRect button(box.cmdExit->mapTo(&box, QPoint()), box.cmdExit->size());
    EXPECT_TRUE(box.rect().contains(button));
    EXPECT_GE(button.height(), box.cmdExit->sizeHint().height());
    auto& down = *box.findChild<QScrollArea*>("texts")->verticalScrollBar();
    down.setValue(down.maximum());
    EXPECT_EQ(box.cmdExit->mapTo(&box, QPoint()), button.topLeft());
    QTest::keyClick(box.focusWidget(), Qt::Key_Return);
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
