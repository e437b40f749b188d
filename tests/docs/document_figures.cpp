#include "tests/docs/document_figures.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tarvix::docs {

namespace {

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> CellsOf(std::string_view line) {
    std::vector<std::string> cells;
    line = Trimmed(line);
    line.remove_prefix(1);  // the bar at the beginning
    while (!line.empty()) {
        const auto bar = line.find('|');
        cells.emplace_back(Trimmed(line.substr(0, bar)));
        line.remove_prefix(bar == std::string_view::npos ? line.size() : bar + 1);
    }
    return cells;
}

std::string ReadDocument(std::string_view file) {
    const std::string path = std::string(TARVIX_DOCS) + "/" + std::string(file);
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        throw std::runtime_error("cannot read " + path);
    }
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace

const std::string& FigureTable::Text(std::string_view symbol, std::size_t column) const {
    const auto row = std::ranges::find_if(
        rows_, [&](const auto& cells) { return !cells.empty() && cells.front() == symbol; });
    if (row == rows_.end() || column >= row->size()) {
        throw std::runtime_error("no figure: " + std::string(symbol));
    }
    return (*row)[column];
}

double FigureTable::Number(std::string_view symbol, std::size_t column) const {
    return NumberOf(Text(symbol, column));
}

FigureTable ReadFigures(std::string_view file, std::string_view name) {
    const std::string document = ReadDocument(file);
    const std::string mark = "<!-- figures: " + std::string(name) + " -->\n";
    const auto place = document.find(mark);
    if (place == std::string::npos || document.find(mark, place + 1) != std::string::npos) {
        throw std::runtime_error("not exactly one table: " + std::string(name));
    }

    constexpr std::size_t kHeadingLines = 2;
    std::vector<std::vector<std::string>> rows;
    std::string_view rest = std::string_view(document).substr(place + mark.size());
    for (std::size_t line = 0; rest.starts_with('|'); ++line) {
        const auto end = std::min(rest.find('\n'), rest.size() - 1);
        if (line >= kHeadingLines) {
            rows.push_back(CellsOf(rest.substr(0, end)));
        }
        rest.remove_prefix(end + 1);
    }
    if (rows.empty()) {
        throw std::runtime_error("an empty table: " + std::string(name));
    }
    return FigureTable(std::move(rows));
}

double NumberOf(std::string_view cell) {
    std::string text(cell);
    std::erase(text, ',');
    std::size_t used = 0;
    const double value = std::stod(text, &used);  // throws where there is none
    constexpr std::string_view kDividedBy = " / ";
    const std::string rest = text.substr(used);
    return rest.starts_with(kDividedBy) ? value / NumberOf(rest.substr(kDividedBy.size())) : value;
}

}  // namespace tarvix::docs
