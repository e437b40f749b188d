// The customer window, used as a person would: keys and clicks on the shown window.
#include "ui/windows/frm_cust_info.h"

#include "tests/core/locales.h"
#include "tests/core/named_row.h"
#include "tests/core/recording_platform.h"

#include <QApplication>
#include <QTest>

#include <array>
#include <gtest/gtest.h>
#include <memory>

namespace tarvix::testing {
namespace {

constexpr int kPrint = 1;
constexpr int kDoNotPrint = 2;

// The two lines of the customer, and the tag.
using Lines = std::array<std::string, 3>;

const Lines kLast = {"Northfield Refinery", "Unit 4", "FE-4102"};

class CustomerWindowTest : public ::testing::Test {
  protected:
    // Shows a fresh window, as for every report.
    frmCustInfo& Open() {
        window_ = std::make_unique<frmCustInfo>(module_);
        window_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
        return *window_;
    }

    // With what was stored for the report before.
    frmCustInfo& OpenAfter(const Lines& last) {
        module_.CustLine1 = last[0];
        module_.CustLine2 = last[1];
        module_.TagText = last[2];
        return Open();
    }

    static void Type(QWidget* field, const QString& text) {
        field->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(field, text);
    }

    Lines Stored() const { return {module_.CustLine1, module_.CustLine2, module_.TagText}; }

    Lines Shown() const {
        return {window_->txtCust1->text().toStdString(), window_->txtCust2->text().toStdString(),
                window_->txtTag->text().toStdString()};
    }

    RecordingPlatform platform_;
    Module1 module_{platform_, kUnitedStates};
    std::unique_ptr<frmCustInfo> window_;
};

// What is seen is in the kept picture.
TEST_F(CustomerWindowTest, IsReadAloud) {
    const frmCustInfo& window = Open();
    EXPECT_EQ(window.windowTitle(), "Brindle Tarvix");
    EXPECT_TRUE(window.isModal());
    EXPECT_EQ(window.txtCust1->accessibleName(), "Customer");
    EXPECT_EQ(window.txtCust2->accessibleName(), "Customer, second line");
    EXPECT_EQ(window.txtTag->accessibleName(), "Tag");
    EXPECT_EQ(window.cmdPrint->accessibleDescription(), "Prints the report with these lines");
    EXPECT_EQ(window.cmdClear->accessibleDescription(), "Empties the three lines");
    EXPECT_EQ(window.cmdCancel->accessibleDescription(), "Closes the window without printing");
}

TEST_F(CustomerWindowTest, OpensEmptyAndWithNothingPrinted) {
    module_.MsgResult = kPrint;  // of the last message box
    const frmCustInfo& window = Open();
    EXPECT_EQ(module_.MsgResult, kDoNotPrint);
    EXPECT_EQ(Shown(), Lines());
    EXPECT_TRUE(window.txtCust1->hasFocus());
}

struct LeavingRow : NamedRow {
    void (*leave)(frmCustInfo& window);
    int result;
};

class LeavingTheCustomerWindow : public CustomerWindowTest,
                                 public ::testing::WithParamInterface<LeavingRow> {};

TEST_P(LeavingTheCustomerWindow, StoresWhatWasTypedIfItIsPrinted) {
    frmCustInfo& window = OpenAfter(kLast);
    Type(window.txtCust1, "Sawyer");
    Type(window.txtCust2, "Unit 5");
    Type(window.txtTag, "FE-4103");
    EXPECT_EQ(Stored(), kLast);
    GetParam().leave(window);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(module_.MsgResult, GetParam().result);
    EXPECT_EQ(Stored(),
              GetParam().result == kPrint ? (Lines{"Sawyer", "Unit 5", "FE-4103"}) : kLast);
}

// clang-format off
const LeavingRow kLeavingRows[] = {
    {"Print",           [](auto& w) { QTest::mouseClick(w.cmdPrint, Qt::LeftButton); }, kPrint},
    {"EnterInLine1",    [](auto& w) { QTest::keyClick(w.txtCust1, Qt::Key_Return); }, kPrint},
    {"EnterInLine2",    [](auto& w) { QTest::keyClick(w.txtCust2, Qt::Key_Return); }, kPrint},
    {"EnterInTag",      [](auto& w) { QTest::keyClick(w.txtTag, Qt::Key_Return); }, kPrint},
    {"Cancel",          [](auto& w) { QTest::mouseClick(w.cmdCancel, Qt::LeftButton); }, kDoNotPrint},
    {"Escape",          [](auto& w) { QTest::keyClick(w.txtTag, Qt::Key_Escape); }, kDoNotPrint},
    {"CloseBox",        [](auto& w) { w.close(); }, kDoNotPrint},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(CustomerWindow, LeavingTheCustomerWindow,
                         ::testing::ValuesIn(kLeavingRows), kRowName);

TEST_F(CustomerWindowTest, NextReportStartsWithTheLastTextsSelected) {
    frmCustInfo& window = OpenAfter(kLast);
    EXPECT_EQ(Shown(), kLast);
    EXPECT_EQ(window.txtCust1->selectedText(), "Northfield Refinery");
    QTest::keyClicks(window.txtCust1, "Sawyer");
    EXPECT_EQ(window.txtCust1->text(), "Sawyer");
}

// By a click or from elsewhere, too, where the toolkit does not do it.
TEST_F(CustomerWindowTest, GettingTheFocusSelectsTheWholeText) {
    frmCustInfo& window = OpenAfter(kLast);
    for (QLineEdit* field : {window.txtCust2, window.txtTag, window.txtCust1}) {
        field->setFocus(Qt::OtherFocusReason);
        EXPECT_EQ(field->selectedText(), field->text());
    }
}

TEST_F(CustomerWindowTest, ClearEmptiesTheFieldsOnlyAndLeadsToTheFirstLine) {
    frmCustInfo& window = OpenAfter(kLast);
    window.cmdClear->setFocus(Qt::TabFocusReason);
    QTest::keyClick(window.cmdClear, Qt::Key_Return);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(Shown(), Lines());
    EXPECT_EQ(module_.MsgResult, kDoNotPrint);
    EXPECT_EQ(Stored(), kLast);
    EXPECT_TRUE(window.txtCust1->hasFocus());
    QTest::keyClicks(QApplication::focusWidget(), "Northfield");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(module_.MsgResult, kPrint);
    EXPECT_EQ(Stored(), (Lines{"Northfield", "", ""}));
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

TEST_F(CustomerWindowTest, SaysWhenLinesWillBePrintedNarrower) {
    frmCustInfo& window = Open();
    const QSize size = window.size();
    Type(window.txtCust1, QString(62, 'M'));
    EXPECT_EQ(window.lblFit->text(), "");
    EXPECT_GE(window.lblFit->height(), 2 * window.fontMetrics().lineSpacing());
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
    frmCustInfo& window = OpenAfter({"", "", std::string(104, 'T')});
    EXPECT_EQ(window.lblFit->text(), "Too long for the paper, the end will be cut off: tag.");
    window.txtCust1->setText(QString(200, 'x'));
    EXPECT_EQ(window.lblFit->text(),
              "Too long for the paper, the end will be cut off: first customer line, tag.");
    EXPECT_LE(window.lblFit->heightForWidth(window.lblFit->width()), window.lblFit->height());
    // It is said, not refused.
    window.cmdPrint->click();
    EXPECT_EQ(module_.MsgResult, kPrint);
    EXPECT_EQ(Stored(), (Lines{std::string(200, 'x'), "", std::string(104, 'T')}));
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
    EXPECT_EQ(Stored(), (Lines{line.toStdString(), "", std::string(5000, 'x')}));
    EXPECT_EQ(Open().txtCust1->text(), line);
}

}  // namespace
}  // namespace tarvix::testing
