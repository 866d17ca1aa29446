// Random numbers that are the same with every compiler and library. Numbers follow from a seed and a
// place, not from the calls made before, so any part of a generated file can be made again on its own.
#pragma once

#include <cstdint>

namespace bench {

/// Scrambles a number: equal inputs give equal outputs, near ones give far ones.
constexpr std::uint64_t mix(std::uint64_t value) {
  value += 0x9E3779B97F4A7C15U;
  value = (value ^ (value >> 30U)) * 0xBF58476D1CE4E5B9U;
  value = (value ^ (value >> 27U)) * 0x94D049BB133111EBU;
  return value ^ (value >> 31U);
}

/// Scrambles two numbers into one.
constexpr std::uint64_t mix(std::uint64_t first, std::uint64_t second) { return mix(mix(first) ^ second); }

/// A sequence of numbers that follows from its seed.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state(seed) {}

  std::uint64_t next() { return mix(state++); }

  /// A number from 0 to `limit` - 1; `limit` is not 0.
  std::uint32_t below(std::uint32_t limit) { return static_cast<std::uint32_t>((next() >> 32U) % limit); }

  /// True in `percent` of 100 cases.
  bool chance(std::uint32_t percent) { return below(100) < percent; }

 private:
  std::uint64_t state;
};

}  // namespace bench
