#include "report/printer/printed_text.h"

#include <QFontMetricsF>
#include <QList>
#include <QPainter>
#include <QPointF>
#include <QTextBoundaryFinder>
#include <QTextCharFormat>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cmath>

namespace tarvix {

namespace {

// Wider than any text; the toolkit's own limit is some millions.
constexpr double kNoLimit = 5e6;

constexpr QChar kEllipsis(0x2026);

// One character with the marks that stand on it.
struct Character {
    qsizetype begin;
    qsizetype length;
    char32_t code;
};

char32_t CodeAt(const QString& text, qsizetype place) {
    const QChar first = text.at(place);
    return first.isHighSurrogate() && place + 1 < text.size()
               ? QChar::surrogateToUcs4(first, text.at(place + 1))
               : char32_t{first.unicode()};
}

QList<Character> CharactersOf(const QString& text) {
    QList<Character> characters;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype begin = 0;
    for (qsizetype end = finder.toNextBoundary(); end > begin; end = finder.toNextBoundary()) {
        characters.append({begin, end - begin, CodeAt(text, begin)});
        begin = end;
    }
    return characters;
}

// Scripts whose letters stand apart, so that each may have a cell of its own.
bool HasCells(char32_t code) {
    switch (QChar::script(code)) {
        case QChar::Script_Common:
        case QChar::Script_Inherited:
        case QChar::Script_Latin:
        case QChar::Script_Greek:
        case QChar::Script_Cyrillic:
        case QChar::Script_Armenian:
        case QChar::Script_Georgian:
        case QChar::Script_Hebrew:
        case QChar::Script_Han:
        case QChar::Script_Hiragana:
        case QChar::Script_Katakana:
        case QChar::Script_Bopomofo:
        case QChar::Script_Hangul:
            return true;
        default:
            return false;
    }
}

// What shows nothing and steers the characters around it (joiners, directions).
bool IsSign(char32_t code) {
    return QChar::category(code) == QChar::Other_Format;
}

QFont FontOf(const ReportFont& reportFont) {
    QFont font = ReportFontFamily();
    font.setPixelSize(static_cast<int>(std::lround(reportFont.sizePt * kTwipsPerPoint)));
    font.setBold(reportFont.bold);
    font.setItalic(reportFont.italic);
    return font;
}

bool IsInSomeFont(const QFontMetricsF& metrics, char32_t code) {
    return code == U' ' || IsSign(code) || metrics.inFontUcs4(code);
}

// Columns stay columns: a blank of every kind (locales group digits with narrow ones) is a plain
// one.
QString Printable(QString text, const QFont& font) {
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return c.isSpace(); }, QChar(' '));
    while (text.endsWith(' ')) {
        text.chop(1);
    }
    const QFontMetricsF metrics(font);
    QString printable;
    for (const char32_t code : text.toStdU32String()) {
        printable += IsInSomeFont(metrics, code) ? QString::fromUcs4(&code, 1) : QString('?');
    }
    return printable;
}

// A stretch of text that stands in cells, or one that runs as its script is written.
struct Stretch {
    qsizetype begin = 0;
    qsizetype length = 0;
    bool runs = false;
};

bool IsLetterFromLeft(char32_t code) {
    return QChar::direction(code) == QChar::DirL && QChar::isLetter(code);
}

// Blanks, digits and signs between two words of a script that runs belong to them, so that a phrase
// keeps its order; those before the first and behind the last stand in cells.
QList<Stretch> StretchesOf(const QString& text) {
    QList<Stretch> stretches;
    qsizetype undecided = 0;  // characters of the last stretch that may yet belong to what runs
    for (const Character& character : CharactersOf(text)) {
        const bool runs = !HasCells(character.code);
        if (runs && stretches.size() > 1 && undecided > 0 && !stretches.last().runs) {
            const Stretch between = stretches.takeLast();
            stretches.last().length += between.length;
        }
        if (stretches.isEmpty() || stretches.last().runs != runs) {
            stretches.append({character.begin, 0, runs});
            undecided = runs ? 0 : 1;
        }
        if (!runs && IsLetterFromLeft(character.code)) {
            undecided = 0;
        }
        stretches.last().length += character.length;
    }
    return stretches;
}

QFont WithoutFallback(QFont font) {
    font.setStyleStrategy(QFont::NoFontMerging);
    return font;
}

// Gives every character of a text in cells its width, by what is added behind it.
class CellSetter {
  public:
    CellSetter(const QString& text, const QFont& font)
        : text_(text),
          font_(font),
          metrics_(font),
          own_(WithoutFallback(font)),
          cell_(font.pixelSize() * kFontAdvance),
          ownSpacing_(cell_ - own_.horizontalAdvance(QChar('0'))) {}

    QList<QTextLayout::FormatRange> Formats();

  private:
    double SpacingOf(const Character& character) const;

    const QString& text_;
    QFont font_;
    QFontMetricsF metrics_;
    QFontMetricsF own_;
    double cell_;
    double ownSpacing_;
};

// A character from another font fills up as many cells as it needs; a hair's breadth is no need.
double CellSetter::SpacingOf(const Character& character) const {
    if (own_.inFontUcs4(character.code)) {
        return ownSpacing_;
    }
    constexpr double kHair = 0.15;
    const double width = metrics_.horizontalAdvance(text_.mid(character.begin, character.length));
    return std::max(1.0, std::ceil(width / cell_ - kHair)) * cell_ - width;
}

QList<QTextLayout::FormatRange> CellSetter::Formats() {
    QList<QTextLayout::FormatRange> formats;
    double last = 0;
    for (const Character& character : CharactersOf(text_)) {
        const double spacing = SpacingOf(character);
        if (formats.isEmpty() || spacing != last) {
            QFont spaced = font_;
            spaced.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
            QTextLayout::FormatRange range;
            range.start = static_cast<int>(character.begin);
            range.length = 0;
            range.format.setFont(spaced);
            formats.append(range);
            last = spacing;
        }
        formats.last().length += static_cast<int>(character.length);
    }
    return formats;
}

// Lays the text out, stretch by stretch; `use` gets each stretch's layout, its line and its place.
// Returns the width of the whole.
template <typename Use>
double LayOut(const QString& text, const ReportFont& reportFont, Use use) {
    const QFont font = FontOf(reportFont);
    const double cell = font.pixelSize() * kFontAdvance;
    QTextOption option;
    option.setTextDirection(Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    double x = 0;
    for (const Stretch& stretch : StretchesOf(text)) {
        const QString part = text.mid(stretch.begin, stretch.length);
        QTextLayout layout(part, font);
        // Blanks at the end of a stretch count.
        option.setFlags(QTextOption::IncludeTrailingSpaces);
        layout.setTextOption(option);
        if (!stretch.runs) {
            layout.setFormats(CellSetter(part, font).Formats());
        }
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(kNoLimit);
        layout.endLayout();
        use(layout, line, x);
        const double width = line.naturalTextWidth();
        x += stretch.runs ? std::ceil(width / cell) * cell : width;
    }
    return x;
}

}  // namespace

QFont ReportFontFamily() {
    const QString family = QString::fromUtf8(kReportFontFamily.data(),
                                             static_cast<qsizetype>(kReportFontFamily.size()));
    QFont font;
    font.setFamilies({family, "Liberation Mono", "Cousine", "Nimbus Mono PS", "Courier"});
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

bool CanBePrinted(const QString& text) {
    const QFontMetricsF metrics(ReportFontFamily());
    const std::u32string codes = text.toStdU32String();
    return std::all_of(codes.begin(), codes.end(),
                       [&](char32_t code) { return IsInSomeFont(metrics, code); });
}

PrintedText::PrintedText(const QString& text, const ReportFont& font)
    : text_(Printable(text, FontOf(font))),
      font_(font),
      width_(LayOut(text_, font_, [](const auto&...) {})) {}

PrintedText PrintedText::CutTo(double room) const {
    if (width_ <= room) {
        return *this;
    }
    const QList<Character> characters = CharactersOf(text_);
    const auto first = [&](qsizetype count) {
        return PrintedText(
            text_.left(
                count == 0 ? 0 : characters.at(count - 1).begin + characters.at(count - 1).length) +
                kEllipsis,
            font_);
    };
    // The most characters that leave room for the ellipsis.
    qsizetype fits = 0;
    qsizetype tooMany = characters.size();
    while (tooMany - fits > 1) {
        const qsizetype middle = (fits + tooMany) / 2;
        (first(middle).Width() <= room ? fits : tooMany) = middle;
    }
    return first(fits);
}

void PrintedText::Paint(QPainter& painter, double x, double y, double narrowed) const {
    painter.save();
    painter.translate(x, y + font_.sizePt * kTwipsPerPoint * kFontAscent);
    painter.scale(narrowed, 1);
    LayOut(text_, font_, [&](const QTextLayout& layout, const QTextLine& line, double place) {
        layout.draw(&painter, QPointF(place, -line.ascent()));
    });
    painter.restore();
}

}  // namespace tarvix
