// Random choices that are the same for a seed on every system.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace tarvix {

class RandomSource {
  public:
    explicit RandomSource(std::uint64_t seed) : engine_(seed) {}

    // 0 to limit - 1.
    int Below(int limit) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(limit)); }
    bool Chance(int percent) { return Below(100) < percent; }
    // 0 to 1.
    double Fraction() { return static_cast<double>(engine_() >> 11U) * 0x1p-53; }
    double Between(double low, double high) { return low + (high - low) * Fraction(); }

    template <typename List>
    const auto& Pick(const List& list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
    }

  private:
    std::mt19937_64 engine_;
};

}  // namespace tarvix
