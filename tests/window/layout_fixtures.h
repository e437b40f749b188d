// The main window that scripts are played on, also on a desktop with a font and colors of the
// test's own.
#pragma once

#include "tests/window/window_states.h"

#include <QApplication>

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <tuple>

namespace tarvix::testing {

class PlayerTest : public ::testing::Test {
  protected:
    // The window is there from the first use on.
    StatePlayer& Player() {
        if (!player_) {
            player_ = std::make_unique<StatePlayer>();
        }
        return *player_;
    }

    void Play(const QStringList& actions) {
        ASSERT_EQ(Player().Play({"", actions}).toStdString(), "");
    }

    frmTarvix& window() { return Player().window(); }
    MainForm& form() { return Player().form(); }
    int Calculations() { return window().calculationRuns(); }

    // What comes or goes lets the layout ask for another round.
    static void Settle() {
        for (int round = 0; round < 4; ++round) {
            QApplication::processEvents();
        }
    }

    std::unique_ptr<StatePlayer> player_;
};

// Sets the desktop's font and colors for a test and takes them back.
class LayoutTest : public PlayerTest {
  protected:
    void TearDown() override {
        player_.reset();
        QApplication::setFont(font_);
        QApplication::setPalette(palette_);
    }

    void Show(const WindowState& state) { ASSERT_EQ(Player().Play(state).toStdString(), ""); }

  private:
    QFont font_ = QApplication::font();
    QPalette palette_ = QApplication::palette();
};

using Font = std::tuple<const char*, int>;

// The fonts that the layout is made for, each the desktop's own in its tests.
class LayoutAtFontTest : public LayoutTest, public ::testing::WithParamInterface<Font> {
  protected:
    LayoutAtFontTest() {
        QApplication::setFont(QFont(std::get<0>(GetParam()), std::get<1>(GetParam())));
        // The window is measured, and not looked at: painting it would take most of the time.
        window().setUpdatesEnabled(false);
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
