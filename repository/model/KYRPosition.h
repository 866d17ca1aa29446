// KYRPosition: the place of an object among its like, in 16 bits.
#pragma once

#include <cstdint>

/// Positions beyond 65535 saturate there, negative ones at 0.
class KYRPosition {
 public:
  static constexpr std::int64_t highest = 65535;
  KYRPosition() noexcept = default;
  KYRPosition(std::int64_t value) noexcept  // NOLINT(google-explicit-constructor): counts are assigned
      : value_(static_cast<std::uint16_t>(value < 0         ? 0
                                          : value > highest ? highest
                                                            : value)) {}
  operator int() const noexcept { return value_; }  // NOLINT(google-explicit-constructor)

 private:
  std::uint16_t value_ = 0;
};
