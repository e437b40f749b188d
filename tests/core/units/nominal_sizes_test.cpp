// Nominal sizes and pipe schedules against a second copy of their entries.
#include "units/nominal_sizes.h"

#include "data_file.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace tarvix::testing {
namespace {

TEST(NominalSizesTest, AreTheListedOnesEntryByEntry) {
    const auto rows = ReadDataFile("nominal_sizes.tsv");
    ASSERT_EQ(kNominalSizes.size(), rows.size());
    for (size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(rows[i][1]);
        EXPECT_EQ(rows[i][0], std::to_string(i));
        EXPECT_EQ(kNominalSizes[i].text, rows[i][1]);
        EXPECT_EQ(kNominalSizes[i].value, rows[i][2]);
    }
}

TEST(NominalSizesTest, TheDefaultIsTwoInches) {
    EXPECT_EQ(kDefaultNominalSize, "2");
    EXPECT_EQ(kNominalSizes[4].value, kDefaultNominalSize);
}

TEST(PipeSchedulesTest, AreTheListedOnesEntryByEntry) {
    const auto rows = ReadDataFile("pipe_schedules.tsv");
    std::set<std::string> sizes;
    for (const auto& row : rows) {
        sizes.insert(row[0]);
    }
    // The one that no list offers is there, too.
    ASSERT_EQ(sizes.size(), kNominalSizes.size() + 1);

    size_t entries = 0;
    for (const std::string& size : sizes) {
        const auto expected = RowsOf(rows, size);
        const auto schedules = SchedulesOf(size);
        ASSERT_EQ(schedules.size(), expected.size()) << size;
        for (size_t i = 0; i < expected.size(); ++i) {
            SCOPED_TRACE(size + " " + expected[i][2]);
            EXPECT_EQ(expected[i][1], std::to_string(i));
            EXPECT_EQ(schedules[i].text, expected[i][2]);
            EXPECT_EQ(schedules[i].insideDiameter, expected[i][3]);
            ++entries;
        }
    }
    EXPECT_EQ(entries, rows.size());
}

TEST(PipeSchedulesTest, NoSizeIsFoundByAnythingButItsValueText) {
    for (const char* value : {"", "0,5", "1,5", "0.50", " 2", "2 ", "2.0", "1/2", "7", "48"}) {
        EXPECT_TRUE(SchedulesOf(value).empty()) << value;
    }
}

}  // namespace
}  // namespace tarvix::testing
