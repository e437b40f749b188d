// A window on a desktop with a font and colors of the test's own.
#pragma once

#include "tests/window/window_states.h"

#include <QApplication>

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <tuple>

namespace tarvix::testing {

// Sets the desktop's font and colors for a test and takes them back.
class LayoutTest : public ::testing::Test {
  protected:
    void TearDown() override {
        player_.reset();
        QApplication::setFont(font_);
        QApplication::setPalette(palette_);
    }

    StatePlayer& Player() {
        if (!player_) {
            player_ = std::make_unique<StatePlayer>();
        }
        return *player_;
    }

    void Play(const WindowState& state) {
        const QString refused = Player().Play(state);
        ASSERT_TRUE(refused.isEmpty()) << refused.toStdString();
    }

  private:
    QFont font_ = QApplication::font();
    QPalette palette_ = QApplication::palette();
    std::unique_ptr<StatePlayer> player_;
};

using Font = std::tuple<const char*, int>;

// The fonts that the layout is made for, each the desktop's own in its tests.
class LayoutAtFontTest : public LayoutTest, public ::testing::WithParamInterface<Font> {
  protected:
    LayoutAtFontTest() {
        QApplication::setFont(QFont(std::get<0>(GetParam()), std::get<1>(GetParam())));
        // The window is measured, and not looked at: painting it would take most of the time.
        Player().window().setUpdatesEnabled(false);
    }
};

inline auto Fonts() {
    return ::testing::Combine(::testing::Values("DejaVu Sans", "Liberation Sans"),
                              ::testing::Range(8, 15));
}

inline std::string FontName(const ::testing::TestParamInfo<Font>& font) {
    std::string name = std::get<0>(font.param);
    name.erase(name.find(' '), 1);
    return name + std::to_string(std::get<1>(font.param));
}

}  // namespace tarvix::testing
