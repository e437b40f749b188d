// Where every control stands, against a table of places. That the screen follows is seen in the
// kept pictures.
#include "tests/core/data_file.h"
#include "ui/form/main_form.h"

#include <QMenuBar>
#include <QWidget>

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarvix::testing {
namespace {

TEST(PlacesTest, EveryControlHasThePlaceOfTheTable) {
    QWidget canvas;
    canvas.setObjectName("canvas");
    QWidget footer;
    QMenuBar menuBar;
    const MainForm form(canvas, footer, menuBar);
    const std::vector<DataRow> rows = ReadDataFile("places.tsv");
    for (const DataRow& row : rows) {
        SCOPED_TRACE(row[0]);
        const NamedControl* control = form.Find(QString::fromStdString(row[0]));
        ASSERT_NE(control, nullptr);
        EXPECT_EQ(control->widget->parentWidget()->objectName().toStdString(), row[1]);
        EXPECT_EQ(control->place.left, std::stoi(row[2]));
        EXPECT_EQ(control->place.top, std::stoi(row[3]));
        EXPECT_EQ(control->place.width, std::stoi(row[4]));
        EXPECT_EQ(control->place.height, std::stoi(row[5]));
    }
    const auto placed = std::ranges::count_if(
        form.Controls(), [](const NamedControl& control) { return control.place.width > 0; });
    EXPECT_EQ(placed, static_cast<int>(rows.size()));
}

}  // namespace
}  // namespace tarvix::testing
