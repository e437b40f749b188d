// How the three customer lines find room on the paper, which is the same on every paper.
#pragma once

#include "report/page/report_page.h"

#include <array>
#include <string>

namespace tarvix {

// The first customer line, the second and the tag, without the words in front of them.
using CustomerLines = std::array<std::string, 3>;

struct CustomerFit {
    // The lines are one block: all are drawn this many times as wide as usual, 1 when the longest
    // fits as it is.
    double narrowed = 1;
    // Line by line: too long at the narrowest, so that its end is cut.
    std::array<bool, 3> cut{};
    // Some character is in no font of this system.
    bool missingCharacters = false;
};

// The least part of its usual width at which a text can be read; what is longer still is cut.
inline constexpr double kNarrowest = 0.6;

CustomerFit FitCustomerLines(const CustomerLines& lines);

// The room for a customer line, in twips: kCustomerColumns of the report's first font.
inline constexpr double kCustomerRoom =
    kCustomerColumns * kReportFont.sizePt * kTwipsPerPoint * kFontAdvance;

}  // namespace tarvix
