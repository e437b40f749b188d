// Rows of test tables carry the name of their test.
#pragma once

#include <ostream>
#include <string>

namespace tarvix::testing {

struct NamedRow {
    const char* name;
};

// A failing test names its row instead of dumping its bytes.
inline std::ostream& operator<<(std::ostream& out, const NamedRow& row) {
    return out << row.name;
}

// The name of the test made from a row, for INSTANTIATE_TEST_SUITE_P.
inline constexpr auto kRowName = [](const auto& info) { return std::string(info.param.name); };

}  // namespace tarvix::testing
