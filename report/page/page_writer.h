// Writes text down a page as a line printer does: a font, a place to go on from, line after line.
#pragma once

#include "report/page/report_page.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarvix {

class PageWriter {
  public:
    void SetFont(const ReportFont& font) { font_ = font; }

    // Writes `text` and begins a new line below it.
    void Print(std::string text);

    // Print for a line that ends in what the user typed.
    void PrintCustomerLine(std::string text);

    // Writes `text` and stays on its line, right of it.
    void PrintPiece(std::string text);

    void EmptyLines(int count);

    // Goes on at the left edge, this far below the start of the page.
    void MoveTo(double yTwips);

    const ReportPage& Page() const { return page_; }

  private:
    ReportPage page_;
    ReportFont font_;
    double xTwips_ = 0;
    double yTwips_ = 0;
};

// The lines of the page from top to bottom, empty ones among them; what was printed in pieces
// stands together.
std::vector<std::string> PrintedLines(const ReportPage& page);

// The number of characters (code points) of a UTF-8 text.
int CharacterCount(std::string_view text);

// `text`, filled up with blanks to `columns` characters; unchanged when it is longer.
std::string PadRight(std::string text, int columns);

// `text` on one line: every control character or line break becomes a blank.
std::string OnOneLine(std::string_view text);

// Label, blanks and value, so that the value ends in kValueColumn. What is too long for that is
// joined by one blank.
std::string ValueLine(std::string_view label, std::string_view value);

}  // namespace tarvix
