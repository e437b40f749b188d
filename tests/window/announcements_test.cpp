// What a screen reader is told to say when it happens elsewhere than at the focus: when a text
// comes, and once.

#include "tests/window/window_states.h"
#include "ui/form/spoken_result.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimerEvent>

#include <gtest/gtest.h>
#include <utility>

namespace tarvix::testing {
namespace {

class AnnouncementsTest : public ::testing::Test {
  protected:
    AnnouncementsTest() {
        form().announcements.onSay = [this](const QString& text) { said_ += text; };
    }

    // What the actions let a reader say.
    QStringList SaidAt(const QStringList& actions) {
        EXPECT_EQ(player_.Play({"", actions}), "");
        QCoreApplication::processEvents();
        return std::exchange(said_, {});
    }

    MainForm& form() { return player_.form(); }

    QStringList said_;

  private:
    StatePlayer player_;
};

TEST_F(AnnouncementsTest, AMessageIsSaidWhenItComesAndNotAgainWhileItStays) {
    const QString missing = "Incomplete fluid data (Base Specific Gravity).";
    SaidAt({"click optLiquid", "click optCalcFR", "type txtDeltaP 100", "type txtBeta 0.5"});
    EXPECT_EQ(SaidAt({"type txtSGf 1"}), QStringList(missing));
    EXPECT_EQ(SaidAt({"type txtSGf 2", "type txtDeltaP 200"}), QStringList());
    EXPECT_EQ(SaidAt({"type txtSGb 1"}), QStringList()) << "there is no message";
    EXPECT_EQ(SaidAt({"keys {Backspace}"}), QStringList(missing));
}

TEST_F(AnnouncementsTest, TheCompressibilityWarningIsSaidWhenItComesAndWhenItsWordsChange) {
    const QString may =
        "At this pressure, no compressibility correction may result in erroneous computations.";
    const QString will =
        "At this pressure, no compressibility correction will result in erroneous computations.";
    SaidAt({"click optGas", "type txtPf 9"});
    ASSERT_FALSE(form().IsVisible(*form().fraZfCompWarning));
    EXPECT_EQ(SaidAt({"type txtPf 300"}), QStringList(may));
    EXPECT_EQ(SaidAt({"keys {Backspace}1"}), QStringList(may)) << "gone at 30";
    EXPECT_EQ(SaidAt({"click optPabsolute", "click optPgauge"}), QStringList()) << "it stays";
    EXPECT_EQ(SaidAt({"choose cboPressUnit bar"}), QStringList(will)) << "it stays, and is worse";
    EXPECT_EQ(SaidAt({"choose cboPressUnit PSI"}), QStringList(may));
    EXPECT_EQ(SaidAt({"type txtPf 9"}), QStringList());
    EXPECT_EQ(SaidAt({"type txtPf 300"}), QStringList(may)) << "the same words as before";
}

TEST_F(AnnouncementsTest, ThePlateWarningIsSaidWhenItComes) {
    SaidAt({"click optLiquid", "click optCalcFR", "choose cboNomSize 10", "type txtDeltaP 9"});
    const QStringList warning("Orifice plate deflection should be checked.");
    EXPECT_EQ(SaidAt({"type txtDeltaP 200"}), warning);
    EXPECT_EQ(SaidAt({"choose cboNomSize 12"}), QStringList()) << "it stays";
    EXPECT_EQ(SaidAt({"type txtDeltaP 9"}), QStringList());
    EXPECT_EQ(SaidAt({"type txtDeltaP 200"}), warning);
}

// Q = 0.619677 x 5.66646 x 0.25 x 4.026^2 x sqrt(100) = 142.2869 gallons a minute.
TEST_F(AnnouncementsTest, TheResultIsSaidInAPauseAndNotAgainUntilItIsAnother) {
    SaidAt({"click optLiquid", "click optCalcFR", "choose cboNomSize 4", "type txtSGf 1",
            "type txtSGb 1", "type txtDeltaP 100"});
    SpokenResult spoken(form(), form().announcements);
    // The pause is over at once.
    const auto saidAfter = [&](const QStringList& actions) {
        SaidAt(actions);
        const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&spoken);
        EXPECT_EQ(timers.size(), 1);
        for (const auto& timer : timers) {
            EXPECT_EQ(timer.interval, 1000);
            QTimerEvent over(timer.timerId);
            QCoreApplication::sendEvent(&spoken, &over);
        }
        return std::exchange(said_, {});
    };
    const QStringList flow("Flow Rate 142.3 Gallons per Minute");
    EXPECT_EQ(saidAfter({"type txtBeta 0.5"}), flow);
    EXPECT_EQ(saidAfter({"keys {End}1{Backspace}"}), QStringList()) << "the same as before";
    EXPECT_EQ(saidAfter({"type txtBeta 0"}), QStringList()) << "there is no value";
    EXPECT_EQ(saidAfter({"type txtBeta 0.5"}), flow);
    // The same run the other ways round.
    EXPECT_EQ(saidAfter({"click optCalcDP", "type txtFlow 142.287"}),
              QStringList("Differential Pressure 100.0 Inches Water"));
    EXPECT_EQ(saidAfter({"click optCalcBeta", "type txtDeltaP 100"}),
              QStringList("Beta Ratio 0.50000, Orifice Bore Diameter 2.013 Inches"));
}

}  // namespace
}  // namespace tarvix::testing
