// What the user sees before a calculation begins.
#include "tests/window/window_states.h"

#include <QEvent>

#include <functional>
#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

// Calls a function whenever an object has been sent a Paint.
class PaintWatcher : public QObject {
  public:
    PaintWatcher(QObject& watched, std::function<void()> onPaint) : onPaint_(std::move(onPaint)) {
        watched.installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            onPaint_();
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    std::function<void()> onPaint_;
};

// What the choice of the fluid shows is seen at once, and then what comes of it.
TEST(RepaintTest, AGasIsSeenBeforeItIsCalculated) {
    StatePlayer player;
    ASSERT_EQ(player.Play({"", {"click optLiquid"}}), "");
    const int runs = player.window().calculationRuns();
    bool painted = false;
    const PaintWatcher gravity(*player.form().fraGasSG, [&] {
        painted = painted || player.window().calculationRuns() == runs;
    });
    ASSERT_EQ(player.Act("click optGas"), "");
    EXPECT_TRUE(painted);
    EXPECT_GT(player.window().calculationRuns(), runs);
}

TEST(RepaintTest, TheBoxOfTheBoresUnitIsPaintedBeforeTheBoreIsEmptied) {
    StatePlayer player;
    ASSERT_EQ(
        player.Play({"", {"click optLiquid", "click optCalcFR", "focus txtBeta", "keys 0.5"}}), "");
    const std::string bore = player.form().txtOriBoreDia->Text();
    ASSERT_NE(bore, "");
    bool painted = false;
    const PaintWatcher box(*player.form().cboOriBoreUnit, [&] {
        painted = painted || player.form().txtOriBoreDia->Text() == bore;
    });
    ASSERT_EQ(player.Act("choose cboOriBoreUnit Millimeters"), "");
    EXPECT_NE(player.form().txtOriBoreDia->Text(), bore);
    EXPECT_TRUE(painted);
}

}  // namespace
}  // namespace tarvix::testing
