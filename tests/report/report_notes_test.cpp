// The lower half of the page: notes and footer.
#include "tests/report/report_page_fixture.h"

namespace tarvix::testing {
namespace {

// Line heights in twips: points times 20 times Courier New's 1.1328125.
constexpr double kHeight10 = 226.5625;
constexpr double kHeight8 = 181.25;
constexpr double kNotesTop = 8000;
constexpr double kFooterTop = kNotesTop + 19 * kHeight10;

using ReportNotesTest = ReportPageTest;
using ReportFooterTest = ReportPageTest;

struct Piece {
    int row;  // below `top`, in lines of `height`
    std::string text;
    bool bold = false;
    int column = 0;
};

void ExpectPieces(const std::vector<ReportLine>& lines, const std::vector<Piece>& expected,
                  double top, double height, int sizePt, bool italic) {
    ASSERT_GT(lines.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(lines[i].text, expected[i].text);
        EXPECT_NEAR(lines[i].yTwips, top + expected[i].row * height, 0.01);
        // 8 points, 20 twips each, 1229/2048 of that a character
        EXPECT_DOUBLE_EQ(lines[i].xTwips, expected[i].column * 96.015625 * sizePt / 8);
        EXPECT_EQ(lines[i].font.sizePt, sizePt);
        EXPECT_EQ(lines[i].font.bold, expected[i].bold);
        EXPECT_EQ(lines[i].font.italic, italic);
    }
}

TEST_F(ReportNotesTest, TextsAndPlaces) {
    const std::vector<Piece> expected{
        {0, "Note: Values for the beta ratio are approximate, typically within"},
        {1, "            2% - 5% for gases and steam"},
        {2, "            1% for liquids"},
        {3, "      The ASME MFC-3M 1989 equation is used in this program.  However,"},
        {4, "      several equation factors are assumed and can directly affect the"},
        {5, "      calculation results"},
        {6, "            Coefficient of Thermal Expansion:    1.0"},
        {7, "            Discharge Coefficient:               0.6"},
        {8, "            Base Temperature:                    60 Deg F  (15.56 Deg C)"},
        {9, "            Base Pressure:                       14.7 PSIA (101.3 kPa-A)"},
        {10, "            Pressure Tap Location:               Flange Tap"},
        {12, "      Also, this program does not take into consideration two calculation"},
        {13, "      variables - the Reynolds Number correction and the expansion factor."},
        {15, "      If it is necessary to have a closely specified beta ratio, differential"},
        {16, "      pressure, or flow rate, please consult your Brindle representative for"},
        {17, "      assistance"},
    };
    const std::vector<ReportLine> lines = LinesFrom(Page(LiquidSheet()), kNotesTop);
    ExpectPieces(lines, expected, kNotesTop, kHeight10, 10, true);
    EXPECT_GE(lines.at(expected.size()).yTwips, kFooterTop) << "the lines between are empty";
}

TEST_F(ReportNotesTest, SameHeightWhateverStandsAbove) {
    for (const ReportSheet& sheet : {LiquidSheet(), GasSheet(), SteamSheet(), FullestSheet()}) {
        const std::vector<ReportLine> lines = LinesFrom(Page(sheet), kNotesTop - 1);
        EXPECT_EQ(lines.front().text,
                  "Note: Values for the beta ratio are approximate, typically within");
        EXPECT_EQ(lines.front().yTwips, 8000);
    }
}

TEST_F(ReportFooterTest, FourColumnsOnFourLines) {
    const std::vector<ReportLine> lines = LinesFrom(Page(GasSheet()), kFooterTop);
    ASSERT_EQ(lines.size(), 6U);
    ExpectPieces(
        lines,
        {{1,
          "Brindle Headquarters        Port Alder, TX              Kestrel Bay, CA             "
          "Fenwick Mills, NJ",
          true},
         {2, "Marlow Falls, OH            ", true},
         {2, "Tel. (555) 555-0110         Tel. (555) 555-0120         Tel. (555) 555-0130", false,
          28},
         {3,
          "Tel. (555) 555-0100         Fax  (555) 555-0111         Fax  (555) 555-0121         "
          "Fax  (555) 555-0131"},
         {4, "Fax  (555) 555-0101"}},
        kFooterTop, kHeight8, 8, false);
}

TEST_F(ReportFooterTest, DateAndWebSite) {
    const ReportLine last = Page(GasSheet()).lines.back();
    // The reference in the middle of 66 columns.
    EXPECT_EQ(last.text, "05 Mar 2024" + std::string(18, ' ') + "Web site: www.brindle.example" +
                             std::string(19, ' '));
    EXPECT_EQ(last.font.sizePt, 10);
    EXPECT_TRUE(last.font.bold);
    EXPECT_FALSE(last.font.italic);
    // One empty line, four lines, two empty lines of 8 points above it.
    EXPECT_NEAR(last.yTwips, kFooterTop + 7 * kHeight8, 0.01);
}

}  // namespace
}  // namespace tarvix::testing
