#pragma once

#include "app/shared/platform.h"

namespace tarvix {

// The real system: message boxes of the desktop, the clock, the end of the process.
class QtPlatform : public Platform {
  public:
    int ShowMessageBox(const MessageBoxRequest& request) override;
    std::optional<std::string> ShowInputBox(const InputBoxRequest& request) override;
    int CurrentSecond() override;
    void SleepUntilNextSecond() override;
    [[noreturn]] void EndProgram(int exitStatus) override;
};

}  // namespace tarvix
