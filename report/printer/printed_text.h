// Text as the report prints it: in the cells of its fixed-pitch font, in any script.
#pragma once

#include "report/page/report_page.h"

#include <QFont>
#include <QString>

class QPainter;

namespace tarvix {

// The report's font at no particular size. Where it is not installed, the fixed-pitch fonts with
// the same measures come first, then whatever fixed-pitch font there is.
QFont ReportFontFamily();

// Whether every character of `text` is in some font of this system.
bool CanBePrinted(const QString& text);

// One line of text in a coordinate system of twips. Every blank is as wide as a character; blanks
// at the end are left out. Characters stand in cells: one each, two where they are wider (Japanese,
// Chinese), also those that come from another font. A script whose letters join (Arabic,
// Devanagari) runs as it is written, and what follows it stands in a cell again. A character that
// no font has is a question mark.
class PrintedText {
  public:
    PrintedText(const QString& text, const ReportFont& font);

    double Width() const { return width_; }

    // Cut behind a whole character and ended by an ellipsis, when it is wider than `room`.
    PrintedText CutTo(double room) const;

    // Draws the line with its upper left corner at (x, y), its characters `narrowed` times as wide
    // as usual.
    void Paint(QPainter& painter, double x, double y, double narrowed) const;

  private:
    QString text_;
    ReportFont font_;
    double width_ = 0;
};

}  // namespace tarvix
