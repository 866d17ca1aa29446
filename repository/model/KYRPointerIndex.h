// KYRPointerIndex: the place of each pointer in a list, by hash.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "foundation/Export.h"

/// Internal to the repository. Open addressing with linear probing; erasing leaves no marks behind.
class KYR_EXPORT KYRPointerIndex {
 public:
  static constexpr std::uint32_t none = 0xFFFFFFFFU;
  /// The place of the key, or `none`.
  std::uint32_t find(const void* key) const noexcept;
  /// Sets the place of a key, new or known.
  void set(const void* key, std::uint32_t place);
  /// Sets the place of a key that is there; nothing for another.
  void replace(const void* key, std::uint32_t place) noexcept;
  void erase(const void* key) noexcept;
  /// Room for that many keys without growing.
  void reserve(std::size_t count);
  std::uint64_t getProbeCount() const noexcept { return probes_; }

 private:
  struct Slot {
    const void* key = nullptr;
    std::uint32_t place = none;
  };
  std::size_t seek(const void* key) const noexcept;
  void rehash(std::size_t slotCount);

  std::vector<Slot> slots_;  // a power of two, at most 2/3 used
  std::size_t count_ = 0;
  mutable std::uint64_t probes_ = 0;
};
