// A text that is meant to be a number, with its value, read once.
#pragma once

#include "numbers/number_text.h"

#include <optional>
#include <string>
#include <utility>

namespace tarvix {

class EnteredNumber {
  public:
    // An empty text, no number.
    EnteredNumber() = default;

    EnteredNumber(std::string text, const NumberLocale& locale)
        : text_(std::move(text)), value_(TextToDouble(text_, locale)) {}

    // A literal, as US English writes it.
    // NOLINTNEXTLINE(google-explicit-constructor,hicpp-explicit-conversions)
    EnteredNumber(const char* literal) : EnteredNumber(literal, NumberLocale{}) {}

    const std::string& text() const { return text_; }
    bool empty() const { return text_.empty(); }

    bool IsNumeric() const { return value_.has_value(); }

    // The value in each precision; nothing when the text is not numeric.
    std::optional<double> Double() const { return value_; }
    std::optional<float> Single() const {
        return value_ ? std::optional(static_cast<float>(*value_)) : std::nullopt;
    }

    // 0 when the text is not numeric.
    float SingleOrZero() const { return Single().value_or(0.0F); }

  private:
    std::string text_;
    std::optional<double> value_;
};

}  // namespace tarvix
