// What scrolls and what stays where the window is smaller than the form.
#include "ui/form/form_view.h"

#include "tests/window/layout_fixtures.h"
#include "ui/controls/frame_box.h"

#include <QScrollBar>

#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

// ---- How far is scrolled ----

static_assert(ScrolledTo(100, 50, 110, 140) == 100, "all of it is seen");
static_assert(ScrolledTo(100, 50, 100, 150) == 100, "just all of it");
static_assert(ScrolledTo(100, 50, 99, 120) == 99, "up by one");
static_assert(ScrolledTo(100, 50, 110, 151) == 101, "down by one");
static_assert(ScrolledTo(100, 50, 120, 171) == 120, "longer than the view: its beginning");
static_assert(ScrolledTo(100, 50, 120, 170) == 120, "as long as the view");

// A control of 20 by 10 pixels in a frame of 60 by 100, in a canvas of 400 by 400.
class FormViewTest : public ::testing::Test {
  protected:
    FormViewTest() {
        view_.canvas().setMinimumSize(400, 400);
        frame_->setGeometry(200, 180, 60, 100);
        control_->setGeometry(30, 80, 20, 10);
        view_.resize(150, 150);
        view_.show();
        QCoreApplication::processEvents();
    }

    QScrollBar& across() { return *view_.scrollArea().horizontalScrollBar(); }
    QScrollBar& down() { return *view_.scrollArea().verticalScrollBar(); }
    QSize room() { return view_.scrollArea().viewport()->size(); }

    FormView view_;
    FrameBox* frame_ = new FrameBox(&view_.canvas());
    QWidget* control_ = new QWidget(frame_);
};

// From the beginning: down and to the right until the control stands six pixels from the edges.
TEST_F(FormViewTest, ScrollsAsLittleAsNeeded) {
    view_.BringIntoView(*control_);
    EXPECT_EQ(across().value(), 200 + 30 + 20 + 6 - room().width());
    EXPECT_EQ(down().value(), 180 + 80 + 10 + 6 - room().height());
    EXPECT_TRUE(view_.Shows(*control_));
    // From the end: up and to the left until the frame's upper left corner is seen, too.
    across().setValue(across().maximum());
    down().setValue(down().maximum());
    view_.BringIntoView(*control_);
    EXPECT_EQ(across().value(), 200);
    EXPECT_EQ(down().value(), 180);
}

TEST_F(FormViewTest, ShowsTheControlWhereThereIsNoRoomForTheCaption) {
    frame_->setGeometry(200, 20, 60, 300);
    control_->setGeometry(30, 280, 20, 10);
    view_.BringIntoView(*control_);
    EXPECT_TRUE(view_.Shows(*control_));
    EXPECT_EQ(down().value(), 20 + 280 + 10 - room().height());
}

TEST_F(FormViewTest, ShowsAControlOnlyWhole) {
    down().setValue(20 + 240 - room().height());
    across().setValue(200);
    ASSERT_FALSE(view_.Shows(*control_));
    down().setValue(180 + 80 + 10 - room().height());
    EXPECT_TRUE(view_.Shows(*control_));
    down().setValue(180 + 80 + 10 - room().height() - 1);
    EXPECT_FALSE(view_.Shows(*control_));
    EXPECT_TRUE(view_.Shows(*control_, 1)) << "it would, with one pixel more";
}

// A smaller window scrolls to what has the focus, unless the user has scrolled away from it.
TEST_F(FormViewTest, KeepsTheFocusInSight) {
    control_->setFocusPolicy(Qt::StrongFocus);
    view_.resize(300, 300);
    view_.activateWindow();
    control_->setFocus();
    QCoreApplication::processEvents();
    ASSERT_EQ(view_.focusWidget(), control_);
    ASSERT_TRUE(view_.Shows(*control_));
    view_.resize(150, 150);
    QCoreApplication::processEvents();
    EXPECT_TRUE(view_.Shows(*control_));
    down().setValue(0);
    ASSERT_FALSE(view_.Shows(*control_));
    view_.resize(140, 140);
    QCoreApplication::processEvents();
    EXPECT_EQ(down().value(), 0);
}

// ---- The smallest window ----

// A frame with the margins around it, and one line of the text below, besides the message line.
TEST_F(LayoutTest, TheSmallestWindowShowsAFrameAndTheMessage) {
    Play({"click optGas"});
    window().resize(window().minimumSize());
    Settle();
    EXPECT_EQ(window().size(), window().minimumSize());
    auto& view = dynamic_cast<FormView&>(*window().centralWidget());
    const QSize room = view.scrollArea().viewport()->size();
    const QPoint margin = form().fraCalcOptions->pos();
    for (const QWidget* frame : {form().fraCalcOptions, form().fraBeta}) {
        EXPECT_GE(room.height(), frame->height() + margin.y());
        view.BringIntoView(*frame);
        EXPECT_TRUE(view.Shows(*frame));
    }
    EXPECT_TRUE(view.footer().rect().contains(form().lblMsg->geometry()));
    EXPECT_GE(form().lblMsg->height(), QFontMetrics(form().lblMsg->font()).height());
    EXPECT_LT(window().width(), form().WholeSize().width() * 3 / 4);
    EXPECT_LT(window().height(), form().WholeSize().height() / 2);
}

}  // namespace
}  // namespace tarvix::testing
