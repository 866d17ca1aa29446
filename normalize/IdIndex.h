// IdIndex: which element bears an id. The first one of an id stays.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

class IdIndex {
 public:
  static constexpr std::uint32_t none = 0xFFFFFFFFU;

  /// `expected` is the number of ids to make room for.
  explicit IdIndex(std::size_t expected = 0);
  /// Enters an id, whose characters must outlive the index and end in a zero. Returns who bore it before, or
  /// `none`.
  std::uint32_t enter(std::string_view id, std::uint32_t bearer);
  /// Who bears the id, or `none`.
  std::uint32_t find(std::string_view id) const noexcept;

 private:
  struct Slot {
    const char* id = nullptr;
    std::uint32_t hash = 0;
    std::uint32_t bearer = none;
  };
  static bool isOf(const Slot& slot, std::string_view id, std::uint32_t hash) noexcept;
  std::size_t slotOf(std::string_view id, std::uint32_t hash) const noexcept;
  std::uint32_t hashOf(std::string_view id) const noexcept;
  void grow();

  std::vector<Slot> slots_;  // open addressing; a power of two, at most two thirds full
  std::size_t count_ = 0;
  std::uint64_t seed_;
};
