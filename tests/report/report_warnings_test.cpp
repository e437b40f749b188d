// The warnings between the values and the notes.
#include "tests/report/report_page_fixture.h"

#include <algorithm>

namespace tarvix::testing {
namespace {

using ReportWarningsTest = ReportPageTest;

TEST_F(ReportWarningsTest, MessageAlone) {
    ReportSheet sheet = LiquidSheet();
    sheet.message = "Warning: Beta value exceeds standard range (0.15 to 0.67).";
    const Rows rows = RowsOf(sheet);
    ASSERT_EQ(rows.size(), 19U);
    EXPECT_EQ(rows.at(17), "");
    EXPECT_EQ(rows.at(18), "Warning: Beta value exceeds standard range (0.15 to 0.67).");
}

TEST_F(ReportWarningsTest, PlateWarningAlone) {
    ReportSheet sheet = LiquidSheet();
    sheet.plateWarning = true;
    sheet.plateWarning1 = "Orifice plate deflection";
    sheet.plateWarning2 = "should be checked.";
    const Rows rows = RowsOf(sheet);
    ASSERT_EQ(rows.size(), 19U);
    EXPECT_EQ(rows.at(17), "");
    EXPECT_EQ(rows.at(18), "Warning: Orifice plate deflection should be checked.");
}

TEST_F(ReportWarningsTest, CompressibilityBoxAlone) {
    ReportSheet sheet = GasSheet();
    sheet.zfCompWarning = CompressibilityWarning::May;
    const Rows rows = RowsOf(sheet);
    ASSERT_EQ(rows.size(), 26U);
    EXPECT_EQ(Rows(rows.begin() + 20, rows.end()),
              (Rows{
                  "",
                  "  **************************************************************",
                  "  * WARNING: A compressibility correction factor has not been  *",
                  "  *          entered.  At this pressure, no compressibility    *",
                  "  *          correction may result in erroneous computations.  *",
                  "  **************************************************************",
              }));
}

TEST_F(ReportWarningsTest, CompressibilityBoxIsForGasOnly) {
    ReportSheet sheet = SteamSheet();
    sheet.zfCompWarning = CompressibilityWarning::Will;
    EXPECT_EQ(RowsOf(sheet).size(), 18U);
    sheet = LiquidSheet();
    sheet.zfCompWarning = CompressibilityWarning::Will;
    EXPECT_EQ(RowsOf(sheet).size(), 17U);
}

TEST_F(ReportWarningsTest, AllWarningsTogether) {
    const Rows rows = RowsOf(FullestSheet());
    ASSERT_EQ(rows.size(), 29U);
    EXPECT_EQ(Rows(rows.begin() + 20, rows.end()),
              (Rows{
                  "",
                  "Warning: Beta value exceeds standard range (0.15 to 0.67).",
                  "Warning: Orifice plate deflection should be checked.",
                  "",
                  "  **************************************************************",
                  "  * WARNING: A compressibility correction factor has not been  *",
                  "  *          entered.  At this pressure, no compressibility    *",
                  "  *          correction will result in erroneous computations. *",
                  "  **************************************************************",
              }));
}

TEST_F(ReportWarningsTest, FullestPageEndsAboveTheNotes) {
    const ReportPage page = Page(FullestSheet());
    double bottom = 0;
    for (const ReportLine& line : page.lines) {
        if (line.font.sizePt == 12) {
            bottom = std::max(bottom, line.yTwips + 271.875);
        }
    }
    EXPECT_LE(bottom, 8000);
}

}  // namespace
}  // namespace tarvix::testing
