#include "numbers/arithmetic.h"

#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

// (1 + e)^2 is 1 + 2e + e^2, and there is no place for the last term: the product is rounded to
// 1 + 2e. Fused, the subtraction would meet the unrounded product and leave e^2.
template <typename Number>
void ExpectRoundedBeforeItIsAddedTo(Number e) {
    volatile Number factor = 1 + e;
    volatile Number rounded = 1 + 2 * e;
    const Number a = factor;
    const Number b = rounded;
    EXPECT_EQ(a * a - b, 0);
}

TEST(ArithmeticTest, AProductIsRoundedBeforeItIsAddedTo) {
    ExpectRoundedBeforeItIsAddedTo(0x1p-12F);  // halfway between two singles; the even one stands
    ExpectRoundedBeforeItIsAddedTo(0x1p-27);
}

}  // namespace
}  // namespace tarvix::testing
