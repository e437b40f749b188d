#include "report/printer/page_painter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QMarginsF>
#include <QPageLayout>
#include <QPainter>
#include <QRectF>

#include <algorithm>
#include <cmath>

namespace tarvix {

namespace {

constexpr double kLeftMargin = 0.06;  // of the paper's width
constexpr double kTopMargin = 0.045;  // of the paper's height
constexpr double kTwipsPerInch = 1440;
constexpr double kTwipsPerMillimeter = kTwipsPerInch / 25.4;
constexpr double kInchesPerMeter = 1 / 0.0254;

// The widest line of every report, the warning beside a density, in characters of the largest font.
constexpr double kWidestLineTwips = 70 * 12 * kTwipsPerPoint * kFontAdvance;

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

// The report's font for a coordinate system in twips. Where it is not installed, the fixed-pitch
// fonts with the same measures come first, then whatever fixed-pitch font there is.
QFont FontOf(const ReportFont& reportFont) {
    const QString family = QString::fromUtf8(kReportFontFamily.data(),
                                             static_cast<qsizetype>(kReportFontFamily.size()));
    QFont font;
    font.setFamilies({family, "Liberation Mono", "Cousine", "Nimbus Mono PS", "Courier"});
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    font.setPixelSize(static_cast<int>(std::lround(reportFont.sizePt * kTwipsPerPoint)));
    font.setBold(reportFont.bold);
    font.setItalic(reportFont.italic);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

// A blank of every kind (locales group digits with narrow ones) is as wide as a character, so that
// columns stay columns.
QString WithPlainBlanks(QString text) {
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return c.isSpace(); }, QChar(' '));
    return text;
}

void PaintLine(QPainter& painter, const ReportLine& line, double textWidth) {
    QFont font = FontOf(line.font);
    // A font that is a shade wider or narrower than the one that the page was laid out for.
    const double advance = font.pixelSize() * kFontAdvance;
    const double spacing = advance - QFontMetricsF(font).horizontalAdvance(QChar('0'));
    font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    painter.setFont(font);

    QString text = WithPlainBlanks(QString::fromStdString(line.text));
    while (text.endsWith(' ')) {
        text.chop(1);
    }
    // A line that is too long is drawn narrower, as long as it can be read, then cut.
    constexpr double kNarrowest = 0.6;
    const QFontMetricsF metrics(font);
    const double room = textWidth - line.xTwips;
    const double narrowed = std::clamp(room / metrics.horizontalAdvance(text), kNarrowest, 1.0);
    text = metrics.elidedText(text, Qt::ElideRight, room / narrowed);
    painter.save();
    painter.translate(line.xTwips, line.yTwips + font.pixelSize() * kFontAscent);
    painter.scale(narrowed, 1);
    painter.drawText(QPointF(0, 0), text);
    painter.restore();
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
    for (const ReportLine& line : page.lines) {
        if (!line.text.empty()) {
            PaintLine(painter, line, paper.textWidth() / scale);
        }
    }
    return painter.end();
}

}  // namespace tarvix
