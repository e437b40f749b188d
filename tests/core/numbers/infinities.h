#pragma once

#include <limits>

namespace tarvix::testing {

inline constexpr float kSingleInfinity = std::numeric_limits<float>::infinity();
inline constexpr double kDoubleInfinity = std::numeric_limits<double>::infinity();

}  // namespace tarvix::testing
