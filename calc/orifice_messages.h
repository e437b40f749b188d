// Every message of the equations, for the message line.
#pragma once

#include <string_view>

namespace tarvix {

inline constexpr std::string_view kBetaTooLarge =
    "Flow rate is out of range (beta > 0.95). Flow rate too high for pipe size.";
inline constexpr std::string_view kBetaTooSmall = "Flow rate is out of range (beta <= 0.0).";
inline constexpr std::string_view kBetaNotBelowOne = "Beta Ratio must be less than 1.";

// What an iteration says when it can't end in a value.
struct IterationTexts {
    std::string_view flowTooHigh;  // the expansion factor turned negative
    std::string_view unresolved;   // no end after the last step, or no finite number
};

inline constexpr IterationTexts kGasDiffPressureTexts{
    "Unable to calculate differential pressure for conditions (Flow rate too high).",
    "Unable to resolve differential pressure for conditions."};
inline constexpr IterationTexts kGasBetaTexts{
    "Unable to calculate beta for conditions (Flow rate too high).",
    "Unable to resolve beta for conditions."};

inline constexpr IterationTexts kSteamDiffPressureTexts{
    kGasDiffPressureTexts.flowTooHigh, "Unable to resolve Differential Pressure for conditions."};
inline constexpr IterationTexts kSteamBetaTexts{kGasBetaTexts.flowTooHigh,
                                                "Unable to resolve Beta Ratio for conditions."};

}  // namespace tarvix
