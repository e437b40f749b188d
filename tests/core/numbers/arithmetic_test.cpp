#include "numbers/arithmetic.h"

#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

// (1 + 2^-12)^2 is 1 + 2^-11 + 2^-24, halfway between two singles, and rounds to the even one,
// 1 + 2^-11. Fused, the subtraction would meet the unrounded product and leave 2^-24.
TEST(ArithmeticTest, SingleProductIsRoundedBeforeItIsAddedTo) {
    volatile float factor = 1.0F + 0x1p-12F;
    volatile float rounded = 1.0F + 0x1p-11F;
    const float a = factor;
    const float b = rounded;
    EXPECT_EQ(a * a - b, 0.0F);
}

// (1 + 2^-27)^2 is 1 + 2^-26 + 2^-54; a double has no place for the last term.
TEST(ArithmeticTest, DoubleProductIsRoundedBeforeItIsAddedTo) {
    volatile double factor = 1.0 + 0x1p-27;
    volatile double rounded = 1.0 + 0x1p-26;
    const double a = factor;
    const double b = rounded;
    EXPECT_EQ(a * a - b, 0.0);
}

}  // namespace
}  // namespace tarvix::testing
