#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace velmar::sample {

/// A small deterministic generator (SplitMix64). The same seed gives the same numbers with every compiler and
/// library, which the standard's distributions do not promise. Not for secrets.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  /// A generator of its own for one row: rows stay the same when others are added before them.
  static Random ForRow(std::uint64_t seed, std::uint64_t row) { return Random(Mix(seed + Mix(row + 1))); }

  std::uint64_t Next() { return Mix(state_ += 0x9E3779B97F4A7C15U); }

  /// A whole number from 0 to bound - 1; bound is at least 1.
  std::uint32_t Below(std::uint32_t bound) {
    return static_cast<std::uint32_t>(((Next() >> 32U) * bound) >> 32U);
  }

  /// A whole number from low to high, both included.
  int Between(int low, int high) {
    return low + static_cast<int>(Below(static_cast<std::uint32_t>(high - low + 1)));
  }

  /// True in permille cases of a thousand.
  bool Chance(std::uint32_t permille) { return Below(1000) < permille; }

  template <typename Value, std::size_t size>
  const Value& Pick(const std::array<Value, size>& values) {
    return values[Below(static_cast<std::uint32_t>(size))];
  }

  /// An index of the table of weights, as often as its weight says. The weights add up to total.
  template <std::size_t size>
  std::size_t PickWeighted(const std::array<std::uint32_t, size>& weights, std::uint32_t total) {
    std::uint32_t rest = Below(total);
    for (std::size_t i = 0; i + 1 < size; ++i) {
      if (rest < weights[i]) return i;
      rest -= weights[i];
    }
    return size - 1;
  }

 private:
  static std::uint64_t Mix(std::uint64_t value) {
    value = (value ^ (value >> 30U)) * 0xBF58476D1CE4E5B9U;
    value = (value ^ (value >> 27U)) * 0x94D049BB133111EBU;
    return value ^ (value >> 31U);
  }

  std::uint64_t state_;
};

}  // namespace velmar::sample
