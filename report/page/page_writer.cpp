#include "report/page/page_writer.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tarvix {

std::vector<std::string> PrintedLines(const ReportPage& page) {
    std::vector<std::string> printed;
    double yTwips = -1;
    for (const ReportLine& line : page.lines) {
        if (line.yTwips != yTwips) {
            printed.emplace_back();
        }
        printed.back() += line.text;
        yTwips = line.yTwips;
    }
    return printed;
}

void PageWriter::Print(std::string text) {
    PrintPiece(std::move(text));
    MoveTo(yTwips_ + font_.sizePt * kTwipsPerPoint * kFontLineHeight);
}

void PageWriter::PrintCustomerLine(std::string text) {
    Print(std::move(text));
    page_.lines.back().customer = true;
}

void PageWriter::PrintPiece(std::string text) {
    const double advance = font_.sizePt * kTwipsPerPoint * kFontAdvance;
    const double width = advance * CharacterCount(text);
    page_.lines.push_back({std::move(text), font_, xTwips_, yTwips_, false});
    xTwips_ += width;
}

void PageWriter::EmptyLines(int count) {
    for (int line = 0; line < count; ++line) {
        Print({});
    }
}

void PageWriter::MoveTo(double yTwips) {
    xTwips_ = 0;
    yTwips_ = yTwips;
}

int CharacterCount(std::string_view text) {
    // Every byte of UTF-8 begins a character unless it is 10xxxxxx.
    const auto begins = [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    };
    return static_cast<int>(std::count_if(text.begin(), text.end(), begins));
}

std::string PadRight(std::string text, int columns) {
    const int missing = columns - CharacterCount(text);
    text.append(static_cast<std::size_t>(std::max(missing, 0)), ' ');
    return text;
}

std::string OnOneLine(std::string_view text) {
    // The breaks that a pasted text may hold: CR LF counts once; NEL, line and paragraph separator
    // are longer in UTF-8.
    constexpr std::string_view kLongBreaks[] = {"\r\n", "\xC2\x85", "\xE2\x80\xA8", "\xE2\x80\xA9"};
    std::string line;
    while (!text.empty()) {
        std::size_t length = 1;
        const auto first = static_cast<unsigned char>(text.front());
        bool blank = first < 0x20U || first == 0x7FU;
        for (const std::string_view lineBreak : kLongBreaks) {
            if (text.starts_with(lineBreak)) {
                length = lineBreak.size();
                blank = true;
            }
        }
        line += blank ? std::string_view(" ") : text.substr(0, 1);
        text.remove_prefix(length);
    }
    return line;
}

std::string ValueLine(std::string_view label, std::string_view value) {
    const int used = CharacterCount(label) + CharacterCount(value);
    const int blanks = used > kValueColumn ? 1 : kValueColumn - used;
    std::string line(label);
    line.append(static_cast<std::size_t>(blanks), ' ');
    line += value;
    return line;
}

}  // namespace tarvix
