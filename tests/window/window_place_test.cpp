#include "app/window/window_place.h"

#include <gtest/gtest.h>

namespace tarvix {

TEST(StartPlaceTest, CenteredOnAScreenOfMoreThan500Pixels) {
    EXPECT_EQ(StartPlace(1280, 900, 811, 663).x, 234);
    EXPECT_EQ(StartPlace(1280, 900, 811, 663).y, 118);
    EXPECT_EQ(StartPlace(1000, 501, 600, 301).x, 200);
    EXPECT_EQ(StartPlace(1000, 501, 600, 301).y, 100);
}

TEST(StartPlaceTest, AtTheTopOfAScreenOf500PixelsOrLess) {
    EXPECT_EQ(StartPlace(1000, 500, 600, 300).x, 200);
    EXPECT_EQ(StartPlace(1000, 500, 600, 300).y, 0);
    EXPECT_EQ(StartPlace(1000, 499, 600, 300).y, 0);
}

}  // namespace tarvix
