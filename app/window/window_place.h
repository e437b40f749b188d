#pragma once

namespace tarvix {

struct ScreenPoint {
    int x = 0;
    int y = 0;
};

// Where a window is placed at start, pixels from the upper left corner of the screen: centered, but
// at the top edge of a screen of 500 pixels or less.
constexpr ScreenPoint StartPlace(int screenWidth, int screenHeight, int windowWidth,
                                 int windowHeight) {
    constexpr int kSmallScreenHeight = 500;
    return {(screenWidth - windowWidth) / 2,
            screenHeight > kSmallScreenHeight ? (screenHeight - windowHeight) / 2 : 0};
}

}  // namespace tarvix
