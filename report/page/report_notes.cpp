#include "report/page/report_notes.h"

#include "report/page/maker.h"

#include <cstddef>
#include <string_view>

namespace tarvix {

namespace {

constexpr ReportFont kNotesFont{10, false, true};
constexpr ReportFont kFooterHeadingFont{8, true, false};
constexpr ReportFont kFooterFont{8, false, false};
constexpr ReportFont kDateFont{10, true, false};

// An empty entry is an empty line.
constexpr std::string_view kNotes[] = {
    "Note: Values for the beta ratio are approximate, typically within",
    "            2% - 5% for gases and steam",
    "            1% for liquids",
    "      The ASME MFC-3M 1989 equation is used in this program.  However,",
    "      several equation factors are assumed and can directly affect the",
    "      calculation results",
    "            Coefficient of Thermal Expansion:    1.0",
    "            Discharge Coefficient:               0.6",
    "            Base Temperature:                    60 Deg F  (15.56 Deg C)",
    "            Base Pressure:                       14.7 PSIA (101.3 kPa-A)",
    "            Pressure Tap Location:               Flange Tap",
    "",
    "      Also, this program does not take into consideration two calculation",
    "      variables - the Reynolds Number correction and the expansion factor.",
    "",
    "      If it is necessary to have a closely specified beta ratio, differential",
    "      pressure, or flow rate, please consult your Brindle representative for",
    "      assistance",
    "",
};

// Four columns of this width, in characters of the footer's font.
constexpr int kFooterColumn = 28;

// Blanks with the web-site reference in their middle. Right of a date of 11 characters, that puts
// the reference in the middle of the page.
constexpr int kWebSiteColumns = 66;

std::string Telephone(const MakerOffice& office) {
    return "Tel. " + std::string(office.telephone);
}

std::string Fax(const MakerOffice& office) {
    return "Fax  " + std::string(office.fax);
}

// One line of the three right-hand columns, without blanks at its end.
template <typename TextOf>
std::string OfficeColumns(TextOf textOf) {
    std::string line;
    int columns = 0;
    for (const MakerOffice& office : kRegionalOffices) {
        line = PadRight(line, columns) + std::string(textOf(office));
        columns += kFooterColumn;
    }
    return line;
}

std::string WebSiteLine() {
    const std::string reference = "Web site: " + std::string(kMakerWebSite);
    const int blanks = kWebSiteColumns - CharacterCount(reference);
    return PadRight(std::string(static_cast<std::size_t>(blanks / 2), ' ') + reference,
                    kWebSiteColumns);
}

}  // namespace

void PrintNotes(PageWriter& writer) {
    writer.MoveTo(kNotesTopTwips);
    writer.SetFont(kNotesFont);
    for (const std::string_view note : kNotes) {
        writer.Print(std::string(note));
    }
}

void PrintFooter(PageWriter& writer, const std::string& date) {
    writer.SetFont(kFooterHeadingFont);
    writer.EmptyLines(1);
    writer.Print(PadRight("Brindle Headquarters", kFooterColumn) +
                 OfficeColumns([](const MakerOffice& office) { return office.location; }));
    writer.PrintPiece(PadRight(std::string(kHeadquarters.location), kFooterColumn));
    writer.SetFont(kFooterFont);
    writer.Print(OfficeColumns(Telephone));
    writer.Print(PadRight(Telephone(kHeadquarters), kFooterColumn) + OfficeColumns(Fax));
    writer.Print(Fax(kHeadquarters));
    writer.EmptyLines(2);

    writer.SetFont(kDateFont);
    writer.Print(date + WebSiteLine());
}

}  // namespace tarvix
