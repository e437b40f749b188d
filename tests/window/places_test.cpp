// Where every control stands, against a table of places; on the screen, in pixels of any size.
#include "tests/core/data_file.h"
#include "ui/form/main_form.h"

#include <QMenuBar>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

namespace tarvix::testing {
namespace {

struct PlaceRow {
    std::string control;
    std::string frame;
    TwipsRect place;
};

std::vector<PlaceRow> Places() {
    std::vector<PlaceRow> places;
    for (const DataRow& row : ReadDataFile("places.tsv")) {
        places.push_back(
            {row[0],
             row[1],
             {std::stoi(row[2]), std::stoi(row[3]), std::stoi(row[4]), std::stoi(row[5])}});
    }
    return places;
}

std::array<int, 4> Edges(const TwipsRect& place) {
    return {place.left, place.top, place.width, place.height};
}

class PlacesTest : public ::testing::Test {
  protected:
    PlacesTest() {
        canvas_.setObjectName("canvas");
        form_.PlaceControls();
    }

    const NamedControl* Named(const std::string& name) const {
        return form_.Find(QString::fromStdString(name));
    }

    // A control's corner on the canvas.
    QPoint OnCanvas(const NamedControl& control) const {
        return control.widget->mapTo(&canvas_, QPoint(0, 0));
    }

    QWidget canvas_;
    QWidget footer_;
    QMenuBar menuBar_;
    MainForm form_{canvas_, footer_, menuBar_};
};

TEST_F(PlacesTest, EveryControlHasThePlaceOfTheTable) {
    const std::vector<PlaceRow> places = Places();
    for (const PlaceRow& row : places) {
        const NamedControl* control = Named(row.control);
        ASSERT_NE(control, nullptr) << row.control;
        EXPECT_EQ(control->widget->parentWidget()->objectName().toStdString(), row.frame)
            << row.control;
        EXPECT_EQ(Edges(control->place), Edges(row.place)) << row.control;
    }
    const auto placed = std::ranges::count_if(
        form_.Controls(), [](const NamedControl& control) { return control.place.width > 0; });
    EXPECT_EQ(placed, static_cast<int>(places.size()));
}

// The table's places, added up over the frames, times one scale for each direction. What the text
// itself sizes is left out.
TEST_F(PlacesTest, TheScreenShowsThePlacesInOneScale) {
    const std::vector<PlaceRow> places = Places();
    std::map<std::string, TwipsRect> onCanvas;
    for (const PlaceRow& row : places) {
        TwipsRect place = row.place;
        if (row.frame != "canvas") {
            place.left += onCanvas.at(row.frame).left;
            place.top += onCanvas.at(row.frame).top;
        }
        onCanvas[row.control] = place;
    }
    // The control that reaches farthest to the right, and the one farthest down, tell the scales.
    const NamedControl& pipe = *Named("fraPipe");
    const double scaleX = (OnCanvas(pipe).x() + pipe.widget->width()) / 9480.0;
    const NamedControl& bore = *Named("fraOriBoreDiameter");
    const double scaleY = (OnCanvas(bore).y() + bore.widget->height()) / 7140.0;
    // Half a pixel for each rounding, of the frames around it, too.
    constexpr double kRounding = 2;
    for (const auto& [name, place] : onCanvas) {
        const NamedControl& control = *Named(name);
        EXPECT_NEAR(OnCanvas(control).y(), place.top * scaleY, kRounding) << name;
        EXPECT_NEAR(control.widget->height(), place.height * scaleY, kRounding) << name;
        if (name != "lbl2PlateThicknessWarning") {
            EXPECT_NEAR(OnCanvas(control).x(), place.left * scaleX, kRounding) << name;
        }
        if (name != "lbl1PlateThicknessWarning" && name != "lblCompCorr") {
            EXPECT_NEAR(control.widget->width(), place.width * scaleX, kRounding) << name;
        }
    }
}

}  // namespace
}  // namespace tarvix::testing
