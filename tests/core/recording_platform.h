// A platform double: records what was asked, answers from prepared values, and turns the end of the
// program into an exception that only tests know.
#pragma once

#include "app/shared/platform.h"

#include <optional>
#include <string>
#include <vector>

namespace tarvix::testing {

struct ProgramEnded {
    int exitStatus;
};

class RecordingPlatform : public Platform {
  public:
    int ShowMessageBox(const MessageBoxRequest& request) override {
        boxes.push_back(request);
        return answer;
    }
    std::optional<std::string> ShowInputBox(const InputBoxRequest& /*request*/) override {
        return std::nullopt;
    }
    int CurrentSecond() override { return 0; }
    void SleepUntilNextSecond() override {}
    [[noreturn]] void EndProgram(int exitStatus) override { throw ProgramEnded{exitStatus}; }

    std::vector<MessageBoxRequest> boxes;
    int answer = kAnswerOk;
};

// What the fatal error box says about `cause`.
inline std::string FatalText(const std::string& cause) {
    return "Fatal Error Encountered: \n\r\n\r" + cause + "\n\r\n\rThis Program will now terminate.";
}

}  // namespace tarvix::testing
