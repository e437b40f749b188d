// What a control does by itself when the focus comes to it.
#include "ui/controls/entry_line.h"
#include "ui/controls/tab_control.h"

#include <QApplication>
#include <QFocusEvent>
#include <QTabBar>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

// ---- The focus that comes to a line, and the one that comes back ----

class EntryLineTest : public ::testing::Test {
  protected:
    EntryLineTest() {
        line_.onGotFocus = [this] { ++entries_; };
    }

    void FocusComes(Qt::FocusReason reason) {
        QFocusEvent event(QEvent::FocusIn, reason);
        QCoreApplication::sendEvent(&line_, &event);
    }

    int entries_ = 0;
    EntryLine line_{"12345"};
};

TEST_F(EntryLineTest, FocusFromAnotherControlIsAnEntry) {
    for (const auto reason : {Qt::TabFocusReason, Qt::BacktabFocusReason, Qt::MouseFocusReason,
                              Qt::ShortcutFocusReason, Qt::OtherFocusReason}) {
        entries_ = 0;
        FocusComes(reason);
        EXPECT_EQ(entries_, 1) << reason;
    }
}

TEST_F(EntryLineTest, FocusThatComesBackIsNoEntry) {
    for (const auto reason :
         {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
        FocusComes(reason);
        EXPECT_EQ(entries_, 0) << reason;
    }
}

// After its own menu was open, the next press sets the caret, as in a line that one is typing in.
TEST_F(EntryLineTest, PressAfterTheMenuSetsTheCaret) {
    line_.show();
    FocusComes(Qt::TabFocusReason);
    FocusComes(Qt::PopupFocusReason);
    line_.selectAll();
    QTest::mousePress(&line_, Qt::LeftButton, {}, line_.rect().center());
    EXPECT_FALSE(line_.hasSelectedText());
}

// Whoever came by a press and typed is in the line already: the next press sets the caret.
TEST_F(EntryLineTest, PressAfterAKeySetsTheCaret) {
    line_.show();
    FocusComes(Qt::MouseFocusReason);
    QTest::keyClick(&line_, Qt::Key_1);
    line_.selectAll();
    QTest::mousePress(&line_, Qt::LeftButton, {}, line_.rect().center());
    EXPECT_FALSE(line_.hasSelectedText());
}

// The press that brings the focus leaves the whole text selected.
TEST_F(EntryLineTest, PressThatBringsTheFocusKeepsTheSelection) {
    line_.show();
    FocusComes(Qt::MouseFocusReason);
    line_.selectAll();
    QTest::mousePress(&line_, Qt::LeftButton, {}, line_.rect().center());
    EXPECT_EQ(line_.selectedText(), line_.text());
}

// ---- The mnemonic of the tab ----

class TabControlTest : public ::testing::Test {
  protected:
    TabControlTest() {
        auto* layout = new QVBoxLayout(&window_);
        for (QWidget* widget : {static_cast<QWidget*>(&before_), static_cast<QWidget*>(&tab_)}) {
            layout->addWidget(widget);
        }
        auto* page = new QWidget;
        auto* lines = new QVBoxLayout(page);
        for (QLineEdit*& line : lines_) {
            line = new QLineEdit(page);
            lines->addWidget(line);
        }
        tab_.addTab(page, "&Tab");
        window_.show();
        window_.activateWindow();
        before_.setFocus();
    }

    // What Alt and the mnemonic do to the row of tabs.
    QWidget* FocusAfterMnemonic() {
        auto* bar = tab_.findChild<QTabBar*>();
        QShortcutEvent shortcut(QKeySequence("Alt+T"), 0);
        QCoreApplication::sendEvent(bar, &shortcut);
        return window_.focusWidget();
    }

    QWidget window_;
    QLineEdit before_{&window_};
    TabControl tab_{&window_};
    QLineEdit* lines_[4]{};
};

TEST_F(TabControlTest, LeadsToTheFirstControl) {
    EXPECT_EQ(FocusAfterMnemonic(), lines_[0]);
}

TEST_F(TabControlTest, PassesByWhatCannotBeUsed) {
    lines_[0]->setEnabled(false);
    lines_[1]->hide();
    lines_[2]->setFocusPolicy(Qt::ClickFocus);
    EXPECT_EQ(FocusAfterMnemonic(), lines_[3]);
}

TEST_F(TabControlTest, StaysWhereNothingCanBeUsed) {
    tab_.widget(0)->setEnabled(false);
    EXPECT_EQ(FocusAfterMnemonic(), &before_);
}

}  // namespace
}  // namespace tarvix::testing
