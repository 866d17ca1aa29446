// KYREnumeration: the common part of the repository's enumerations. Each is a class of its own that
// holds one number, so that a field can only ever hold a number that the enumeration knows.
#pragma once

#include <cstdint>

#include "foundation/Export.h"

/// Raises a KYRException that names the enumeration and the number.
[[noreturn]] KYR_EXPORT void raiseInvalidEnumeration(const char* enumeration, int value);

/// `Self` names itself by a static `enumerationName`; the numbers run from 0 to `highest`.
template <class Self, int highest>
class KYREnumeration {
 public:
  static constexpr int highestValue = highest;
  KYREnumeration() noexcept = default;
  /// Raises for a number out of range.
  KYREnumeration(int value)  // NOLINT(google-explicit-constructor): numbers are how callers spell it
      : value_(static_cast<std::uint8_t>(isValid(value))) {}
  operator int() const noexcept { return value_; }  // NOLINT(google-explicit-constructor)
  /// The number itself when it is in range; raises a KYRException otherwise.
  static int isValid(int value) {
    if (value < 0 || value > highest) raiseInvalidEnumeration(Self::enumerationName, value);
    return value;
  }

 private:
  static_assert(highest >= 0 && highest <= 255);
  std::uint8_t value_ = 0;
};
