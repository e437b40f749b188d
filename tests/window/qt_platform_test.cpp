// The program's own boxes, answered in every way that a user has.
#include "ui/windows/qt_platform.h"

#include "tests/window/modal_driver.h"

#include <QAbstractTextDocumentLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QTime>

#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

MessageBoxRequest Box(BoxButtons buttons, BoxStyle style = BoxStyle::Critical) {
    return {"One line\n\rand another", "Program Termination", style, buttons};
}

int AnswerTo(const MessageBoxRequest& request, const std::function<void(QMessageBox&)>& act) {
    ModalDriver<QMessageBox> driver(act);
    const int answer = QtPlatform().ShowMessageBox(request);
    EXPECT_TRUE(driver.done());
    return answer;
}

void Confirm(QMessageBox& box) {
    box.button(QMessageBox::Ok)->click();
}

void Close(QMessageBox& box) {
    box.close();
}

TEST(QtPlatformTest, ABoxWithoutCancelIsConfirmedHoweverItIsClosed) {
    const MessageBoxRequest box = Box(BoxButtons::OkCancel);
    EXPECT_EQ(AnswerTo(box, Confirm), kAnswerOk);
    EXPECT_EQ(AnswerTo(box, [](auto& b) { b.button(QMessageBox::Cancel)->click(); }),
              kAnswerCancel);
    EXPECT_EQ(AnswerTo(box, Close), kAnswerCancel);
    EXPECT_EQ(AnswerTo(box, [](auto& b) { b.reject(); }), kAnswerCancel);
    EXPECT_EQ(AnswerTo(Box(BoxButtons::Ok), Confirm), kAnswerOk);
    EXPECT_EQ(AnswerTo(Box(BoxButtons::Ok), Close), kAnswerOk);
}

TEST(QtPlatformTest, ABoxShowsWhatIsAsked) {
    const std::pair<BoxStyle, QMessageBox::Icon> icons[] = {
        {BoxStyle::Critical, QMessageBox::Critical},
        {BoxStyle::Exclamation, QMessageBox::Warning},
        {BoxStyle::Information, QMessageBox::Information}};
    for (const auto& [style, icon] : icons) {
        AnswerTo(Box(BoxButtons::OkCancel, style), [icon = icon](QMessageBox& box) {
            EXPECT_EQ(box.icon(), icon);
            EXPECT_EQ(box.windowTitle(), "Program Termination");
            EXPECT_EQ(box.text(), "One line\nand another");
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_TRUE(box.defaultButton() == box.button(QMessageBox::Ok));
            box.close();
        });
    }
    AnswerTo(Box(BoxButtons::Ok), [](QMessageBox& box) {
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        box.close();
    });
}

// Where a text begins on the page, in pixels.
QPointF PlaceOf(const QTextDocument& page, const QString& text) {
    const QTextCursor found = page.find(text);
    EXPECT_FALSE(found.isNull()) << text.toStdString();
    const QTextBlock block = found.block();
    const int start = found.selectionStart() - block.position();
    const QTextLine line = block.layout()->lineForTextPosition(start);
    EXPECT_TRUE(line.isValid()) << text.toStdString();
    return page.documentLayout()->blockBoundingRect(block).topLeft() +
           QPointF(line.cursorToX(start), line.y());
}

// As in the box about a value of beta that is too large.
TEST(QtPlatformTest, ValuesAfterTabsStandUnderEachOther) {
    MessageBoxRequest request = Box(BoxButtons::Ok);
    request.text =
        "Beta must be < 0.95.\n\nOrifice Diameter:\t3.832 Inches\nPipe Diameter:\t4.026 Inches\n"
        "Beta Ratio:\t0.9518\n\nLess is possible.";
    AnswerTo(request, [](QMessageBox& box) {
        QTextDocument page;
        page.setDefaultFont(box.font());
        page.setHtml(box.text());
        ASSERT_GT(page.size().height(), 0) << "has been laid out";
        EXPECT_EQ(box.textFormat(), Qt::RichText);
        QString text = page.toPlainText();
        text.replace(QChar::Nbsp, ' ');
        EXPECT_EQ(text.toStdString(),
                  "Beta must be < 0.95.\n \nOrifice Diameter:  \n3.832 Inches\nPipe Diameter:  \n"
                  "4.026 Inches\nBeta Ratio:  \n0.9518\n\n \nLess is possible.");
        const QPointF first = PlaceOf(page, "3.832");
        EXPECT_GT(first.x(), QFontMetricsF(box.font()).horizontalAdvance("Orifice Diameter:"));
        double above = first.y();
        for (const char* value : {"4.026", "0.9518", "Less"}) {
            const QPointF place = PlaceOf(page, value);
            EXPECT_NEAR(place.x(), *value == 'L' ? PlaceOf(page, "Beta must").x() : first.x(), 0.5)
                << value;
            EXPECT_GT(place.y(), above) << value;
            above = place.y();
        }
        box.close();
    });
}

std::optional<std::string> InputAfter(const std::function<void(QInputDialog&)>& act) {
    ModalDriver<QInputDialog> driver(act);
    auto answer = QtPlatform().ShowInputBox({"Enter a Pipe ID in Inches.", "Pipe ID", "4.5"});
    EXPECT_TRUE(driver.done());
    return answer;
}

TEST(QtPlatformTest, AnswersOfAnInputBox) {
    EXPECT_EQ(InputAfter([](QInputDialog& box) {
                  EXPECT_EQ(box.windowTitle(), "Pipe ID");
                  EXPECT_EQ(box.labelText(), "Enter a Pipe ID in Inches.");
                  EXPECT_EQ(box.textValue(), "4.5");
                  box.accept();
              }),
              "4.5");
    EXPECT_EQ(InputAfter([](QInputDialog& box) {
                  box.setTextValue("");
                  box.accept();
              }),
              "");
    EXPECT_EQ(InputAfter([](QInputDialog& box) { box.reject(); }), std::nullopt);
    EXPECT_EQ(InputAfter([](QInputDialog& box) { box.close(); }), std::nullopt);
}

TEST(QtPlatformTest, TheClockIsTheSystems) {
    const int before = QTime::currentTime().second();
    const int second = QtPlatform().CurrentSecond();
    const int after = QTime::currentTime().second();
    EXPECT_TRUE(second == before || second == after) << second;
}

TEST(QtPlatformDeathTest, EndsWithTheStatusAsked) {
    EXPECT_EXIT(QtPlatform().EndProgram(0), ::testing::ExitedWithCode(0), "");
    EXPECT_EXIT(QtPlatform().EndProgram(1), ::testing::ExitedWithCode(1), "");
}

}  // namespace
}  // namespace tarvix::testing
