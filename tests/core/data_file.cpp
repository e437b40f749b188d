#include "data_file.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace tarvix::testing {

namespace {

DataRow SplitAtTabs(const std::string& line) {
    DataRow columns;
    std::istringstream texts(line + '\t');
    for (std::string text; std::getline(texts, text, '\t');) {
        columns.push_back(text);
    }
    return columns;
}

}  // namespace

std::vector<DataRow> ReadDataFile(const std::string& name) {
    std::ifstream file(TARVIX_TEST_DATA "/" + name);
    std::string line;
    if (!std::getline(file, line)) {
        ADD_FAILURE() << "cannot read " << name;
        return {};
    }
    const size_t columns = SplitAtTabs(line).size();
    std::vector<DataRow> rows;
    while (std::getline(file, line)) {
        rows.push_back(SplitAtTabs(line));
        if (rows.back().size() != columns) {
            ADD_FAILURE() << name << ": odd row: " << line;
            return {};
        }
    }
    return rows;
}

std::vector<DataRow> RowsOf(const std::vector<DataRow>& rows, const std::string& key) {
    std::vector<DataRow> found = rows;
    std::erase_if(found, [&](const DataRow& row) { return row.front() != key; });
    return found;
}

}  // namespace tarvix::testing
