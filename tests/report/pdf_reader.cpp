#include "tests/report/pdf_reader.h"

#include <QColor>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace tarvix::testing {

namespace {

QByteArray OutputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0)
        << program.toStdString() << ": " << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

// The rows of the tables that the tools print, split at blanks, without the two rows of the head.
std::vector<QStringList> TableRows(const QByteArray& output) {
    QStringList lines = QString::fromUtf8(output).split('\n', Qt::SkipEmptyParts);
    lines = lines.mid(2);
    std::vector<QStringList> rows;
    for (const QString& line : lines) {
        rows.push_back(line.simplified().split(' '));
    }
    return rows;
}

// From the top down, on a line from left to right; the tool itself reads column after column.
bool ReadBefore(const PdfWord& a, const PdfWord& b) {
    const double lineA = std::round(a.bottom);
    const double lineB = std::round(b.bottom);
    return lineA != lineB ? lineA < lineB : a.left < b.left;
}

}  // namespace

const PdfWord& PdfPage::Word(const QString& text) const {
    static const PdfWord kNone{};
    const auto word = std::ranges::find(words, text, &PdfWord::text);
    if (word == words.end()) {
        ADD_FAILURE() << "no word " << text.toStdString();
        return kNone;
    }
    return *word;
}

QString PdfPage::LineOf(const PdfWord& word) const {
    const double middle = (word.top + word.bottom) / 2;
    QMap<double, QString> line;  // by their left edges
    for (const PdfWord& w : words) {
        if (w.top < middle && middle < w.bottom) {
            line.insert(w.left, w.text);
        }
    }
    return line.values().join(' ');
}

bool CanReadPdf() {
    const QStringList tools{"pdftotext", "pdffonts", "pdfimages", "pdftoppm"};
    return std::all_of(tools.begin(), tools.end(), [](const QString& tool) {
        return !QStandardPaths::findExecutable(tool).isEmpty();
    });
}

std::vector<PdfPage> ReadPdf(const QString& file) {
    static const QRegularExpression kPageOrWord(
        "<page width=\"(?<width>[^\"]+)\" height=\"(?<height>[^\"]+)\">|"
        "<word xMin=\"(?<left>[^\"]+)\" yMin=\"(?<top>[^\"]+)\" xMax=\"(?<right>[^\"]+)\" "
        "yMax=\"(?<bottom>[^\"]+)\">(?<text>[^<]*)</word>");
    std::vector<PdfPage> pages;
    auto matches =
        kPageOrWord.globalMatch(QString::fromUtf8(OutputOf("pdftotext", {"-bbox", file, "-"})));
    while (matches.hasNext()) {
        const auto match = matches.next();
        const auto number = [&match](const char* name) { return match.captured(name).toDouble(); };
        if (!match.captured("width").isEmpty()) {
            pages.push_back({number("width"), number("height"), {}});
            continue;
        }
        QString text = match.captured("text");
        text.replace("&lt;", "<").replace("&gt;", ">").replace("&quot;", "\"");
        text.replace("&amp;", "&");
        pages.back().words.push_back(
            {text, number("left"), number("top"), number("right"), number("bottom")});
    }
    for (PdfPage& page : pages) {
        std::sort(page.words.begin(), page.words.end(), ReadBefore);
    }
    return pages;
}

QString AboutPdf(const QString& file) {
    return QString::fromUtf8(OutputOf("pdfinfo", {"-enc", "UTF-8", file}));
}

QStringList FontsOf(const QString& file) {
    QStringList fonts;
    for (const QStringList& row : TableRows(OutputOf("pdffonts", {file}))) {
        // name type... encoding emb sub uni object ID: the type may hold blanks.
        QString name = row.first();
        name.remove(QRegularExpression("^[A-Z]{6}\\+"));
        fonts << (row.at(row.size() - 5) == "yes" ? name : name + " (not embedded)");
    }
    return fonts;
}

QStringList PicturesOf(const QString& file) {
    QStringList pictures;
    for (const QStringList& row : TableRows(OutputOf("pdfimages", {"-list", file}))) {
        // page num type width height color comp bpc enc interp object ID x-ppi y-ppi size ratio
        pictures << QString("%1x%2 at %3").arg(row.at(3), row.at(4), row.at(12));
    }
    return pictures;
}

QImage PictureIn(const QString& file) {
    const QTemporaryDir folder;
    OutputOf("pdfimages", {"-png", file, folder.filePath("picture")});
    return QImage(folder.filePath("picture-000.png"));
}

QImage PictureOfPage(const QString& file, int dotsPerInch) {
    return QImage::fromData(OutputOf(
        "pdftoppm", {"-r", QString::number(dotsPerInch), "-f", "1", "-l", "1", "-png", file}));
}

QRect BoundsOf(const QImage& picture, const QColor& color) {
    constexpr int kNearly = 24;
    QRect bounds;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            if (std::abs(qRed(pixel) - color.red()) < kNearly &&
                std::abs(qGreen(pixel) - color.green()) < kNearly &&
                std::abs(qBlue(pixel) - color.blue()) < kNearly) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}

}  // namespace tarvix::testing
