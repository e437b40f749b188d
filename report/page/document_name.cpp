#include "report/page/document_name.h"

#include "report/page/page_writer.h"

#include <algorithm>
#include <cstddef>

namespace tarvix {

namespace {

constexpr std::string_view kDocument = "Orifice calculation";

// In bytes. Print jobs and file names may have 255; an ending and a number follow.
constexpr std::size_t kLongestName = 200;

constexpr std::string_view kNotInFileNames = "\\/:*?\"<>|";

std::string Trimmed(std::string text, std::string_view away) {
    text.erase(text.find_last_not_of(away) + 1);
    text.erase(0, text.find_first_not_of(away));
    return text;
}

// Cut where a character of UTF-8 begins.
std::string Cut(std::string text) {
    if (text.size() > kLongestName) {
        std::size_t length = kLongestName;
        while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U) {
            --length;
        }
        text.resize(length);
    }
    return text;
}

}  // namespace

std::string DocumentName(std::string_view tag) {
    const std::string shown = Trimmed(OnOneLine(tag), " ");
    std::string name(kDocument);
    if (!shown.empty()) {
        name += " " + shown;
    }
    return Trimmed(Cut(std::move(name)), " ");
}

std::string FileNameOf(std::string_view documentName) {
    std::string name = OnOneLine(documentName);
    std::replace_if(
        name.begin(), name.end(),
        [](char c) { return kNotInFileNames.find(c) != std::string_view::npos; }, '-');
    // Windows drops a dot or a blank at the end.
    return Trimmed(std::move(name), " .");
}

}  // namespace tarvix
