// Composes pages of the sample sheets for a customer, in American numbers.
#pragma once

#include "report/page/report_page.h"
#include "tests/core/locales.h"
#include "tests/core/recording_platform.h"
#include "tests/report/sample_sheets.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

namespace tarvix::testing {

// The lines with text at or below `yTwips`, in the order of printing.
inline std::vector<ReportLine> LinesFrom(const ReportPage& page, double yTwips) {
    std::vector<ReportLine> lines;
    std::ranges::copy_if(page.lines, std::back_inserter(lines), [yTwips](const ReportLine& line) {
        return line.yTwips >= yTwips && !line.text.empty();
    });
    return lines;
}

class ReportPageTest : public ::testing::Test {
  protected:
    ReportPageTest() { FillCustomer(module_); }

    ReportPage Page(const ReportSheet& sheet) { return ComposeReport(sheet, module_); }

    RecordingPlatform platform_;
    Module1 module_{platform_, kUnitedStates};
};

}  // namespace tarvix::testing
