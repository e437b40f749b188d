#include "report/page/page_writer.h"

#include "tests/report/report_page_fixture.h"

#include <gtest/gtest.h>
#include <string>

namespace tarvix::testing {
namespace {

std::string Ones(std::size_t count) {
    return std::string(count, '1');
}

TEST(ValueLineTest, ValueEndsInColumn40) {
    EXPECT_EQ(ValueLine("Flow Rate", "1,234.50"), "Flow Rate" + std::string(23, ' ') + "1,234.50");
    EXPECT_EQ(ValueLine("Flow Rate", "1,234.50").size(), 40U);
    EXPECT_EQ(ValueLine("Beta", ""), "Beta" + std::string(36, ' '));
}

TEST(ValueLineTest, TooLongIsJoinedByOneBlank) {
    const std::string label(20, 'L');
    EXPECT_EQ(ValueLine(label, Ones(19)), label + " " + Ones(19)) << "just fills the columns";
    EXPECT_EQ(ValueLine(label, Ones(20)), label + Ones(20)) << "just fills the columns";
    EXPECT_EQ(ValueLine(label, Ones(21)), label + " " + Ones(21));
    EXPECT_EQ(ValueLine("L", Ones(60)), "L " + Ones(60));
}

TEST(ValueLineTest, CountsCharactersNotBytes) {
    // A narrow no-break space is three bytes, a right quotation mark too.
    EXPECT_EQ(ValueLine("Flow", "1\u202F234,50"), "Flow" + std::string(28, ' ') + "1\u202F234,50");
    EXPECT_EQ(CharacterCount("1\u2019234"), 5);
    EXPECT_EQ(CharacterCount(""), 0);
    EXPECT_EQ(CharacterCount("\u00C4\U0001F600z"), 3);
}

TEST(PadRightTest, FillsUpOrLeavesAlone) {
    EXPECT_EQ(PadRight("ab", 4), "ab  ");
    EXPECT_EQ(PadRight("\u00E4b", 4), "\u00E4b  ");
    EXPECT_EQ(PadRight("abcd", 4), "abcd");
    EXPECT_EQ(PadRight("abcde", 4), "abcde");
}

TEST(OnOneLineTest, BreaksAndControlCharactersBecomeBlanks) {
    EXPECT_EQ(OnOneLine("a\r\nb"), "a b");
    EXPECT_EQ(OnOneLine("a\nb\rc\td"), "a b c d");
    EXPECT_EQ(OnOneLine("a\n\rb"), "a  b");
    EXPECT_EQ(OnOneLine("a\u0085b\u2028c\u2029d"), "a b c d");
    EXPECT_EQ(OnOneLine(std::string_view("a\0b\x1F\x7F", 5)), "a b  ");
    EXPECT_EQ(OnOneLine("  \u00C4 \u202F "), "  \u00C4 \u202F ");
    EXPECT_EQ(OnOneLine(""), "");
}

TEST(PageWriterTest, GoesOnBelowAndBeside) {
    PageWriter writer;
    writer.SetFont({12, true, false});
    writer.EmptyLines(2);
    writer.PrintPiece("ab");
    writer.SetFont({8, false, false});
    writer.Print("c");
    writer.Print("");
    writer.Print("d");
    writer.MoveTo(8000);
    writer.PrintPiece("e");

    EXPECT_EQ(PrintedLines(writer.Page()), (std::vector<std::string>{"", "", "abc", "", "d", "e"}));
    constexpr double kRow12 = 271.875;
    const ReportLine expected[] = {{"ab", {12}, 0, 2 * kRow12},
                                   {"c", {8}, 2 * 240 * 0.60009765625, 2 * kRow12},
                                   {"d", {8}, 0, 2 * kRow12 + 2 * 181.25},
                                   {"e", {8}, 0, 8000}};
    const std::vector<ReportLine> lines = LinesFrom(writer.Page(), 0);
    ASSERT_EQ(lines.size(), std::size(expected));
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i].text, expected[i].text);
        EXPECT_EQ(lines[i].font.sizePt, expected[i].font.sizePt) << lines[i].text;
        EXPECT_NEAR(lines[i].xTwips, expected[i].xTwips, 1e-6) << lines[i].text;
        EXPECT_NEAR(lines[i].yTwips, expected[i].yTwips, 1e-6) << lines[i].text;
    }
}

TEST(PageWriterTest, OnlyWhatTheCustomerTypedIsMarked) {
    PageWriter writer;
    writer.Print("Title");
    writer.PrintCustomerLine("Tag: FE-4102");
    ASSERT_EQ(writer.Page().lines.size(), 2U);
    EXPECT_FALSE(writer.Page().lines[0].customer);
    EXPECT_TRUE(writer.Page().lines[1].customer);
}

}  // namespace
}  // namespace tarvix::testing
