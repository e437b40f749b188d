// What each kind of control does by itself.
#include "ui/controls/controls.h"

#include "ui/controls/entry_line.h"
#include "ui/controls/tab_control.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QTabBar>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>
#include <utility>

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

TEST_F(EntryLineTest, FocusFromAnotherControlIsAnEntryAndOneThatComesBackIsNone) {
    const std::pair<Qt::FocusReason, int> reasons[] = {
        {Qt::TabFocusReason, 1},      {Qt::BacktabFocusReason, 1}, {Qt::MouseFocusReason, 1},
        {Qt::ShortcutFocusReason, 1}, {Qt::OtherFocusReason, 1},   {Qt::ActiveWindowFocusReason, 0},
        {Qt::PopupFocusReason, 0},    {Qt::MenuBarFocusReason, 0}};
    for (const auto& [reason, entries] : reasons) {
        entries_ = 0;
        FocusComes(reason);
        EXPECT_EQ(entries_, entries) << reason;
    }
}

// The press that brings the focus leaves the whole text selected. The next press sets the caret; so
// does the first one of who is in the line already, by a key or from its own menu.
TEST_F(EntryLineTest, OnlyThePressThatBringsTheFocusKeepsTheSelection) {
    const auto selectedByAPress = [this] {
        line_.selectAll();
        QTest::mousePress(&line_, Qt::LeftButton, {}, line_.rect().center());
        return line_.selectedText();
    };
    line_.show();
    FocusComes(Qt::MouseFocusReason);
    EXPECT_EQ(selectedByAPress(), line_.text());
    EXPECT_EQ(selectedByAPress(), "");
    FocusComes(Qt::MouseFocusReason);
    QTest::keyClick(&line_, Qt::Key_1);
    EXPECT_EQ(selectedByAPress(), "") << "after a key";
    FocusComes(Qt::TabFocusReason);
    FocusComes(Qt::PopupFocusReason);
    EXPECT_EQ(selectedByAPress(), "") << "after its own menu";
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

// How they go round is seen in the main window.
TEST_F(OptionKeysTest, PassByWhatCannotBeUsed) {
    EXPECT_EQ(After(Qt::Key_A), 0) << "other keys do nothing";
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
        layout->addWidget(&before_);
        layout->addWidget(&tab_);
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

TEST_F(TabControlTest, LeadsToTheFirstControlThatCanBeUsed) {
    lines_[0]->setEnabled(false);
    lines_[1]->hide();
    lines_[2]->setFocusPolicy(Qt::ClickFocus);
    EXPECT_EQ(FocusAfterMnemonic(), lines_[3]);
    before_.setFocus();
    tab_.widget(0)->setEnabled(false);
    EXPECT_EQ(FocusAfterMnemonic(), &before_);
}

}  // namespace
}  // namespace tarvix::testing
