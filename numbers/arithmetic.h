// What the arithmetic of the equations stands on, refused where a compiler gives something else.
// Every result is rounded to single or double as it is written, so that the same sheet gives the
// same bits on every system.
#pragma once

#include <cfloat>
#include <limits>

namespace tarvix {

static_assert(std::numeric_limits<float>::is_iec559 && std::numeric_limits<float>::digits == 24);
static_assert(std::numeric_limits<double>::is_iec559 && std::numeric_limits<double>::digits == 53);

// Intermediate results with more digits than their type has, as on the x87, round twice. (Fused
// multiplication and addition has no mark that could be asked for here; cmake/TarvixFlags.cmake
// turns it off, and a test looks.)
static_assert(FLT_EVAL_METHOD == 0, "intermediate results must have the precision of their type");

// Arithmetic that may be rearranged, or that takes it that infinities don't come up.
#if defined(__FAST_MATH__) || (defined(__FINITE_MATH_ONLY__) && __FINITE_MATH_ONLY__)
#error "The equations need IEEE 754 arithmetic as written: no -ffast-math."
#endif

}  // namespace tarvix
