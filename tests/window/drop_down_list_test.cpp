// The drop-down lists under real key, mouse and wheel events.
#include "tests/window/layout_fixtures.h"

#include <QAbstractItemView>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

class DropDownListTest : public PlayerTest {
  protected:
    DropDownListTest() { window(); }

    static QWheelEvent Wheel(QWidget& widget, int steps) {
        const QPointF middle = QRectF(widget.rect()).center();
        return QWheelEvent(middle, widget.mapToGlobal(middle), QPoint(), QPoint(0, 120 * steps),
                           Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    }

    static void TurnWheel(QWidget& widget, int steps) {
        QWheelEvent event = Wheel(widget, steps);
        QApplication::sendEvent(&widget, &event);
    }

    // Whether the widget takes an event and does not leave it to what is around.
    static bool Takes(QObject& widget, QEvent&& event) {
        event.setAccepted(true);
        widget.event(&event);
        return event.isAccepted();
    }

    // Opens the list with the mouse and picks the entry at `index`.
    static void Pick(DropDownList& list, int index) {
        QTest::mouseClick(&list, Qt::LeftButton);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(list.view()->window()));
        const QRect entry = list.view()->visualRect(list.model()->index(index, 0));
        // A list takes a pick for the click that opened it until some time has passed.
        ASSERT_TRUE(QTest::qWaitFor([&] {
            QTest::mouseMove(list.view()->viewport(), entry.center());
            QTest::mouseClick(list.view()->viewport(), Qt::LeftButton, {}, entry.center());
            return !list.view()->isVisible();
        }));
    }
};

TEST_F(DropDownListTest, TheWheelOverAListWithoutTheFocusChangesNothing) {
    form().txtPf->setFocus();
    const int before = Calculations();
    for (const NamedControl& control : form().Controls()) {
        if (auto* list = dynamic_cast<DropDownList*>(control.widget)) {
            const int index = list->ListIndex();
            TurnWheel(*list, -1);
            TurnWheel(*list, -3);
            EXPECT_EQ(list->ListIndex(), index) << control.name.toStdString();
            EXPECT_FALSE(Takes(*list, Wheel(*list, -1))) << "it is the page's, which scrolls";
            EXPECT_EQ(list->maxVisibleItems(), 20);
        }
    }
    EXPECT_EQ(Calculations(), before);
}

TEST_F(DropDownListTest, PickingAnEntryRunsTheHandlerAndPickingItAgainToo) {
    const int before = Calculations();
    for (int time = 1; time <= 2; ++time) {
        Pick(*form().cboTimeUnit, 1);
        EXPECT_EQ(form().cboTimeUnit->Text(), "Hour");
        EXPECT_EQ(Calculations(), before + time);
    }
}

TEST_F(DropDownListTest, KeysAndTheWheelOverAListWithTheFocusPickAndRunTheHandler) {
    DropDownList& list = *form().cboTimeUnit;
    list.setFocus();
    ASSERT_EQ(list.Text(), "Day");
    const int before = Calculations();
    TurnWheel(list, -1);
    EXPECT_EQ(list.Text(), "Second");
    QTest::keyClick(&list, Qt::Key_Home);
    EXPECT_EQ(list.Text(), "Minute");
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.Text(), "Hour");
    QTest::keyClick(&list, Qt::Key_Up);
    QTest::keyClick(&list, Qt::Key_End);
    EXPECT_EQ(list.Text(), "Second");
    QTest::keyClicks(&list, "d");
    EXPECT_EQ(list.Text(), "Day");
    EXPECT_EQ(Calculations(), before + 6);
}

// Where a decimal comma makes a size end the program, passing over one must not pick it.
TEST_F(DropDownListTest, KeysAndTheWheelOpenTheClosedNominalSizes) {
    DropDownList& list = *form().cboNomSize;
    const int size = list.ListIndex();
    const int before = Calculations();
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown,
                              Qt::Key_Home, Qt::Key_End, Qt::Key_1, Qt::Key_Space}) {
        SCOPED_TRACE(key);
        list.setFocus();
        QTest::keyClick(&list, key);
        EXPECT_TRUE(list.view()->isVisible());
        EXPECT_EQ(list.ListIndex(), size);
        QTest::keyClick(list.view(), Qt::Key_Escape);
        EXPECT_FALSE(list.view()->isVisible());
    }
    TurnWheel(list, -1);
    EXPECT_TRUE(list.view()->isVisible());
    TurnWheel(*list.view()->viewport(), -1);
    QTest::keyClick(list.view(), Qt::Key_Escape);
    EXPECT_EQ(list.ListIndex(), size);
    EXPECT_EQ(Calculations(), before);
}

TEST_F(DropDownListTest, ANominalSizeIsLedToOrTypedAndPickedWithEnter) {
    DropDownList& list = *form().cboNomSize;
    list.setFocus();
    ASSERT_EQ(list.Text(), "2");
    const int before = Calculations();
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(list.view(), Qt::Key_Down);
    QTest::keyClick(list.view(), Qt::Key_Down);
    EXPECT_EQ(list.Text(), "2");
    QTest::keyClick(list.view(), Qt::Key_Return);
    EXPECT_FALSE(list.view()->isVisible());
    EXPECT_EQ(list.Text(), "3");
    EXPECT_EQ(Calculations(), before + 1);
    QTest::keyClick(&list, Qt::Key_8);
    EXPECT_EQ(list.Text(), "3");
    QTest::keyClick(list.view(), Qt::Key_Return);
    EXPECT_EQ(list.Text(), "8");
}

// ---- The list behind the blank ----

class CoveredListTest : public DropDownListTest {
  protected:
    CoveredListTest() {
        Player().desk().QueueAnswer({true, "4"});
        form().cboPipeID->SetListIndex(form().cboPipeID->count() - 1);
    }

    void ExpectNothingHappened() {
        EXPECT_FALSE(form().cboNomSize->view()->isVisible());
        EXPECT_EQ(form().cboNomSize->ListIndex(), size_);
        EXPECT_EQ(form().cboPipeID->Text(), "4.000\" (User Entered)");
        EXPECT_TRUE(form().IsVisible(*form().txtMaskNomSize));
    }

    const int size_ = form().cboNomSize->ListIndex();
};

TEST_F(CoveredListTest, TheBlankTakesTheMouse) {
    QLineEdit& blank = *form().txtMaskNomSize;
    EXPECT_TRUE(blank.isReadOnly());
    EXPECT_EQ(blank.cursor().shape(), Qt::ArrowCursor);
    blank.setText("12345");
    const QPoint middle = blank.geometry().center();
    ASSERT_EQ(form().fraPipe->childAt(middle), &blank);
    QTest::mouseClick(&blank, Qt::LeftButton);
    QTest::mouseDClick(&blank, Qt::LeftButton);
    QTest::mouseClick(&blank, Qt::RightButton);
    ExpectNothingHappened();
    EXPECT_FALSE(blank.hasFocus());
    EXPECT_FALSE(blank.hasSelectedText());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(CoveredListTest, KeysAndTheWheelDoNotReachTheList) {
    DropDownList& list = *form().cboNomSize;
    list.setFocus();  // as it has when the list itself has led here
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_F4, Qt::Key_Space, Qt::Key_3}) {
        QTest::keyClick(&list, key);
        EXPECT_FALSE(Takes(list, QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier)));
        ExpectNothingHappened();
    }
    EXPECT_FALSE(Takes(list, Wheel(list, -1)));
    TurnWheel(*form().txtMaskNomSize, -1);
    TurnWheel(list, -1);
    ExpectNothingHappened();
    QTest::keyClick(&list, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), form().cboPipeID);
    EXPECT_EQ(list.focusPolicy(), Qt::ClickFocus) << "the Tab key passes it by";
    form().cboPipeID->SetListIndex(0);
    EXPECT_EQ(list.focusPolicy(), Qt::StrongFocus);
}

TEST_F(DropDownListTest, TheOpenListShowsEveryEntryWhole) {
    for (DropDownList* list : {form().cboPipeID, form().cboFlowUnit, form().cboPressUnit,
                               form().cboDeltaPunit, form().cboNomSize}) {
        list->showPopup();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(list->view()->window()));
        EXPECT_GE(list->view()->viewport()->width(), list->view()->sizeHintForColumn(0))
            << list->objectName().toStdString();
        list->hidePopup();
    }
}

}  // namespace
}  // namespace tarvix::testing
