// What the user sees before a calculation begins.
#include "tests/window/event_watcher.h"
#include "tests/window/window_states.h"

#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

// What the choice of the fluid shows is seen at once, and then what comes of it.
TEST(RepaintTest, AGasIsSeenBeforeItIsCalculated) {
    StatePlayer player;
    ASSERT_EQ(player.Play({"", {"click optLiquid"}}), "");
    const int runs = player.window().calculationRuns();
    bool painted = false;
    const EventWatcher gravity(*player.form().fraGasSG, QEvent::Paint, [&](QObject&) {
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
    const EventWatcher box(*player.form().cboOriBoreUnit, QEvent::Paint, [&](QObject&) {
        painted = painted || player.form().txtOriBoreDia->Text() == bore;
    });
    ASSERT_EQ(player.Act("choose cboOriBoreUnit Millimeters"), "");
    EXPECT_NE(player.form().txtOriBoreDia->Text(), bore);
    EXPECT_TRUE(painted);
}

}  // namespace
}  // namespace tarvix::testing
