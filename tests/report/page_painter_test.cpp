// The page on paper: painted into PDF files and read back with poppler's tools.
#include "report/printer/page_painter.h"

#include "tests/core/named_row.h"
#include "tests/report/painted_page.h"

#include <gtest/gtest.h>
#include <tuple>

namespace tarvix::testing {
namespace {

// The papers that the page is made for, with the margins in points: 6% of the width and 4.5% of the
// height of 12240 x 15840 and 11906 x 16838 twips.
struct Paper : NamedRow {
    QPageSize::PageSizeId size;
    double width, height;
    double left, top;
};

class PaperTest : public PagePainterTest, public ::testing::WithParamInterface<Paper> {
  protected:
    const Paper& paper_ = GetParam();
};

INSTANTIATE_TEST_SUITE_P(
    Papers, PaperTest,
    ::testing::Values(Paper{{"Letter"}, QPageSize::Letter, 612, 792, 36.72, 35.64},
                      Paper{{"A4"}, QPageSize::A4, 595, 842, 35.718, 37.8855}),
    kRowName);

TEST_P(PaperTest, FullestPageStaysInsideTheMargins) {
    const PdfPage page = PageOf(FullestSheet(), paper_.size);
    EXPECT_NEAR(page.width, paper_.width, 0.5);
    EXPECT_NEAR(page.height, paper_.height, 0.5);
    ASSERT_GT(page.words.size(), 150U);
    for (const PdfWord& word : page.words) {
        SCOPED_TRACE(word.text.toStdString());
        EXPECT_GE(word.left, paper_.left - 0.1);
        EXPECT_GE(word.top, paper_.top - 0.1);
        EXPECT_LE(word.right, paper_.width - paper_.left + 0.1);
        EXPECT_LE(word.bottom, paper_.height - paper_.top + 0.1);
    }
}

TEST_P(PaperTest, FontsAreCourierNewOrItsEqualAndEmbedded) {
    ASSERT_TRUE(Paint(GasSheet(), paper_.size));
    const QStringList fonts = FontsOf(File());
    EXPECT_EQ(fonts.size(), 3);  // bold, italic, regular
    for (const QString& font : fonts) {
        EXPECT_TRUE(font.startsWith("CourierNew") || font.startsWith("LiberationMono") ||
                    font.startsWith("Cousine"))
            << font.toStdString();
        EXPECT_FALSE(font.contains("not embedded")) << font.toStdString();
    }
    EXPECT_EQ(fonts.filter("Bold").size(), 1);
    EXPECT_EQ(fonts.filter("Italic").size(), 1);
}

TEST_P(PaperTest, PrinterThatCannotReachThePapersEdge) {
    const PdfPage page = PageOf(GasSheet(), paper_.size, QMarginsF(18, 12, 18, 12));
    EXPECT_NEAR(page.Word("Orifice").left, paper_.left, 0.1);
    EXPECT_NEAR(page.Word("Note:").top, paper_.top + 400, 0.5);
}

// The logo that is installed: 1272 x 318 dots at 600 dots per inch are 152.64 x 38.16 points.
class PrintedLogoTest : public PagePainterTest {
  protected:
    void SetUp() override {
        PagePainterTest::SetUp();
        ASSERT_TRUE(logo_.load(TARVIX_LOGOS "/BrindleLogo.jpg"));
        ASSERT_TRUE(Paint(GasSheet(), QPageSize::Letter));
    }
};

TEST_F(PrintedLogoTest, KeepsEveryDotAndIsWhiteWhereThereIsNoInk) {
    EXPECT_EQ(PicturesOf(File()), QStringList{"1272x318 at 600"});
    const QImage printed = PictureIn(File());
    ASSERT_EQ(printed.size(), logo_.size());
    int white = 0;
    for (int y = 0; y < printed.height(); ++y) {
        for (int x = 0; x < printed.width(); ++x) {
            const QRgb dot = printed.pixel(x, y);
            const int lightest = std::min({qRed(dot), qGreen(dot), qBlue(dot)});
            white += lightest == 255 ? 1 : 0;
            // Ink is what it was, dot by dot; the rest is white.
            ASSERT_TRUE(lightest == 255 || (dot == logo_.pixel(x, y) && lightest < 240))
                << x << ", " << y << ": " << std::hex << dot;
        }
    }
    // Two thirds of the drawing are white.
    EXPECT_NEAR(white, printed.width() * printed.height() * 0.67, 4000);
}

TEST_F(PrintedLogoTest, InkBeginsAtTheTextsCornerAndStaysClearOfTheTitle) {
    constexpr double kDots = 288.0 / 72;  // a point
    const QImage top = PictureOfPage(File(), 288).copy(0, 0, 2448, 500);
    const QRect blue = BoundsOf(top, QColor(0x0b, 0x3f, 0x73));
    EXPECT_NEAR(blue.left(), 36.72 * kDots, 1.5);
    EXPECT_NEAR(blue.top(), 35.64 * kDots, 1.5);
    // The drawing is 618 x 136 of the picture's 640 x 160 units.
    EXPECT_NEAR(blue.width(), 152.64 * 618 / 640 * kDots, 2);
    EXPECT_NEAR(blue.height(), 38.16 * 136 / 160 * kDots, 2);
    // The title's capitals begin about 42.8 points below the corner: ten points of air.
    EXPECT_GT(BoundsOf(top, Qt::black).top() - blue.bottom(), 9 * kDots);
}

TEST_F(PagePainterTest, BlanksOfGroupedDigitsAreAsWideAsACharacter) {
    Module1 french(platform_, kFrance);
    ReportSheet sheet = LiquidSheet();
    sheet.inputs.flow = "12345";
    QPdfWriter writer(File());
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait, {}));
    ASSERT_TRUE(PaintReport(writer, ComposeReport(sheet, french), logo_));
    const PdfPage page = ReadPdf(File()).at(0);
    EXPECT_NEAR(page.Word("345,00").right, 36.72 + 40 * kCharacter12, 0.2);
    EXPECT_NEAR(page.Word("12").left, 36.72 + 31 * kCharacter12, 0.2);
    EXPECT_EQ(FontsOf(File()).size(), 3);  // no other font had to help out
}

// Between which parts of its size the page is on paper of other sizes, and how far from the lower
// margin it ends at the most; where paper is wide enough, but too short, it ends there.
TEST_F(PagePainterTest, OtherPaperGetsTheWholePageAsLargeAsItFits) {
    const std::tuple<QPageSize::PageSizeId, double, double, double> papers[] = {
        {QPageSize::A5, 0.6, 0.8, 800},
        {QPageSize::EnvelopeInvite, 0.6, 0.99, 1},
        {QPageSize::A3, 0.99, 1.01, 800}};
    for (const auto& [size, least, most, room] : papers) {
        SCOPED_TRACE(size);
        const PdfPage page = PageOf(FullestSheet(), size);
        EXPECT_EQ(page.LineOf(page.Word("2024")).left(11), "05 Mar 2024");
        double bottom = 0;
        for (const PdfWord& word : page.words) {
            EXPECT_LE(word.right, page.width * 0.94 + 0.2) << word.text.toStdString();
            bottom = std::max(bottom, word.bottom);
        }
        EXPECT_LE(bottom, page.height * 0.955 + 0.2);
        EXPECT_GE(bottom, page.height * 0.955 - room);
        const double scale = page.Word("Customer:").Width() / (9 * kCharacter12);
        EXPECT_GT(scale, least);
        EXPECT_LT(scale, most);
    }
}

TEST_F(PagePainterTest, DeviceThatCannotBePaintedOn) {
    QPdfWriter writer(folder_.filePath("no such folder/page.pdf"));
    EXPECT_FALSE(PaintReport(writer, ComposeReport(GasSheet(), module_), logo_));
}

}  // namespace
}  // namespace tarvix::testing
