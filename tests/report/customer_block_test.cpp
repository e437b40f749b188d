// The three customer lines on paper: one block, whatever their lengths.
#include "report/printer/customer_lines.h"
#include "tests/report/painted_page.h"

namespace tarvix::testing {
namespace {

class CustomerBlockTest : public PagePainterTest {
  protected:
    PdfPage PageFor(const std::string& first, const std::string& second, const std::string& tag,
                    QPageSize::PageSizeId paper = QPageSize::A4) {
        module_.CustLine1 = first;
        module_.CustLine2 = second;
        module_.TagText = tag;
        return PageOf(LiquidSheet(), paper);
    }
};

constexpr double kLeft = 595 * 0.06;  // of A4, in points
constexpr double kFirstColumn = kLeft + 10 * kCharacter12;

// `count` letters.
std::string Letters(char letter, std::size_t count) {
    return std::string(count, letter);
}

double WidthOfCharacter(const PdfWord& word) {
    return (word.right - word.left) / static_cast<double>(word.text.size());
}

// As wide as the words in front, on smaller paper, too.
TEST_F(CustomerBlockTest, SixtyTwoCharactersStandAtFullWidth) {
    const std::string longest = Letters('M', 62);
    for (const auto paper :
         {QPageSize::A4, QPageSize::A5, QPageSize::ExecutiveStandard, QPageSize::A6}) {
        SCOPED_TRACE(paper);
        const PdfPage page = PageFor(longest, "Unit", "FE-4102", paper);
        const PdfWord& front = page.Word("Customer:");
        for (const char* text : {longest.c_str(), "Unit", "FE-4102"}) {
            EXPECT_NEAR(page.Word(text).left, front.left + 10 * WidthOfCharacter(front), 0.15);
            EXPECT_NEAR(WidthOfCharacter(page.Word(text)), WidthOfCharacter(front), 0.02);
        }
        EXPECT_LE(page.Word(longest.c_str()).right, page.width * 0.94 + 0.6);
    }
}

// 80 characters in the room of 62: all lines at 62/80 of the width, and all begin in column 11.
TEST_F(CustomerBlockTest, OneLongLineNarrowsAllThreeAlike) {
    const std::string first = Letters('F', 70);
    const std::string second = Letters('S', 80);
    for (const auto paper : {QPageSize::A4, QPageSize::Letter, QPageSize::A3}) {
        const PdfPage page = PageFor(first, second, "FE-4102", paper);
        const double column = page.Word("Customer:").left + 10 * kCharacter12;
        for (const std::string& text : {first, second, std::string("FE-4102")}) {
            const PdfWord& word = page.Word(text.c_str());
            EXPECT_NEAR(word.left, column, 0.15) << text;
            EXPECT_NEAR(WidthOfCharacter(word), kCharacter12 * 62 / 80, 0.02) << text;
        }
        // The words in front keep their width, and so do the lines below.
        EXPECT_NEAR(WidthOfCharacter(page.Word("Customer:")), kCharacter12, 0.02);
        EXPECT_NEAR(WidthOfCharacter(page.Word("Tag:")), kCharacter12, 0.02);
        EXPECT_NEAR(page.Word("Tag:").left, column - 5 * kCharacter12, 0.15);
        EXPECT_NEAR(WidthOfCharacter(page.Word("Differential")), kCharacter12, 0.02);
    }
}

TEST_F(CustomerBlockTest, EachOfTheThreeLinesCountsForTheWidth) {
    const std::string longest = Letters('M', 80);
    for (int line = 0; line < 3; ++line) {
        const PdfPage page = PageFor(line == 0 ? longest : "Refinery", line == 1 ? longest : "Unit",
                                     line == 2 ? longest : "FE-4102");
        EXPECT_NEAR(WidthOfCharacter(page.Word(longest.c_str())), kCharacter12 * 62 / 80, 0.02);
    }
}

// 0.6 of the width is the narrowest: 103 characters. What is longer is cut there.
TEST_F(CustomerBlockTest, LongestLineIsCutAtTheNarrowestWidth) {
    const PdfPage page = PageFor(Letters('F', 104), Letters('S', 103), "FE-4102");
    const PdfWord& cut =
        page.words.at(static_cast<std::size_t>(&page.Word("Customer:") - page.words.data() + 1));
    EXPECT_EQ(cut.text, QString(102, 'F') + QChar(0x2026));
    EXPECT_EQ(page.LineOf(page.Word("Tag:")), "Tag: FE-4102");
    const PdfWord& whole = page.Word(QString(103, 'S'));
    EXPECT_NEAR(WidthOfCharacter(whole), kCharacter12 * 0.6, 0.02);
    EXPECT_LE(whole.right, kFirstColumn + 62 * kCharacter12 + 0.1);
    EXPECT_NEAR(WidthOfCharacter(page.Word("FE-4102")), kCharacter12 * 0.6, 0.02);
}

TEST_F(CustomerBlockTest, FitSaysWhatThePageWillDo) {
    const CustomerFit all = FitCustomerLines({Letters('F', 62), Letters('S', 62), "FE-4102"});
    EXPECT_EQ(all.narrowed, 1);
    EXPECT_EQ(all.cut, (std::array<bool, 3>{false, false, false}));
    EXPECT_FALSE(all.missingCharacters);

    const CustomerFit narrower = FitCustomerLines({"x", Letters('S', 80), Letters('T', 63)});
    EXPECT_NEAR(narrower.narrowed, 62.0 / 80, 1e-3);
    EXPECT_EQ(narrower.cut, (std::array<bool, 3>{false, false, false}));

    const CustomerFit cut = FitCustomerLines({Letters('F', 104), "S", Letters('T', 5000)});
    EXPECT_EQ(cut.narrowed, 0.6);
    EXPECT_EQ(cut.cut, (std::array<bool, 3>{true, false, true}));
    EXPECT_NEAR(FitCustomerLines({Letters('F', 63), "", ""}).narrowed, 62.0 / 63, 1e-3);
    // The last code that there is is in no font.
    for (std::size_t line = 0; line < 3; ++line) {
        CustomerLines lines{"x", "y", "z"};
        lines[line] = "\xF4\x8F\xBF\xBD";
        EXPECT_TRUE(FitCustomerLines(lines).missingCharacters) << line;
    }
    // Blanks at the end are not printed.
    EXPECT_EQ(FitCustomerLines({"x" + Letters(' ', 500), "", ""}).narrowed, 1);
}

}  // namespace
}  // namespace tarvix::testing
