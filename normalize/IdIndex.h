// IdIndex: which element bears an id. The first one of an id stays.
#pragma once

#include <cstdint>
#include <string_view>

#include "foundation/TextSlots.h"

class IdIndex {
 public:
  static constexpr std::uint32_t none = 0xFFFFFFFFU;

  /// `expected` is the number of ids to make room for.
  explicit IdIndex(std::size_t expected = 0);
  /// Enters an id, whose characters must outlive the index and end in a zero. Returns who bore it before, or
  /// `none`.
  std::uint32_t enter(std::string_view id, std::uint32_t bearer) { return enter(id, bearer, hashOf(id)); }
  /// As above, with the id's hash.
  std::uint32_t enter(std::string_view id, std::uint32_t bearer, std::uint32_t hash);
  std::uint32_t hashOf(std::string_view id) const noexcept { return slots_.hashOf(id, seed_); }
  /// Asks the processor for what `enter` will read.
  void prefetch(std::uint32_t hash) const noexcept { slots_.prefetch(hash); }
  /// Who bears the id, or `none`.
  std::uint32_t find(std::string_view id) const noexcept;

 private:
  struct Slot {
    const char* id = nullptr;
    std::uint32_t hash = 0;
    std::uint32_t bearer = none;
    bool isFree() const noexcept { return bearer == none; }
    static constexpr bool isGone() noexcept { return false; }
    bool isOf(std::string_view text) const noexcept;
  };

  TextSlots<Slot> slots_;
  std::uint64_t seed_;
};
