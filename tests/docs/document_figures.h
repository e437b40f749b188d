// The figures that stand in the documents, read for comparison.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvix::docs {

// A table of a document: its rows below the heading, each the trimmed texts of its cells.
class FigureTable {
  public:
    explicit FigureTable(std::vector<std::vector<std::string>> rows) : rows_(std::move(rows)) {}

    const std::vector<std::vector<std::string>>& rows() const { return rows_; }

    // The cell of the row that starts with `symbol`. Throws when there is no such row or cell.
    const std::string& Text(std::string_view symbol, std::size_t column = 1) const;
    double Number(std::string_view symbol, std::size_t column = 1) const;

  private:
    std::vector<std::vector<std::string>> rows_;
};

// The table that follows the line "<!-- figures: NAME -->" of docs/FILE. Throws when the document
// has no such table, or several.
FigureTable ReadFigures(std::string_view file, std::string_view name);

// The number that a cell's text starts with: "1,234.5", "-3.18%", or a quotient "a / b". Throws
// when there is none.
double NumberOf(std::string_view cell);

}  // namespace tarvix::docs
