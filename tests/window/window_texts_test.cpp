// What stands in the splash, the customer window and the About window, against a table of texts.
#include "tests/core/data_file.h"
#include "tests/core/locales.h"
#include "tests/core/recording_platform.h"
#include "ui/windows/about_box.h"
#include "ui/windows/frm_cust_info.h"
#include "ui/windows/frm_splash.h"

#include <QAbstractButton>
#include <QLabel>

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarvix::testing {
namespace {

// The window's rows, and no other text is seen in a label or on a button.
void ExpectTexts(const QWidget& window, const std::string& name) {
    const std::vector<DataRow> rows = RowsOf(ReadDataFile("window_texts.tsv"), name);
    qsizetype texts = window.findChildren<QAbstractButton*>().size();
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        texts += !label->isHidden() && !label->text().isEmpty() ? 1 : 0;
    }
    EXPECT_EQ(texts, static_cast<qsizetype>(rows.size()));
    for (const DataRow& row : rows) {
        const auto* control = window.findChild<QWidget*>(QString::fromStdString(row[1]));
        ASSERT_NE(control, nullptr) << row[1];
        EXPECT_EQ(control->property("text").toString().toStdString(), row[2]) << row[1];
    }
}

TEST(WindowTextsTest, AreThoseOfTheTable) {
    RecordingPlatform platform;
    Module1 module(platform, kUnitedStates);
    module.AppPath = AppPathOf(TARVIX_LOGOS);
    ExpectTexts(frmSplash(module, {}), "frmSplash");
    ExpectTexts(frmCustInfo(module), "frmCustInfo");
    // Each time it is opened.
    ExpectTexts(AboutBox(), "AboutBox");
    ExpectTexts(AboutBox(), "AboutBox");
}

}  // namespace
}  // namespace tarvix::testing
