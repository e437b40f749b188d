// Reads the tab-separated tables of tests/data.
#pragma once

#include <string>
#include <vector>

namespace tarvix::testing {

using DataRow = std::vector<std::string>;

// The rows below the heading line. A table that cannot be read, or a row with another number of
// columns than the heading, fails the test and gives no rows.
std::vector<DataRow> ReadDataFile(const std::string& name);

// The rows whose first column is `key`.
std::vector<DataRow> RowsOf(const std::vector<DataRow>& rows, const std::string& key);

}  // namespace tarvix::testing
