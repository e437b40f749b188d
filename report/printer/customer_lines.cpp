#include "report/printer/customer_lines.h"

#include "report/page/page_writer.h"
#include "report/printer/printed_text.h"

#include <algorithm>
#include <cstddef>

namespace tarvix {

namespace {

// A line of exactly the room's width, measured in another way, may be a shade wider.
constexpr double kShade = 1.001;

}  // namespace

CustomerFit FitCustomerLines(const CustomerLines& lines) {
    CustomerFit fit;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const QString line = QString::fromStdString(OnOneLine(lines[i]));
        fit.missingCharacters = fit.missingCharacters || !CanBePrinted(line);
        const double width = PrintedText(line, kReportFont).Width();
        if (width > kCustomerRoom * kShade) {
            fit.narrowed = std::max(kNarrowest, std::min(fit.narrowed, kCustomerRoom / width));
            fit.cut[i] = width * kNarrowest > kCustomerRoom * kShade;
        }
    }
    return fit;
}

}  // namespace tarvix
