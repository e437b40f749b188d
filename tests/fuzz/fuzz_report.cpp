// The composition of the report from random sheets and customer lines.
#include "tests/fuzz/sheets.h"
#include "units/pipe_id_texts.h"

#include <algorithm>

namespace {

using tarvix::fuzz::Require;

bool IsOneLine(const std::string& text) {
    return std::ranges::none_of(text, [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x20 || byte == 0x7F;
    });
}

bool Contains(const tarvix::ReportPage& page, std::string_view text) {
    return std::ranges::any_of(page.lines, [&](const tarvix::ReportLine& line) {
        return line.text.find(text) != std::string::npos;
    });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    tarvix::fuzz::FuzzedRun fuzzed(bytes, size);
    auto& [data, locale, platform, module] = fuzzed;
    const tarvix::ReportSheet sheet = tarvix::fuzz::AnyReportSheet(data, locale);
    module.CustLine1 = data.ConsumeRandomLengthString(80);
    module.CustLine2 = data.ConsumeRandomLengthString(80);
    module.TagText = data.ConsumeRandomLengthString(80);

    const tarvix::ReportPage page = tarvix::ComposeReport(sheet, module);
    // The title and a liquid's values with their empty lines, 19 lines of notes, nine of the
    // footer.
    Require(page.lines.size() >= 44, "the page has its title, values, notes and footer");
    double lastTop = 0;
    for (const tarvix::ReportLine& line : page.lines) {
        Require(IsOneLine(line.text), "a line is a line of text");
        Require(line.xTwips >= 0 && line.yTwips >= lastTop, "lines stand one below the other");
        lastTop = line.yTwips;
    }
    // A customer may be called so, too.
    const bool notesInPlace = std::ranges::any_of(page.lines, [](const tarvix::ReportLine& line) {
        return line.yTwips == tarvix::kNotesTopTwips &&
               line.text.starts_with("Note: Values for the beta ratio");
    });
    Require(notesInPlace, "the notes start at their place");
    for (const std::string_view label : {"Orifice calculation for ", "Customer: ", "     Tag: ",
                                         "Flow Rate", "Differential Pressure", "Pipe Diameter",
                                         "Bore Diameter (approximate)", "Beta (approximate)"}) {
        Require(Contains(page, label), "every report has its lines");
    }
    Require(!sheet.plateWarning || Contains(page, "Warning: Orifice plate deflection should be "),
            "the plate warning is printed");
    return 0;
}
