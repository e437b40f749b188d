// The fields for numbers under real key, mouse and input method events.
#include "tests/window/layout_fixtures.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QProxyStyle>
#include <QStyleOption>
#include <QTest>

#include <gtest/gtest.h>
#include <tuple>
#include <utility>

namespace tarvix::testing {
namespace {

class NumericFieldTest : public PlayerTest {
  protected:
    // The flow rate, with the focus and its whole text selected, as after a Tab.
    NumericField& Enter(const QString& text = {}) {
        NumericField& field = *form().txtFlow;
        form().optCalcBeta->setFocus();
        field.setText(text);
        field.setFocus(Qt::TabFocusReason);
        return field;
    }

    void UseLocale(const char* name) {
        player_.reset();
        Play({QString("locale ") + name});
    }

    static void CommitText(QWidget& field, const QString& text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&field, &event);
    }
};

// ---- Looks ----

// The largest of 98, 96, ... 50 percent at which a long result fits, for fonts in points and in
// pixels.
TEST(LockedFieldTest, ALongResultIsWrittenSmaller) {
    for (const bool inPixels : {false, true}) {
        QFont whole("DejaVu Sans");
        inPixels ? whole.setPixelSize(40) : whole.setPointSize(30);
        const double size = inPixels ? 40 : 30;
        QWidget parent;
        parent.setFont(whole);
        NumericField field(&parent);
        field.resize(200, 60);
        field.setText("123456789");
        EXPECT_EQ(field.font().pointSizeF(), whole.pointSizeF()) << "an entry scrolls";
        field.SetLocked(true);
        const QFont chosen = field.font();
        const double percent = 100 * (inPixels ? chosen.pixelSize() : chosen.pointSizeF()) / size;
        EXPECT_TRUE(chosen.bold());
        EXPECT_GT(percent, 50);
        EXPECT_LT(percent, 98);
        const auto widthAt = [&](double part) {
            QFont font = whole;
            font.setBold(true);
            inPixels ? font.setPixelSize(static_cast<int>(size * part / 100))
                     : font.setPointSizeF(size * part / 100);
            return QFontMetrics(font).horizontalAdvance(field.text());
        };
        // Half of what a frame takes, twice two pixels, and the caret.
        const int room = field.TextArea().width();
        EXPECT_LT(room, 200 - 5);
        EXPECT_GT(room, 200 - 20);
        EXPECT_LE(widthAt(percent), room);
        EXPECT_GT(widthAt(percent + 2 + (inPixels ? 2.5 : 0)), room);

        field.setText(QString(40, '8'));
        EXPECT_NEAR(inPixels ? field.font().pixelSize() : field.font().pointSizeF(), size / 2, 0.01)
            << "no smaller";
        field.setText("1");
        EXPECT_EQ(field.font().pointSizeF(), whole.pointSizeF());
        // Another font of the window is followed.
        field.setText("12345");
        EXPECT_EQ(field.font().pointSizeF(), whole.pointSizeF());
        inPixels ? whole.setPixelSize(80) : whole.setPointSize(60);
        parent.setFont(whole);
        EXPECT_LE(QFontMetrics(field.font()).horizontalAdvance(field.text()), room);
        field.SetLocked(false);
        EXPECT_FALSE(field.font().bold());
    }
}

// Leaves half of a field to its text.
class HalfStyle : public QProxyStyle {
  public:
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override {
        QRect place = QProxyStyle::subElementRect(element, option, widget);
        if (element == SE_LineEditContents) {
            place.setWidth(place.width() / 2);
        }
        return place;
    }
};

TEST(LockedFieldTest, AnotherStyleOfTheDesktopIsFollowed) {
    HalfStyle half;
    QWidget parent;
    NumericField field(&parent);
    field.SetLocked(true);
    field.setText("12345678");
    const QFontMetrics whole(field.font());
    field.resize(whole.horizontalAdvance(field.text()) + 30, 60);
    EXPECT_EQ(field.font().pointSizeF(), parent.font().pointSizeF());
    field.setStyle(&half);
    EXPECT_LT(field.font().pointSizeF(), parent.font().pointSizeF());
    EXPECT_LE(QFontMetrics(field.font()).horizontalAdvance(field.text()), field.TextArea().width());
}

// ---- Keys ----

// Which keys are kept is seen in the scenarios; here, that the selection is taken into account:
// only right of it another separator is looked for.
TEST_F(NumericFieldTest, ASeparatorIsJudgedByTheTextRightOfTheSelection) {
    const std::tuple<const char*, int, int, const char*> rows[] = {
        {"1.25", 2, 2, "1.."}, {"12.5", 0, 2, "12.5"}, {"1.25", 1, 1, "1.25"}};
    for (const auto& [before, start, length, after] : rows) {
        NumericField& field = Enter(before);
        field.setSelection(start, length);
        QTest::keyClicks(&field, ".");
        EXPECT_EQ(field.text(), after) << before << " at " << start;
    }
}

TEST_F(NumericFieldTest, EveryKeyThatChangesTheTextCalculates) {
    NumericField& field = Enter();
    const int before = Calculations();
    QTest::keyClicks(&field, "12x3");
    EXPECT_EQ(Calculations() - before, 3);
    field.selectAll();
    QTest::keyClicks(&field, "1");
    QTest::keyClick(&field, Qt::Key_Home);
    EXPECT_EQ(Calculations() - before, 4);
    field.selectAll();
    QTest::keyClicks(&field, "1");
    EXPECT_EQ(Calculations() - before, 4) << "the text is the same";
}

TEST_F(NumericFieldTest, ALockedFieldTakesNoKeys) {
    Play({"click optCalcFR"});
    NumericField& field = Enter("142.3");
    ASSERT_TRUE(field.Locked());
    QTest::keyClicks(&field, "9");
    CommitText(field, "9");
    QTest::keyClick(&field, Qt::Key_Delete);
    EXPECT_EQ(field.text(), "142.3");
}

TEST_F(NumericFieldTest, TheNumberPadTypesTheSeparatorOfTheUser) {
    for (const auto& [locale, number] : {std::pair("en_US", "-7.5"), std::pair("de_DE", "-7,5")}) {
        UseLocale(locale);
        for (const Qt::Key key : {Qt::Key_Period, Qt::Key_Comma}) {
            NumericField& field = Enter();
            for (const Qt::Key pressed : {Qt::Key_Minus, Qt::Key_7, Qt::Key_Asterisk, key}) {
                QTest::keyClick(&field, pressed, Qt::KeypadModifier);
            }
            QTest::keyClicks(&field, "5");
            QTest::keyClick(&field, key, Qt::KeypadModifier);
            EXPECT_EQ(field.text(), number) << "the second one is swallowed";
        }
    }
}

// ---- Input methods ----

TEST_F(NumericFieldTest, WhatAnInputMethodCommitsIsFilteredOneByOne) {
    NumericField& field = Enter("99");
    EXPECT_TRUE(field.inputMethodHints().testFlag(Qt::ImhFormattedNumbersOnly));
    CommitText(field, "abc");
    EXPECT_EQ(field.text(), "99");
    EXPECT_EQ(field.selectedText(), "99") << "what commits nothing leaves the selection";
    CommitText(field, "1a.2.b3");
    EXPECT_EQ(field.text(), "1.23") << "the selected text is replaced";
    CommitText(field, "x");
    EXPECT_EQ(field.text(), "1.23");
}

// ---- Editing ----

TEST_F(NumericFieldTest, CopyCutPasteUndoAndSelectAll) {
    NumericField& field = Enter("12.5");
    QTest::keyClicks(&field, "71");
    EXPECT_EQ(field.text(), "71");
    const auto textAfter = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(&field, key, modifiers);
        return field.text();
    };
    textAfter(Qt::Key_Z);
    EXPECT_EQ(textAfter(Qt::Key_Z), "12.5") << "typing is taken back, too";
    field.selectAll();
    QClipboard& clipboard = *QApplication::clipboard();
    textAfter(Qt::Key_C);
    EXPECT_EQ(clipboard.text(), "12.5");
    EXPECT_EQ(textAfter(Qt::Key_X), "");
    EXPECT_EQ(textAfter(Qt::Key_Z), "12.5");
    EXPECT_EQ(textAfter(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier), "");
    clipboard.setText("ab 1.2.3");
    EXPECT_EQ(textAfter(Qt::Key_V), "ab 1.2.3") << "the checks judge what is pasted, no filter";
    field.deselect();
    textAfter(Qt::Key_A);
    EXPECT_EQ(field.selectedText(), "ab 1.2.3");
    EXPECT_EQ(textAfter(Qt::Key_Insert, Qt::ShiftModifier), "ab 1.2.3");
}

// ---- Focus and mouse ----

class FieldMouseTest : public NumericFieldTest {
  protected:
    // The field with its text painted, and the focus elsewhere.
    NumericField& Show(const QString& text) {
        NumericField& field = Enter(text);
        form().cboTimeUnit->setFocus();
        field.grab();  // a text box finds out where its text stands when it is painted
        return field;
    }

    // A move with the button held; the buttons of a synthetic one have to be given.
    static void Drag(NumericField& field, QPoint to) {
        QMouseEvent move(QEvent::MouseMove, to, field.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&field, &move);
    }

    // In the left half of the second digit from the right.
    static QPoint SecondDigitFromTheRight(const NumericField& field) {
        const int digit = field.fontMetrics().horizontalAdvance('0');
        return {field.width() - 6 - 2 * digit + digit / 4, field.height() / 2};
    }
};

TEST_F(FieldMouseTest, TheFirstClickSelectsAndTheSecondSetsTheCaret) {
    NumericField& field = Show("12345");
    QTest::mouseClick(&field, Qt::LeftButton, {}, SecondDigitFromTheRight(field));
    EXPECT_EQ(QApplication::focusWidget(), &field);
    EXPECT_EQ(field.selectedText(), "12345");
    QTest::mouseClick(&field, Qt::LeftButton, {}, SecondDigitFromTheRight(field));
    EXPECT_EQ(field.selectedText(), "");
    EXPECT_EQ(field.cursorPosition(), 3);
}

TEST_F(FieldMouseTest, ADoubleClickSelectsTheWholeNumber) {
    for (const auto& [locale, number] :
         {std::pair("en_US", "1,234.5"), std::pair("de_DE", "1.234,5"),
          std::pair("fr_FR", "1 234,5"), std::pair("en_US", "-1.5e-3")}) {
        SCOPED_TRACE(number);
        UseLocale(locale);
        NumericField& field = Show(number);
        const QPoint at = SecondDigitFromTheRight(field);
        QTest::mouseClick(&field, Qt::LeftButton, {}, at);
        QTest::mouseDClick(&field, Qt::LeftButton, {}, at);
        EXPECT_EQ(field.selectedText(), number);
        field.deselect();
        QTest::mousePress(&field, Qt::LeftButton, {}, at);
        QTest::mouseRelease(&field, Qt::LeftButton, {}, at);
        QMouseEvent second(QEvent::MouseButtonDblClick, at, field.mapToGlobal(at), Qt::LeftButton,
                           Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&field, &second);
        Drag(field, at + QPoint(1, 0));
        QTest::mouseRelease(&field, Qt::LeftButton, {}, at);
        EXPECT_EQ(field.selectedText(), number);
    }
}

TEST_F(FieldMouseTest, AHandThatTremblesKeepsTheSelection) {
    NumericField& field = Show("12345");
    const QPoint at = SecondDigitFromTheRight(field);
    QTest::mousePress(&field, Qt::LeftButton, {}, at);
    QTest::mouseMove(&field, at + QPoint(1, 1));
    QTest::mouseMove(&field, at + QPoint(-1, 0));
    QTest::mouseMove(&field, at + QPoint(1 - QApplication::startDragDistance(), 0));
    EXPECT_EQ(field.selectedText(), "12345");
    QTest::mouseMove(&field, at + QPoint(-QApplication::startDragDistance(), 0));
    EXPECT_NE(field.selectedText(), "12345") << "that far is a drag";
    QTest::mouseRelease(&field, Qt::LeftButton, {}, at);
}

TEST_F(FieldMouseTest, ADragSelectsWhatItPassesAndThatOfTheSecondClickFromItsFirstPixel) {
    NumericField& field = Show("12345");
    const QPoint at = SecondDigitFromTheRight(field);
    const QPoint digit(field.fontMetrics().horizontalAdvance('4'), 0);
    ASSERT_LT(digit.x(), QApplication::startDragDistance());
    for (const auto& [end, selected] : {std::pair(QPoint(2, at.y()), 3), {at - digit, 1}}) {
        QTest::mousePress(&field, Qt::LeftButton, {}, at);
        Drag(field, end);
        QTest::mouseRelease(&field, Qt::LeftButton, {}, end);
        EXPECT_EQ(field.selectedText(), QString("123").right(selected));
        field.deselect();
    }
}

TEST_F(FieldMouseTest, ComingBackToTheWindowKeepsTheCaret) {
    NumericField& field = Enter("12345");
    field.deselect();
    field.setCursorPosition(2);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    EXPECT_EQ(field.selectedText(), "");
    EXPECT_EQ(field.cursorPosition(), 2);
}

}  // namespace
}  // namespace tarvix::testing
