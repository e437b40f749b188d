// What each kind of control does by itself.
#include "ui/controls/controls.h"

#include "ui/controls/entry_line.h"
#include "ui/controls/tab_control.h"

#include <QAccessible>
#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QTabBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

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

// ---- A list that is covered, and the field that covers it ----

bool IsTaken(QWidget& widget, QEvent&& event) {
    event.setAccepted(true);
    QCoreApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

bool IsKeyTaken(QWidget& widget) {
    return IsTaken(widget, QKeyEvent(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier));
}

bool IsWheelTaken(QWidget& widget) {
    return IsTaken(widget, QWheelEvent(QPointF(1, 1), QPointF(1, 1), QPoint(), QPoint(0, -120),
                                       Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false));
}

TEST(DropDownListAloneTest, WhatACoveredOneDoesNotWantGoesOnToTheWindow) {
    DropDownList list(nullptr);
    list.AddItem("one");
    list.AddItem("two");
    list.show();
    list.activateWindow();
    list.setFocus();
    EXPECT_TRUE(IsKeyTaken(list));
    EXPECT_EQ(list.ListIndex(), 1);
    list.SetCovered(true);
    EXPECT_FALSE(IsKeyTaken(list));
    EXPECT_FALSE(IsWheelTaken(list));
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(list.focusPolicy(), Qt::ClickFocus) << "Tab passes it by";
    list.SetCovered(false);
    EXPECT_EQ(list.focusPolicy(), Qt::StrongFocus);
}

TEST(DropDownListAloneTest, TheWheelGoesOnToThePageWithoutTheFocus) {
    DropDownList list(nullptr);
    list.AddItem("one");
    list.AddItem("two");
    EXPECT_FALSE(IsWheelTaken(list));
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST(DropDownListAloneTest, ShowsTwentyEntriesAtOnce) {
    EXPECT_EQ(DropDownList(nullptr).maxVisibleItems(), 20);
}

TEST(CoverFieldTest, IsNothingToWorkWith) {
    QWidget window;
    CoverField cover(&window);
    EXPECT_TRUE(cover.isReadOnly());
    EXPECT_EQ(cover.focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(cover.contextMenuPolicy(), Qt::PreventContextMenu);
    EXPECT_EQ(cover.cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&cover)->role(), QAccessible::StaticText);
    cover.setText("12345");
    QTest::mouseDClick(&cover, Qt::LeftButton, {}, cover.rect().center());
    EXPECT_FALSE(cover.hasSelectedText());
}

// ---- The arrow keys among options ----

class OptionKeysTest : public ::testing::Test {
  protected:
    OptionKeysTest() {
        for (OptionButton*& option : options_) {
            option = new OptionButton(&window_);
        }
        window_.show();
        window_.activateWindow();
        options_[0]->Select();
        options_[0]->setFocus();
    }

    // The option that is selected after a key, by its place.
    int After(Qt::Key key) {
        QTest::keyClick(window_.focusWidget(), key);
        for (int i = 0; i < 3; ++i) {
            if (options_[i]->Value()) {
                EXPECT_EQ(window_.focusWidget(), options_[i]);
                return i;
            }
        }
        return -1;
    }

    QWidget window_;
    OptionButton* options_[3]{};
};

TEST_F(OptionKeysTest, GoRoundInBothDirections) {
    EXPECT_EQ(After(Qt::Key_Down), 1);
    EXPECT_EQ(After(Qt::Key_Right), 2);
    EXPECT_EQ(After(Qt::Key_Down), 0);
    EXPECT_EQ(After(Qt::Key_Up), 2);
    EXPECT_EQ(After(Qt::Key_Left), 1);
    EXPECT_EQ(After(Qt::Key_A), 1) << "other keys do nothing";
}

TEST_F(OptionKeysTest, PassByWhatCannotBeUsed) {
    options_[1]->setEnabled(false);
    EXPECT_EQ(After(Qt::Key_Down), 2);
    options_[1]->setEnabled(true);
    options_[1]->hide();
    EXPECT_EQ(After(Qt::Key_Up), 0);
    EXPECT_EQ(After(Qt::Key_Up), 2);
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
