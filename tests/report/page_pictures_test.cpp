// The printed page of each fluid against a picture that is kept: what stands a column further, a
// line lower, or in another letter is seen, wherever it is.
#include "tests/core/named_row.h"
#include "tests/report/painted_page.h"
#include "tests/window/kept_picture.h"

#include <QFontInfo>

namespace tarvix::testing {
namespace {

constexpr int kDotsPerInch = 72;

// Another processor may round a shade otherwise at the edge of a letter. A letter that has moved by
// a column changes more dots than that, and by more.
constexpr int kShades = 64;
constexpr int kStrayDots = 8;

struct PictureCase : NamedRow {
    ReportSheet (*sheet)();
    QPageSize::PageSizeId paper;
};

ReportSheet LiquidFromDensity() {
    ReportSheet sheet = LiquidSheet();
    sheet.inputs.sgCalculated = true;
    sheet.inputs.density = "61.45";
    return sheet;
}

ReportSheet SteamFromTable() {
    ReportSheet sheet = SteamSheet();
    sheet.inputs.steamFromTable = true;
    return sheet;
}

class PagePictureTest : public PagePainterTest, public ::testing::WithParamInterface<PictureCase> {
  protected:
    void SetUp() override {
        PagePainterTest::SetUp();
        QFont font;
        font.setFamily("Courier New");
        if (QFontInfo(font).family() == "Courier New") {
            GTEST_SKIP() << "the pictures are of Liberation Mono, and Courier New is installed";
        }
        ASSERT_TRUE(logo_.load(TARVIX_LOGOS "/BrindleLogo.jpg"));
    }

    QImage Printed(const ReportSheet& sheet) {
        EXPECT_TRUE(Paint(sheet, GetParam().paper));
        return PictureOfPage(File(), kDotsPerInch).convertToFormat(QImage::Format_Grayscale8);
    }
};

INSTANTIATE_TEST_SUITE_P(
    Pages, PagePictureTest,
    ::testing::Values(PictureCase{{"liquid_letter"}, LiquidFromDensity, QPageSize::Letter},
                      PictureCase{{"liquid_a4"}, LiquidFromDensity, QPageSize::A4},
                      PictureCase{{"gas_letter"}, FullestSheet, QPageSize::Letter},
                      PictureCase{{"gas_a4"}, FullestSheet, QPageSize::A4},
                      PictureCase{{"steam_letter"}, SteamFromTable, QPageSize::Letter},
                      PictureCase{{"steam_a4"}, SteamFromTable, QPageSize::A4}),
    kRowName);

TEST_P(PagePictureTest, IsTheOneThatIsKept) {
    ExpectKeptPicture(Printed(GetParam().sheet()), TARVIX_PAGE_PICTURES, GetParam().name, kShades,
                      kStrayDots);
}

// The comparison would see the smallest thing that can move: the unit of a single line, a column.
TEST_P(PagePictureTest, ShiftOfOneColumnIsSeen) {
    ReportSheet sheet = GetParam().sheet();
    sheet.pipeIdUnit = "Inches";
    const QImage printed = Printed(sheet);
    sheet.oriBoreUnit = " " + sheet.oriBoreUnit;
    EXPECT_GT(DotsThatDiffer(Printed(sheet), printed, kShades), 4 * kStrayDots);
    sheet = GetParam().sheet();
    sheet.inputs.beta = "1";  // 1.00000 in place of the value: other letters in the same cells
    EXPECT_GT(DotsThatDiffer(Printed(sheet), printed, kShades), 2 * kStrayDots);
}

}  // namespace
}  // namespace tarvix::testing
