// What each kind of control does by itself.
#include "ui/controls/controls.h"

#include "ui/controls/entry_line.h"
#include "ui/controls/tab_control.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QTabBar>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>
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

// How they go round is seen in the main window.
TEST(OptionKeysTest, PassByWhatCannotBeUsed) {
    QWidget window;
    OptionButton* options[] = {new OptionButton(&window), new OptionButton(&window),
                               new OptionButton(&window)};
    window.show();
    window.activateWindow();
    options[0]->Select();
    options[0]->setFocus();
    // The option that is selected after a key, and has the focus.
    const auto after = [&](Qt::Key key) {
        QTest::keyClick(window.focusWidget(), key);
        const auto* selected = std::ranges::find_if(options, &OptionButton::Value);
        EXPECT_EQ(window.focusWidget(), *selected);
        return *selected;
    };
    EXPECT_EQ(after(Qt::Key_A), options[0]) << "other keys do nothing";
    options[1]->setEnabled(false);
    EXPECT_EQ(after(Qt::Key_Down), options[2]);
    options[1]->setEnabled(true);
    options[1]->hide();
    EXPECT_EQ(after(Qt::Key_Up), options[0]);
    EXPECT_EQ(after(Qt::Key_Up), options[2]);
}

// ---- The mnemonic of the tab ----

TEST(TabControlTest, LeadsToTheFirstControlThatCanBeUsed) {
    QWidget window;
    QVBoxLayout inWindow(&window);
    QLineEdit before;
    TabControl tab(&window);
    inWindow.addWidget(&before);
    inWindow.addWidget(&tab);
    QWidget page;
    QVBoxLayout onPage(&page);
    QLineEdit lines[4];
    for (QLineEdit& line : lines) {
        onPage.addWidget(&line);
    }
    tab.addTab(&page, "&Tab");
    window.show();
    window.activateWindow();
    // What Alt and the mnemonic do to the row of tabs.
    const auto focusAfterMnemonic = [&] {
        before.setFocus();
        QShortcutEvent shortcut(QKeySequence("Alt+T"), 0);
        QCoreApplication::sendEvent(tab.findChild<QTabBar*>(), &shortcut);
        return window.focusWidget();
    };
    lines[0].setEnabled(false);
    lines[1].hide();
    lines[2].setFocusPolicy(Qt::ClickFocus);
    EXPECT_EQ(focusAfterMnemonic(), &lines[3]);
    page.setEnabled(false);
    EXPECT_EQ(focusAfterMnemonic(), &before);
}

}  // namespace
}  // namespace tarvix::testing
