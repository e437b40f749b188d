// What screen readers are told when the focus comes to a field. Of a caret or a selection that is
// told before the focus they say the wrong thing, or nothing at all.
#include "tests/window/layout_fixtures.h"

#include <QAccessible>
#include <QTest>

#include <gtest/gtest.h>
#include <vector>

namespace tarvix::testing {
namespace {

class FocusEventsTest : public PlayerTest {
  protected:
    // The window tells of what happens to its fields until it has gone.
    void TearDown() override { player_.reset(); }

    // Shows the window, and listens to the field where the toolkit tells of it.
    void ListenTo(NumericField& field) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
        const auto note = [this, &field] {
            told_.push_back(QAccessible::queryAccessibleInterface(&field)->isValid());
        };
        QObject::connect(&field, &QLineEdit::selectionChanged, &field, note);
        QObject::connect(&field, &QLineEdit::cursorPositionChanged, &field, note);
    }

    // Of what is not valid, nothing is told.
    void ExpectNothingTold() {
        EXPECT_FALSE(told_.empty());
        EXPECT_EQ(told_, std::vector<bool>(told_.size(), false));
        told_.clear();
    }

    std::vector<bool> told_;
};

TEST_F(FocusEventsTest, TheSelectionThatComesAndGoesWithTheFocusIsNotTold) {
    NumericField& field = *form().txtDeltaP;
    Play({"click optCalcFR"});
    field.setText("142.3");
    ListenTo(field);
    field.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(field.selectedText(), "142.3");
    ExpectNothingTold();
    form().optCalcFR->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(field.selectedText(), "");
    ExpectNothingTold();
}

TEST_F(FocusEventsTest, ASelectionByHandIsTold) {
    NumericField& field = *form().txtTf;
    field.setText("142.3");
    field.setFocus(Qt::TabFocusReason);
    ListenTo(field);
    field.setSelection(0, 3);
    EXPECT_FALSE(told_.empty());
    EXPECT_EQ(told_, std::vector<bool>(told_.size(), true));
}

}  // namespace
}  // namespace tarvix::testing
