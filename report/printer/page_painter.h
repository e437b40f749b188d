// Paints a composed report on paper: a printer's page or a PDF's.
#pragma once

#include "report/page/report_page.h"

#include <QImage>
#include <QPagedPaintDevice>

namespace tarvix {

// Paints the page on one sheet of `device`, beginning 6% of the paper's width from its left edge
// and 4.5% of its height from its top, with the logo at that corner at its own size (its pixels at
// its own dots per inch). The customer lines are one block: when one is too long, all are drawn
// narrower, the words in front of them left alone. A line too long even then ends in an ellipsis.
// Paper too small for the page (below Letter and A4) gets the page scaled down to it. False when
// `device` can't be painted on or breaks off.
bool PaintReport(QPagedPaintDevice& device, const ReportPage& page, const QImage& logo);

}  // namespace tarvix
