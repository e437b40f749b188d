// Customer lines and months in scripts that the report's own font lacks, with the small fonts of
// the package list: Lohit Devanagari, Motoya Cedar, KacstOne.
#include "report/printer/printed_text.h"
#include "tests/report/painted_page.h"

#include <QList>
#include <QPainter>

#include <cmath>

namespace tarvix::testing {
namespace {

class AnyScriptTest : public PagePainterTest {
  protected:
    // A page whose second customer line is `text` and a Latin word behind it.
    PdfPage PageWith(const char* text, const char* behind = "Unit-9") {
        module_.CustLine2 = std::string(text) + " " + behind;
        return PageOf(LiquidSheet(), QPageSize::Letter);
    }

    // How much of the customer line between two columns is ink, from 0 to 1.
    double InkBetween(int firstColumn, int lastColumn) const {
        constexpr int kDots = 288;
        constexpr double kPoint = kDots / 72.0;
        const QImage page = PictureOfPage(File(), kDots);
        // The second customer line is the seventh of the page.
        const double top = 35.64 + 6 * 12 * 1.1328125;
        const QRect place(static_cast<int>((36.72 + firstColumn * kCharacter12) * kPoint),
                          static_cast<int>(top * kPoint),
                          static_cast<int>((lastColumn - firstColumn) * kCharacter12 * kPoint),
                          static_cast<int>(12 * 1.1328125 * kPoint));
        double ink = 0;
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                ink += 255 - qGray(page.pixel(x, y));
            }
        }
        return ink / 255 / place.width() / place.height();
    }

    static double ColumnOf(const PdfWord& word) { return (word.left - 36.72) / kCharacter12; }
};

#define SKIP_WITHOUT_FONT(text)                              \
    if (!CanBePrinted(QString::fromUtf8(text))) {            \
        GTEST_SKIP() << "no font here has these characters"; \
    }

TEST_F(AnyScriptTest, GreekAndCyrillicStandInTheCellsOfTheReportsFont) {
    for (const char* text : {"Διυλιστήριο", "Нефтезавод"}) {
        const PdfPage page = PageWith(text);
        const PdfWord& word = page.Word(QString::fromUtf8(text));
        EXPECT_NEAR(ColumnOf(word), 10, 0.02);
        EXPECT_NEAR(word.Width() / kCharacter12,
                    static_cast<double>(QString::fromUtf8(text).size()), 0.03);
        EXPECT_EQ(FontsOf(File()).size(), 3);
    }
}

TEST_F(AnyScriptTest, JapaneseTakesTwoCellsForACharacter) {
    SKIP_WITHOUT_FONT("製油所");
    const PdfPage page = PageWith("製油所");
    EXPECT_NEAR(ColumnOf(page.Word("Unit-9")), 10 + 2 * 3 + 1, 0.02);
    EXPECT_EQ(page.LineOf(page.Word("Unit-9")).remove(' '), QString::fromUtf8("製油所Unit-9"));
    EXPECT_GT(InkBetween(10, 16), 0.05);
    EXPECT_LT(InkBetween(10, 16), 0.45);
}

TEST_F(AnyScriptTest, ScriptsWhoseLettersJoinAreReadAndWhatFollowsStandsInACell) {
    for (const char* text : {"रिफ़ाइनरी मुम्बई", "مصفاة الشمال"}) {
        SKIP_WITHOUT_FONT(text);
        const PdfPage page = PageWith(text);
        const double column = ColumnOf(page.Word("Unit-9"));
        EXPECT_NEAR(column, std::round(column), 0.05) << text;
        EXPECT_GT(column, 10 + 5) << text;
        EXPECT_LT(column, 10 + QString::fromUtf8(text).size() + 3) << text;
        const int end = static_cast<int>(column) - 1;
        EXPECT_GT(InkBetween(10, end), 0.03) << text;
        EXPECT_LT(InkBetween(10, end), 0.4) << text;
        EXPECT_GT(FontsOf(File()).size(), 3) << text;  // another font helped out
    }
}

// The columns of dots in which a text has ink.
QList<int> InkedColumns(const QString& text) {
    QImage picture(3000, 400, QImage::Format_RGB32);
    picture.fill(Qt::white);
    {
        QPainter painter(&picture);
        PrintedText(text, kReportFont).Paint(painter, 20, 20, 1);
    }
    QList<int> inked;
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y) {
            if (qGray(picture.pixel(x, y)) < 128) {
                inked << x;
                break;
            }
        }
    }
    return inked;
}

// Arabic letters change their shape and touch each other when they join.
TEST_F(AnyScriptTest, ArabicLettersJoin) {
    SKIP_WITHOUT_FONT("س");
    const QList<int> inked = InkedColumns(QString::fromUtf8("سسسسسس"));
    ASSERT_GT(inked.size(), 300);
    EXPECT_EQ(inked.last() - inked.first() + 1, inked.size()) << "there are gaps";
}

// Two words of Arabic, a stroke and a long one, with one gap between them: the first word stands at
// the right, and nothing is missing of either.
TEST_F(AnyScriptTest, ArabicPhraseIsReadFromTheRight) {
    SKIP_WITHOUT_FONT("اس");
    const QString word = QString::fromUtf8("سسسسسس");
    const QList<int> inked = InkedColumns(QString::fromUtf8("ا ") + word);
    QList<int> gaps;
    for (qsizetype i = 1; i < inked.size(); ++i) {
        if (inked[i] > inked[i - 1] + 1) {
            gaps << static_cast<int>(i);
        }
    }
    ASSERT_EQ(gaps.size(), 1);
    EXPECT_EQ(gaps.first(), InkedColumns(word).size());
    EXPECT_LT(inked.size() - gaps.first(), 60) << "the stroke";
}

// Two words of a script whose letters join are laid out as one text, whatever stands between them;
// the whole takes full cells.
TEST_F(AnyScriptTest, BlanksBetweenJoiningWordsAreTheirOwnFontsBlanks) {
    QFont font = ReportFontFamily();
    font.setPixelSize(static_cast<int>(kReportFont.sizePt * kTwipsPerPoint));
    const double cell = font.pixelSize() * kFontAdvance;
    for (const char* text : {"मुम्बई   मुम्बई", "मुम्बई 12 मुम्बई", "मुम्बई - मुम्बई मुम्बई"}) {
        SKIP_WITHOUT_FONT(text);
        const QString phrase = QString::fromUtf8(text);
        const double width = QFontMetricsF(font).horizontalAdvance(phrase);
        EXPECT_NEAR(PrintedText(phrase, kReportFont).Width(), std::ceil(width / cell) * cell, 0.01)
            << text;
    }
}

TEST_F(AnyScriptTest, MonthInAnotherScriptLeavesTheWebSiteWhereItIs) {
    SKIP_WITHOUT_FONT("मार्च");
    ReportSheet sheet = LiquidSheet();
    const double there = PageOf(sheet, QPageSize::Letter).Word("Web").left;
    sheet.date = "05 मार्च 2024";
    const PdfPage page = PageOf(sheet, QPageSize::Letter);
    // A month with more letters than three moves it by whole columns of 10 point text.
    const double columns = (page.Word("Web").left - there) / (kCharacter12 * 10 / 12);
    EXPECT_NEAR(columns, std::round(columns), 0.05);
    EXPECT_LT(std::abs(columns), 4);
    EXPECT_TRUE(page.LineOf(page.Word("2024")).contains("www.brindle.example"));
    EXPECT_EQ(FontsOf(File()).size(), 4);  // only the month is in another font
}

// A script of which no font is in the package list.
TEST_F(AnyScriptTest, CharactersWithoutAFontAreQuestionMarks) {
    // The last two codes that there are: they are nobody's.
    const PdfPage page = PageWith("\xF4\x8F\xBF\xBC\xF4\x8F\xBF\xBD");
    EXPECT_EQ(page.LineOf(page.Word("Unit-9")), "?? Unit-9");
    EXPECT_NEAR(ColumnOf(page.Word("Unit-9")), 10 + 3, 0.02);
    EXPECT_TRUE(CanBePrinted("05 Mar 2024"));
}

TEST_F(AnyScriptTest, LongJapaneseLineIsNarrowedAndCutAsOthers) {
    SKIP_WITHOUT_FONT("流");
    module_.CustLine1 = QString::fromUtf8("流").repeated(40).toStdString();  // 80 cells
    PdfPage page = PageOf(LiquidSheet(), QPageSize::A4);
    EXPECT_NEAR(page.Word("FE-4102").Width() / 7, kCharacter12 * 62 / 80, 0.03);
    module_.CustLine1 =
        QString::fromUtf8("流").repeated(52).toStdString();  // 104 cells: one too many
    page = PageOf(LiquidSheet(), QPageSize::A4);
    EXPECT_TRUE(page.LineOf(page.Word("Customer:")).endsWith(QChar(0x2026)));
}

}  // namespace
}  // namespace tarvix::testing
