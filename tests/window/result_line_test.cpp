// The solved value on a screen that is too small for the form: it is seen wherever one scrolls.
#include "tests/window/layout_fixtures.h"
#include "ui/form/form_view.h"

#include <QLabel>
#include <QScrollBar>

#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

const QStringList kFlowOfWater = {"click optLiquid",  "click optCalcFR",     "type txtSGf 1",
                                  "type txtSGb 1",    "choose cboNomSize 2", "type txtDeltaP 100",
                                  "type txtBeta 0.5", "focus txtSGf"};

class ResultLineTest : public LayoutTest {
  protected:
    ResultLineTest() {
        QApplication::setFont(QFont("DejaVu Sans", 14));
        Play(kFlowOfWater);  // on the whole form
        window().resize(800, 600);
        Settle();
    }

    FormView& View() { return dynamic_cast<FormView&>(*window().centralWidget()); }
    QLabel& Line() { return *window().findChild<QLabel*>("resultLine"); }

    void ScrollTo(int position) {
        View().scrollArea().horizontalScrollBar()->setValue(0);
        View().scrollArea().verticalScrollBar()->setValue(position);
        Settle();
    }
};

TEST_F(ResultLineTest, SaysTheValueWhileItsFieldIsOutOfSight) {
    ASSERT_NE(form().txtFlow->text(), "");
    QScrollBar& down = *View().scrollArea().verticalScrollBar();
    ASSERT_GT(down.maximum(), 0);
    ScrollTo(0);
    ASSERT_FALSE(View().Shows(*form().txtFlow));
    EXPECT_TRUE(Line().isVisible());
    EXPECT_EQ(Line().text(), "Flow Rate " + form().txtFlow->text() + " Gallons per Minute");
    const QRect place(Line().mapTo(&window(), QPoint()), Line().size());
    EXPECT_TRUE(window().rect().contains(place));
    EXPECT_GE(Line().height(), Line().fontMetrics().height());
    EXPECT_LT(place.bottom(), form().lblMsg->mapTo(&window(), QPoint()).y());
    EXPECT_EQ(form().Find("resultLine"), nullptr) << "it is no control of the form";
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&Line())->text(QAccessible::Name), "");

    ScrollTo(down.maximum());
    ASSERT_TRUE(View().Shows(*form().txtFlow));
    EXPECT_FALSE(Line().isVisible());
    EXPECT_EQ(down.value(), down.maximum()) << "the user stays where he scrolled";
    ScrollTo(0);
    EXPECT_TRUE(Line().isVisible());
}

TEST_F(ResultLineTest, FollowsWhatIsTyped) {
    const QString before = form().txtFlow->text();
    EXPECT_EQ(Player().Act("type txtSGf 2"), "");
    Settle();
    ASSERT_FALSE(View().Shows(*form().txtFlow));
    EXPECT_NE(form().txtFlow->text(), before);
    EXPECT_EQ(Line().text(), "Flow Rate " + form().txtFlow->text() + " Gallons per Minute");
    EXPECT_EQ(Player().Act("type txtSGf 0"), "");
    Settle();
    ASSERT_EQ(form().txtFlow->text(), "");
    EXPECT_FALSE(Line().isVisible()) << "there is no value";
}

// The room that the line gives back shows the field that it stood for.
TEST_F(ResultLineTest, DoesNotHideTheFieldItself) {
    ScrollTo(0);
    ASSERT_TRUE(Line().isVisible());
    const NumericField& field = *form().txtFlow;
    form().txtDeltaP->setFocus();
    ScrollTo(0);
    const QWidget& viewport = *View().scrollArea().viewport();
    // The lower edge of the field one pixel below what is seen.
    ScrollTo(field.mapTo(&View().canvas(), QPoint(0, field.height())).y() - viewport.height() - 1);
    EXPECT_TRUE(View().Shows(field));
    EXPECT_FALSE(Line().isVisible());
}

// However long the line and the message are, the window may be as small as it may.
TEST_F(ResultLineTest, AskForNoWidth) {
    ScrollTo(0);
    ASSERT_TRUE(Line().isVisible());
    const int before = View().footer().minimumSizeHint().width();
    Line().setText(QString(300, 'm'));
    form().lblMsg->setText(QString(300, 'm'));
    Settle();
    EXPECT_EQ(View().footer().minimumSizeHint().width(), before);
    EXPECT_LT(before, 100);
}

}  // namespace
}  // namespace tarvix::testing
