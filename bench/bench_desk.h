// A system without boxes or printer, for benchmarks.
#pragma once

#include "app/shared/platform.h"
#include "ui/windows/window_host.h"

#include <cstdlib>

namespace tarvix {

class BenchDesk : public Platform, public WindowHost {
  public:
    int ShowMessageBox(const MessageBoxRequest& /*request*/) override { return kAnswerOk; }
    std::optional<std::string> ShowInputBox(const InputBoxRequest& /*request*/) override {
        return std::nullopt;
    }
    // Each look at the clock is three seconds after the last: the splash's wait takes no time.
    int CurrentSecond() override { return second_ = (second_ + 3) % 60; }
    void SleepUntilNextSecond() override {}
    [[noreturn]] void EndProgram(int exitStatus) override { std::exit(exitStatus); }

    void ShowAboutBox(QWidget& /*owner*/) override {}
    void ShowCustomerWindow(QWidget& /*owner*/, Module1& /*module*/) override {}
    void PrintPage(QWidget& /*owner*/, const ReportPage& /*page*/,
                   const QImage& /*logo*/) override {}

  private:
    int second_ = 0;
};

}  // namespace tarvix
