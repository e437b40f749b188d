#include "report/printer/page_painter.h"

#include "report/printer/customer_lines.h"
#include "report/printer/printed_text.h"

#include <QPageLayout>
#include <QPainter>
#include <QRectF>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace tarvix {

namespace {

constexpr double kLeftMargin = 0.06;  // of the paper's width
constexpr double kTopMargin = 0.045;  // of the paper's height
constexpr double kTwipsPerInch = 1440;
constexpr double kTwipsPerMillimeter = kTwipsPerInch / 25.4;
constexpr double kInchesPerMeter = 1 / 0.0254;

// The widest lines of every report, the customer's, in characters of the largest font.
constexpr double kWidestLineTwips =
    (kCustomerPrefix + kCustomerColumns) * kReportFont.sizePt * kTwipsPerPoint * kFontAdvance;

// The paper, all in twips, whole numbers of them as a page size is read.
struct Paper {
    double width;
    double height;
    double unprintableLeft;  // where the device's own origin lies on the paper
    double unprintableTop;

    double leftMargin() const { return width * kLeftMargin; }
    double topMargin() const { return height * kTopMargin; }
    double textWidth() const { return width - 2 * leftMargin(); }
    double textHeight() const { return height - 2 * topMargin(); }
};

Paper PaperOf(const QPagedPaintDevice& device) {
    const QPageLayout layout = device.pageLayout();
    const QRectF sheet = layout.fullRect(QPageLayout::Millimeter);
    const QRectF printable = layout.paintRect(QPageLayout::Millimeter);
    return {std::round(sheet.width() * kTwipsPerMillimeter),
            std::round(sheet.height() * kTwipsPerMillimeter),
            (printable.left() - sheet.left()) * kTwipsPerMillimeter,
            (printable.top() - sheet.top()) * kTwipsPerMillimeter};
}

// 1 on Letter and A4 and anything larger.
double ScaleToFit(const ReportPage& page, const Paper& paper) {
    double bottom = 1;
    for (const ReportLine& line : page.lines) {
        const double height = line.font.sizePt * kTwipsPerPoint * kFontLineHeight;
        bottom = std::max(bottom, line.yTwips + height);
    }
    return std::min({1.0, paper.textWidth() / kWidestLineTwips, paper.textHeight() / bottom});
}

// A line that is too long is drawn narrower, as long as it can be read, then cut.
void PaintLine(QPainter& painter, const ReportLine& line, double textWidth) {
    const PrintedText text(QString::fromStdString(line.text), line.font);
    const double room = textWidth - line.xTwips;
    const double narrowed = std::clamp(room / std::max(text.Width(), 1.0), kNarrowest, 1.0);
    text.CutTo(room / narrowed).Paint(painter, line.xTwips, line.yTwips, narrowed);
}

// The word in front keeps its width, so that the lines of the block begin below each other.
void PaintCustomerLine(QPainter& painter, const ReportLine& line, double narrowed) {
    const QString text = QString::fromStdString(line.text);
    const double left =
        line.xTwips + kCustomerPrefix * line.font.sizePt * kTwipsPerPoint * kFontAdvance;
    PrintedText(text.left(kCustomerPrefix), line.font).Paint(painter, line.xTwips, line.yTwips, 1);
    PrintedText(text.mid(kCustomerPrefix), line.font)
        .CutTo(kCustomerRoom / narrowed)
        .Paint(painter, left, line.yTwips, narrowed);
}

double CustomerWidth(const ReportPage& page) {
    CustomerLines lines;
    std::size_t count = 0;
    for (const ReportLine& line : page.lines) {
        if (line.customer && count < lines.size()) {
            lines[count++] = line.text.substr(kCustomerPrefix);
        }
    }
    return FitCustomerLines(lines).narrowed;
}

QRectF LogoPlace(const QImage& logo) {
    const double twipsPerPixelX = kTwipsPerInch * kInchesPerMeter / logo.dotsPerMeterX();
    const double twipsPerPixelY = kTwipsPerInch * kInchesPerMeter / logo.dotsPerMeterY();
    return {0, 0, logo.width() * twipsPerPixelX, logo.height() * twipsPerPixelY};
}

// The logo with the paper's own white around its ink: what a JPEG makes of white would be printed
// as a speckled halo.
QImage OnWhite(const QImage& logo) {
    constexpr int kNearlyWhite = 240;
    QImage picture = logo.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb dot = picture.pixel(x, y);
            if (std::min({qRed(dot), qGreen(dot), qBlue(dot)}) >= kNearlyWhite) {
                picture.setPixel(x, y, qRgb(255, 255, 255));
            }
        }
    }
    return picture;
}

}  // namespace

bool PaintReport(QPagedPaintDevice& device, const ReportPage& page, const QImage& logo) {
    const Paper paper = PaperOf(device);
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.scale(device.logicalDpiX() / kTwipsPerInch, device.logicalDpiY() / kTwipsPerInch);
    painter.translate(paper.leftMargin() - paper.unprintableLeft,
                      paper.topMargin() - paper.unprintableTop);
    const double scale = ScaleToFit(page, paper);
    painter.scale(scale, scale);

    if (!logo.isNull()) {
        painter.drawImage(LogoPlace(logo), OnWhite(logo));
    }
    const double narrowed = CustomerWidth(page);
    for (const ReportLine& line : page.lines) {
        if (line.customer) {
            PaintCustomerLine(painter, line, narrowed);
        } else if (!line.text.empty()) {
            PaintLine(painter, line, paper.textWidth() / scale);
        }
    }
    return painter.end();
}

}  // namespace tarvix
