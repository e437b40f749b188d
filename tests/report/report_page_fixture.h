// Composes pages of the sample sheets for a customer, in American numbers.
#pragma once

#include "report/page/report_page.h"
#include "tests/core/locales.h"
#include "tests/core/recording_platform.h"
#include "tests/report/page_rows.h"
#include "tests/report/sample_sheets.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarvix::testing {

using Rows = std::vector<std::string>;

class ReportPageTest : public ::testing::Test {
  protected:
    ReportPageTest() { FillCustomer(module_); }

    ReportPage Page(const ReportSheet& sheet) { return ComposeReport(sheet, module_); }
    Rows RowsOf(const ReportSheet& sheet) { return UpperRows(Page(sheet)); }
    void ExpectFatal(const ReportSheet& sheet, const std::string& cause) {
        try {
            Page(sheet);
            FAIL() << "the program went on";
        } catch (const ProgramEnded& end) {
            EXPECT_EQ(end.exitStatus, 1);
        }
        ASSERT_EQ(platform_.boxes.size(), 1U);
        EXPECT_EQ(platform_.boxes.front().text, FatalText(cause));
        EXPECT_EQ(platform_.boxes.front().title, "Fatal Error");
    }

    RecordingPlatform platform_;
    Module1 module_{platform_, kUnitedStates};
};

}  // namespace tarvix::testing
