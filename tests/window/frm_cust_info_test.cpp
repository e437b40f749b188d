// The customer window, used as a person would: keys and clicks on the shown window.
#include "ui/windows/frm_cust_info.h"

#include "tests/core/locales.h"
#include "tests/core/recording_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>
#include <utility>

namespace tarvix::testing {
namespace {

constexpr int kPrint = 1;
constexpr int kDoNotPrint = 2;

class CustomerWindowTest : public ::testing::Test {
  protected:
    // Shows a fresh window, as for every report.
    frmCustInfo& Open() {
        window_ = std::make_unique<frmCustInfo>(module_);
        window_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
        return *window_;
    }

    void Store(const std::string& line1, const std::string& line2, const std::string& tag) {
        module_.CustLine1 = line1;
        module_.CustLine2 = line2;
        module_.TagText = tag;
    }

    static void Type(QWidget* field, const QString& text) {
        field->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(field, text);
    }

    void ExpectStored(const std::string& line1, const std::string& line2, const std::string& tag) {
        EXPECT_EQ(module_.CustLine1, line1);
        EXPECT_EQ(module_.CustLine2, line2);
        EXPECT_EQ(module_.TagText, tag);
    }

    RecordingPlatform platform_;
    Module1 module_{platform_, kUnitedStates};
    std::unique_ptr<frmCustInfo> window_;
};

TEST_F(CustomerWindowTest, CaptionsAndNames) {
    const frmCustInfo& window = Open();
    EXPECT_EQ(window.windowTitle(), "Brindle Tarvix");
    EXPECT_TRUE(window.isModal());
    EXPECT_EQ(window.findChild<QLabel*>("Label1")->text(), "Customer");
    EXPECT_EQ(window.findChild<QLabel*>("Label2")->text(), "Tag");
    EXPECT_EQ(window.findChild<QPushButton*>("cmdPrint")->text(), "Print");
    EXPECT_EQ(window.findChild<QPushButton*>("cmdClear")->text(), "Clear");
    EXPECT_EQ(window.findChild<QPushButton*>("cmdCancel")->text(), "Cancel");
    const auto* frame = window.findChild<QFrame*>("Frame1");
    ASSERT_NE(frame, nullptr);
    for (const char* name : {"txtCust1", "txtCust2", "txtTag"}) {
        const auto* field = window.findChild<QLineEdit*>(name);
        ASSERT_NE(field, nullptr) << name;
        EXPECT_EQ(field->parentWidget(), frame) << name;
    }
}

TEST_F(CustomerWindowTest, IsReadAloud) {
    const frmCustInfo& window = Open();
    EXPECT_EQ(window.txtCust1->accessibleName(), "Customer");
    EXPECT_EQ(window.txtCust2->accessibleName(), "Customer, second line");
    EXPECT_EQ(window.txtTag->accessibleName(), "Tag");
    const auto described = [&](const char* name) {
        return window.findChild<QPushButton*>(name)->accessibleDescription();
    };
    EXPECT_EQ(described("cmdPrint"), "Prints the report with these lines");
    EXPECT_EQ(described("cmdClear"), "Empties the three lines");
    EXPECT_EQ(described("cmdCancel"), "Closes the window without printing");
}

// The two lines of the customer and the tag under each other, their labels before them, what is
// said of them below, then the buttons.
TEST_F(CustomerWindowTest, StandsInRows) {
    const frmCustInfo& window = Open();
    const auto place = [&](const char* name) {
        const auto* widget = window.findChild<QWidget*>(name);
        return QRect(widget->mapTo(&window, QPoint()), widget->size());
    };
    const QRect first = place("txtCust1");
    int above = first.y() - 1;
    for (const char* name : {"txtCust1", "txtCust2", "txtTag", "lblFit"}) {
        EXPECT_EQ(place(name).x(), first.x()) << name;
        EXPECT_EQ(place(name).width(), first.width()) << name;
        EXPECT_GT(place(name).y(), above) << name;
        above = place(name).bottom();
    }
    for (const auto& [label, field] : {std::pair("Label1", "txtCust1"), {"Label2", "txtTag"}}) {
        EXPECT_LT(place(label).right(), first.x());
        EXPECT_NEAR(place(label).center().y(), place(field).center().y(), 1);
    }
    int left = 0;
    for (const char* name : {"cmdPrint", "cmdClear", "cmdCancel"}) {
        EXPECT_GT(place(name).y(), place("Frame1").bottom() + 5) << name;
        EXPECT_GT(place(name).x(), left) << name;
        left = place(name).right();
    }
    EXPECT_EQ(left, place("Frame1").right());
    EXPECT_GE(place("lblFit").height(), 2 * window.fontMetrics().lineSpacing());
}

TEST_F(CustomerWindowTest, OpensEmptyAndWithNothingPrinted) {
    module_.MsgResult = kPrint;  // of the last message box
    const frmCustInfo& window = Open();
    EXPECT_EQ(module_.MsgResult, kDoNotPrint);
    EXPECT_EQ(window.txtCust1->text(), "");
    EXPECT_EQ(window.txtCust2->text(), "");
    EXPECT_EQ(window.txtTag->text(), "");
    EXPECT_TRUE(window.txtCust1->hasFocus());
}

TEST_F(CustomerWindowTest, PrintStoresWhatWasTypedAndClosesTheWindow) {
    frmCustInfo& window = Open();
    Type(window.txtCust1, "Northfield Refinery");
    Type(window.txtCust2, "Unit 4");
    Type(window.txtTag, "FE-4102");
    ExpectStored("", "", "");
    QTest::mouseClick(window.cmdPrint, Qt::LeftButton);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(module_.MsgResult, kPrint);
    ExpectStored("Northfield Refinery", "Unit 4", "FE-4102");
}

TEST_F(CustomerWindowTest, NextReportStartsWithTheLastTextsSelected) {
    frmCustInfo& first = Open();
    Type(first.txtCust1, "Northfield Refinery");
    first.cmdPrint->click();

    frmCustInfo& second = Open();
    EXPECT_EQ(second.txtCust1->text(), "Northfield Refinery");
    EXPECT_EQ(second.txtCust1->selectedText(), "Northfield Refinery");
    QTest::keyClicks(second.txtCust1, "Sawyer");
    EXPECT_EQ(second.txtCust1->text(), "Sawyer");
}

TEST_F(CustomerWindowTest, GettingTheFocusSelectsTheWholeText) {
    Store("one", "two", "three");
    frmCustInfo& window = Open();
    QTest::keyClick(&window, Qt::Key_Tab);
    EXPECT_TRUE(window.txtCust2->hasFocus());
    EXPECT_EQ(window.txtCust2->selectedText(), "two");
    QTest::keyClick(&window, Qt::Key_Tab);
    EXPECT_TRUE(window.txtTag->hasFocus());
    EXPECT_EQ(window.txtTag->selectedText(), "three");
    QTest::keyClick(&window, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(window.txtCust2->selectedText(), "two");
}

TEST_F(CustomerWindowTest, ClickSelectsTheWholeTextAndASecondClickSetsTheCaret) {
    module_.TagText = "FE-4102";
    frmCustInfo& window = Open();
    QTest::mouseClick(window.txtTag, Qt::LeftButton, {}, QPoint(8, window.txtTag->height() / 2));
    EXPECT_TRUE(window.txtTag->hasFocus());
    EXPECT_EQ(window.txtTag->selectedText(), "FE-4102");
    QTest::mouseClick(window.txtTag, Qt::LeftButton, {}, QPoint(8, window.txtTag->height() / 2));
    EXPECT_EQ(window.txtTag->selectedText(), "");
}

TEST_F(CustomerWindowTest, CancelKeepsTheStoredTexts) {
    Store("Northfield Refinery", "", "FE-4102");
    frmCustInfo& window = Open();
    Type(window.txtCust1, "Sawyer");
    Type(window.txtCust2, "typed for nothing");
    QTest::mouseClick(window.cmdCancel, Qt::LeftButton);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(module_.MsgResult, kDoNotPrint);
    ExpectStored("Northfield Refinery", "", "FE-4102");
}

TEST_F(CustomerWindowTest, ClearEmptiesTheFieldsOnly) {
    Store("Northfield Refinery", "Unit 4", "FE-4102");
    frmCustInfo& window = Open();
    QTest::mouseClick(window.cmdClear, Qt::LeftButton);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.txtCust1->text(), "");
    EXPECT_EQ(window.txtCust2->text(), "");
    EXPECT_EQ(window.txtTag->text(), "");
    EXPECT_EQ(module_.MsgResult, kDoNotPrint);
    ExpectStored("Northfield Refinery", "Unit 4", "FE-4102");
}

TEST_F(CustomerWindowTest, ClearThenPrintStoresEmptyTexts) {
    Store("Northfield Refinery", "Unit 4", "FE-4102");
    frmCustInfo& window = Open();
    window.cmdClear->click();
    window.cmdPrint->click();
    EXPECT_EQ(module_.MsgResult, kPrint);
    ExpectStored("", "", "");
}

TEST_F(CustomerWindowTest, ClearLeadsToTheFirstLineAndEnterThenPrints) {
    module_.CustLine1 = "ACME";
    frmCustInfo& window = Open();
    window.cmdClear->setFocus(Qt::TabFocusReason);
    QTest::keyClick(window.cmdClear, Qt::Key_Return);
    ASSERT_TRUE(window.isVisible());
    EXPECT_TRUE(window.txtCust1->hasFocus());
    QTest::keyClicks(QApplication::focusWidget(), "Northfield");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(module_.MsgResult, kPrint);
    ExpectStored("Northfield", "", "");
}

TEST_F(CustomerWindowTest, CloseBoxPrintsNothing) {
    module_.CustLine1 = "Northfield Refinery";
    frmCustInfo& window = Open();
    Type(window.txtCust1, "Sawyer");
    EXPECT_TRUE(window.close());
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(module_.MsgResult, kDoNotPrint);
    ExpectStored("Northfield Refinery", "", "");
}

TEST_F(CustomerWindowTest, EnterPrintsFromEveryField) {
    for (const char* name : {"txtCust1", "txtCust2", "txtTag"}) {
        frmCustInfo& window = Open();
        auto* field = window.findChild<QLineEdit*>(name);
        Type(field, name);
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_FALSE(window.isVisible()) << name;
        EXPECT_EQ(module_.MsgResult, kPrint) << name;
    }
    ExpectStored("txtCust1", "txtCust2", "txtTag");
}

TEST_F(CustomerWindowTest, EscapeCancels) {
    frmCustInfo& window = Open();
    Type(window.txtTag, "FE-4102");
    QTest::keyClick(window.txtTag, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(module_.MsgResult, kDoNotPrint);
    ExpectStored("", "", "");
}

TEST_F(CustomerWindowTest, TabGoesRoundInOrder) {
    frmCustInfo& window = Open();
    for (const char* name :
         {"txtCust2", "txtTag", "cmdPrint", "cmdClear", "cmdCancel", "txtCust1"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
    }
    EXPECT_TRUE(window.isVisible());
}

TEST_F(CustomerWindowTest, FieldsShowWhatThePaperHolds) {
    frmCustInfo& window = Open();
    for (const EntryLine* field : {window.txtCust1, window.txtCust2, window.txtTag}) {
        const double line = QFontMetricsF(field->font()).horizontalAdvance(QString(62, 'M'));
        EXPECT_GE(field->width(), line);
        EXPECT_LE(field->width(), line + 40);
        EXPECT_TRUE(QFontInfo(field->font()).fixedPitch());
    }
}

TEST_F(CustomerWindowTest, SaysWhenLinesWillBePrintedNarrower) {
    frmCustInfo& window = Open();
    const QSize size = window.size();
    Type(window.txtCust1, QString(62, 'M'));
    EXPECT_EQ(window.lblFit->text(), "");
    QTest::keyClicks(window.txtCust1, "MM");  // 62 of 64
    EXPECT_EQ(window.lblFit->text(),
              "To fit on the paper, these lines will be printed narrower (97 %).");
    EXPECT_EQ(window.txtCust1->accessibleDescription(), window.lblFit->text());
    // Nothing moves because of it.
    EXPECT_EQ(window.size(), size);
    EXPECT_TRUE(window.cmdPrint->isEnabled());
    QTest::keyClick(window.txtCust1, Qt::Key_Backspace);
    QTest::keyClick(window.txtCust1, Qt::Key_Backspace);
    EXPECT_EQ(window.lblFit->text(), "");
}

TEST_F(CustomerWindowTest, SaysWhichLinesWillBeCut) {
    module_.TagText = std::string(104, 'T');
    frmCustInfo& window = Open();
    EXPECT_EQ(window.lblFit->text(), "Too long for the paper, the end will be cut off: tag.");
    window.txtCust1->setText(QString(200, 'x'));
    EXPECT_EQ(window.lblFit->text(),
              "Too long for the paper, the end will be cut off: first customer line, tag.");
    EXPECT_LE(window.lblFit->heightForWidth(window.lblFit->width()), window.lblFit->height());
    // It is said, not refused.
    window.cmdPrint->click();
    EXPECT_EQ(module_.MsgResult, kPrint);
    ExpectStored(std::string(200, 'x'), "", std::string(104, 'T'));
}

TEST_F(CustomerWindowTest, SaysWhenNoFontHasACharacter) {
    frmCustInfo& window = Open();
    // The last code that there is: it is nobody's.
    window.txtTag->setText(QString::fromUtf8("FE-41\xF4\x8F\xBF\xBD"));
    EXPECT_EQ(window.lblFit->text(),
              "Characters that no font here has will be printed as question marks.");
}

TEST_F(CustomerWindowTest, AnyCharacterAndAnyLengthAreKept) {
    frmCustInfo& window = Open();
    const QString line = QString::fromUtf8("Raffinerie Öst \"№ 7\" & Söhne <…>");
    window.txtCust1->setText(line);
    window.txtTag->setText(QString(5000, 'x'));
    window.cmdPrint->click();
    ExpectStored(line.toStdString(), "", std::string(5000, 'x'));
    EXPECT_EQ(Open().txtCust1->text(), line);
}

}  // namespace
}  // namespace tarvix::testing
