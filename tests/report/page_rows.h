// Reads a composed page back as rows of text.
#pragma once

#include "report/page/report_page.h"

#include <string>
#include <vector>

namespace tarvix::testing {

// The rows above the notes, top down, empty rows among them; the height of a row is that of a line
// of 12 points. Fails the test when a line stands between two rows or not at the left edge.
std::vector<std::string> UpperRows(const ReportPage& page);

// The lines with text at or below `yTwips`, in the order of printing.
std::vector<ReportLine> LinesFrom(const ReportPage& page, double yTwips);

// Whether some line above the notes is exactly `text`.
bool HasRow(const ReportPage& page, const std::string& text);

}  // namespace tarvix::testing
