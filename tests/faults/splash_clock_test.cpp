// The clock that is set back, stopped or corrected while the splash waits for it.
#include "app/shared/module1.h"
#include "ui/windows/frm_splash.h"

#include <QCoreApplication>

#include <gtest/gtest.h>
#include <stdexcept>
#include <vector>

namespace tarvix {

namespace {

// Shows one second after the other, then stays at the last. Looking on for ever is a fault.
class SetClock : public Platform {
  public:
    int ShowMessageBox(const MessageBoxRequest& /*request*/) override { return kAnswerOk; }
    std::optional<std::string> ShowInputBox(const InputBoxRequest& /*request*/) override {
        return std::nullopt;
    }
    int CurrentSecond() override {
        if (next_ >= seconds.size()) {
            throw std::runtime_error("the splash still waits after the last second");
        }
        return seconds[next_++];
    }
    void SleepUntilNextSecond() override {}
    [[noreturn]] void EndProgram(int exitStatus) override { std::exit(exitStatus); }

    std::size_t looks() const { return next_; }

    std::vector<int> seconds;

  private:
    std::size_t next_ = 0;
};

class SplashClock : public ::testing::Test {
  protected:
    // How many looks at this clock the splash takes until it hands over.
    static std::size_t LooksAt(std::vector<int> seconds) {
        SetClock clock;
        clock.seconds = std::move(seconds);
        Module1 module(clock, NumberLocale{});
        module.AppPath = AppPathOf(QCoreApplication::applicationDirPath());
        int handedOver = 0;
        frmSplash splash(module, {[&] { ++handedOver; }, [&] { ++handedOver; }});
        splash.Form_Activate();
        EXPECT_EQ(handedOver, 2);
        return clock.looks();
    }
};

}  // namespace

TEST_F(SplashClock, SetBackByAFewSecondsEndsTheWaitAtOnce) {
    EXPECT_EQ(LooksAt({30, 30, 31, 27}), 4U);
}

TEST_F(SplashClock, SetBackByOneSecondWaitsThatMuchLonger) {
    EXPECT_EQ(LooksAt({30, 31, 29, 30, 31, 32, 33}), 7U);
}

TEST_F(SplashClock, SetBackByHoursWithTheSameSecondsIsNotNoticed) {
    EXPECT_EQ(LooksAt({30, 31, 31, 32, 33}), 5U);
}

TEST_F(SplashClock, SetBackAcrossTheMinuteEndsTheWaitAtOnce) {
    EXPECT_EQ(LooksAt({1, 2, 58}), 3U);
}

TEST_F(SplashClock, SetForwardEndsTheWaitAtOnce) {
    EXPECT_EQ(LooksAt({30, 45}), 2U);
}

TEST_F(SplashClock, LeapSecondDoesNotDisturb) {
    // 58, 59, 60: a clock that shows the leap second ends the wait two seconds on, as any rollover.
    EXPECT_EQ(LooksAt({58, 59, 60, 0}), 4U);
}

}  // namespace tarvix
