// Bore and beta follow each other through the pipe's inside diameter.
#include "units/bore_and_beta.h"

#include "locales.h"
#include "numbers/number_text.h"
#include "units/unit_tables.h"

#include <gtest/gtest.h>
#include <limits>

namespace tarvix::testing {
namespace {

constexpr float kMax = std::numeric_limits<float>::max();

std::string Rounded(std::optional<float> value, int decimals) {
    return value ? FormatNumber(*value, decimals, kUnitedStates, Grouping::Off) : "none";
}

TEST(BoreAndBetaTest, OneFollowsTheOther) {
    EXPECT_EQ(Rounded(BoreFromBeta(0.5F, 4.026F, 1.0F), 3), "2.013");
    EXPECT_EQ(Rounded(BoreFromBeta(0.5F, 2.067F, kLengthUnits[1].factor), 3), "26.251");
    EXPECT_EQ(Rounded(BoreFromBeta(0.5F, 2.067F, kLengthUnits[2].factor), 3), "2.625");
    EXPECT_EQ(Rounded(BetaFromBore(1.0F, 2.067F, 1.0F), 5), "0.48379");
    // 26.251 x 0.03937008 / 2.067 = 0.500002
    EXPECT_EQ(Rounded(BetaFromBore(26.251F, 2.067F, kLengthUnits[1].factor), 5), "0.50000");
    EXPECT_EQ(Rounded(BetaFromBore(40.0F, 2.067F, kLengthUnits[1].factor), 5), "0.76188");
}

TEST(BoreAndBetaTest, EachStepIsSingle) {
    // In double precision the first would end in ...6428, the second in ...3661.
    EXPECT_EQ(BoreFromBeta(0.101007F, 13.124F, 0.03937008F), 33.67063904F);
    EXPECT_EQ(BetaFromBore(10.007F, 13.124F, 0.03937008F), 0.03001953475F);
}

TEST(BoreAndBetaTest, AnyNumberInAnyPipeHasItsOther) {
    EXPECT_EQ(BoreFromBeta(-0.5F, 2.0F, 1.0F), -1.0F);
    EXPECT_EQ(BoreFromBeta(100.0F, 2.0F, 1.0F), 200.0F);
    EXPECT_EQ(BetaFromBore(-1.0F, 2.0F, 1.0F), -0.5F);
    EXPECT_EQ(BetaFromBore(0.0F, 2.0F, 1.0F), 0.0F);
    EXPECT_EQ(BetaFromBore(0.5F, 1.0F, 1.0F), 0.5F);
    // But for a pipe without diameter, which has no beta.
    EXPECT_EQ(BetaFromBore(1.0F, 0.0F, 1.0F), std::nullopt);
    EXPECT_EQ(BetaFromBore(0.0F, 0.0F, 1.0F), std::nullopt);
    EXPECT_EQ(BetaFromBore(1.0F, -0.0F, 1.0F), std::nullopt);
    EXPECT_EQ(BoreFromBeta(0.5F, 0.0F, 1.0F), 0.0F);
}

TEST(BoreAndBetaTest, OverflowGivesNothing) {
    EXPECT_EQ(BoreFromBeta(kMax, 2.0F, 1.0F), std::nullopt);
    EXPECT_EQ(BoreFromBeta(kMax, 1.0F, 0.03937008F), std::nullopt);
    EXPECT_EQ(BetaFromBore(kMax, 0.5F, 1.0F), std::nullopt);
    EXPECT_EQ(BetaFromBore(kMax, 2.0F, 3.0F), std::nullopt);
    EXPECT_EQ(BoreFromBeta(kMax, 0.5F, 1.0F), kMax / 2);
}

}  // namespace
}  // namespace tarvix::testing
