// The ends of the program, as tests see them.
#pragma once

#include "tests/core/recording_platform.h"

#include <gtest/gtest.h>

namespace tarvix::testing {

// The exit status with which `action` ends the program; nothing when it goes on.
template <typename Action>
std::optional<int> ExitStatusOf(Action action) {
    try {
        action();
    } catch (const ProgramEnded& end) {
        return end.exitStatus;
    }
    return std::nullopt;
}

// The one box that `action` shows before it ends the program with exit status 1.
template <typename Action>
MessageBoxRequest FatalBoxOf(RecordingPlatform& platform, Action action) {
    platform.boxes.clear();
    EXPECT_EQ(ExitStatusOf(action), 1);
    EXPECT_EQ(platform.boxes.size(), 1U);
    return platform.boxes.empty() ? MessageBoxRequest{} : platform.boxes.front();
}

}  // namespace tarvix::testing
