// What tests ask of an equation's outcome.
#pragma once

#include "calc/equation_terms.h"

#include <gtest/gtest.h>
#include <string_view>

namespace tarvix::testing {

// A value that is this very single.
inline void ExpectValue(const Outcome& outcome, float value) {
    EXPECT_EQ(outcome.value, std::optional(value)) << "message: " << outcome.message;
    EXPECT_EQ(outcome.message, "");
}

inline void ExpectMessage(const Outcome& outcome, std::string_view message) {
    EXPECT_EQ(outcome.value, std::nullopt);
    EXPECT_EQ(outcome.message, message);
}

// Neither value nor message.
inline void ExpectNothing(const Outcome& outcome) {
    EXPECT_EQ(outcome.value, std::nullopt);
    EXPECT_EQ(outcome.message, "");
}

}  // namespace tarvix::testing
