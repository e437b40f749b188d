// Composes pages of the sample sheets for a customer, in American numbers.
#pragma once

#include "report/page/report_page.h"
#include "tests/core/fatal_errors.h"
#include "tests/core/locales.h"
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
        const auto box = FatalBoxOf(platform_, [&] { Page(sheet); });
        EXPECT_EQ(box.text, FatalText(cause));
        EXPECT_EQ(box.title, "Fatal Error");
    }

    RecordingPlatform platform_;
    Module1 module_{platform_, kUnitedStates};
};

}  // namespace tarvix::testing
