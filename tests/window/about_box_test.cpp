#include "ui/windows/about_box.h"

#include <QApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

// Its texts are in the table of texts, how they stand in the kept picture.
TEST(AboutBoxTest, IsReadAloudFromItsButton) {
    const AboutBox box;
    EXPECT_EQ(box.windowTitle(), "About Brindle Tarvix");
    EXPECT_EQ(box.findChild<QScrollArea*>("texts")->accessibleName(), box.windowTitle());
    EXPECT_EQ(box.focusWidget(), box.cmdExit);
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

}  // namespace
}  // namespace tarvix::testing
