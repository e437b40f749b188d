#include "tests/report/page_rows.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>

namespace tarvix::testing {

namespace {

constexpr double kNotesTop = 8000;

// 12 points of 20 twips, times Courier New's line height of 1.1328125.
constexpr double kRowHeight = 271.875;

}  // namespace

std::vector<std::string> UpperRows(const ReportPage& page) {
    std::vector<std::string> rows;
    for (const ReportLine& line : page.lines) {
        if (line.yTwips >= kNotesTop) {
            continue;
        }
        const double row = line.yTwips / kRowHeight;
        EXPECT_NEAR(row, std::round(row), 1e-6) << line.text;
        EXPECT_EQ(line.xTwips, 0) << line.text;
        EXPECT_EQ(line.font.sizePt, 12) << line.text;
        EXPECT_TRUE(line.font.bold) << line.text;
        EXPECT_FALSE(line.font.italic) << line.text;
        rows.resize(std::max(rows.size(), static_cast<std::size_t>(std::lround(row)) + 1));
        rows.at(static_cast<std::size_t>(std::lround(row))) += line.text;
    }
    return rows;
}

std::vector<ReportLine> LinesFrom(const ReportPage& page, double yTwips) {
    std::vector<ReportLine> lines;
    std::copy_if(
        page.lines.begin(), page.lines.end(), std::back_inserter(lines),
        [yTwips](const ReportLine& line) { return line.yTwips >= yTwips && !line.text.empty(); });
    return lines;
}

bool HasRow(const ReportPage& page, const std::string& text) {
    const auto rows = UpperRows(page);
    return std::find(rows.begin(), rows.end(), text) != rows.end();
}

}  // namespace tarvix::testing
