// Reads a PDF back with the tools of poppler.
#pragma once

#include <QImage>
#include <QRect>
#include <QString>
#include <QStringList>

#include <vector>

namespace tarvix::testing {

// One word of a page; places in points from the paper's upper left corner.
struct PdfWord {
    QString text;
    double left;
    double top;
    double right;
    double bottom;

    double Width() const { return right - left; }
};

struct PdfPage {
    double width;   // points
    double height;  // points
    std::vector<PdfWord> words;

    // The first of these words. Fails the test when it isn't there.
    const PdfWord& Word(const QString& text) const;

    // The words whose middle is on the same line as `word`, from left to right, joined by blanks.
    QString LineOf(const PdfWord& word) const;
};

// Whether the tools are there; a test that needs them is skipped otherwise.
bool CanReadPdf();

std::vector<PdfPage> ReadPdf(const QString& file);

// What the file says about itself: "Title:           ..." and so on, a line each.
QString AboutPdf(const QString& file);

// The names of the fonts, without the mark of a subset; an unembedded font is followed by " (not
// embedded)".
QStringList FontsOf(const QString& file);

// The pictures on the page, each as "WIDTHxHEIGHT at DPI".
QStringList PicturesOf(const QString& file);

// The first picture as the file holds it, dot by dot.
QImage PictureIn(const QString& file);

// The first page as a picture.
QImage PictureOfPage(const QString& file, int dotsPerInch);

// The smallest rectangle that holds every pixel of (nearly) this colour.
QRect BoundsOf(const QImage& picture, const QColor& color);

}  // namespace tarvix::testing
