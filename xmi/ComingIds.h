// ComingIds: ids that will be looked up soon.
//
// Looking up an id waits for memory three times, for its slot, its entry and its text, and linking waits for
// the object that bears it. The parser hears of ids some elements before it needs them, so each of the four
// is asked for while it does something else, and by the time of the question lies at hand.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "xmi/IdTable.h"

class ComingIds {
 public:
  /// The table must outlive this.
  explicit ComingIds(const IdTable& ids) noexcept : ids_(ids) {}
  /// An id that will be looked up after a few others. Its characters must stay where they are until then.
  void expect(const KYRString& id) noexcept;
  /// The hash of an id, for `IdTable::intern`; computed anew only for one that was not expected.
  std::uint32_t hashOf(const KYRString& id) const noexcept;

 private:
  static constexpr std::size_t size = 64;  // more than are ever told ahead but for odd files
  struct Known {
    const char* characters = nullptr;
    std::uint32_t hash = 0;
  };
  static std::size_t placeOf(const char* characters) noexcept {
    return reinterpret_cast<std::uintptr_t>(characters) / alignof(std::uint64_t) % size;
  }

  const IdTable& ids_;
  std::array<Known, size> known_;               // each at the place that its characters tell
  std::array<std::uint32_t, size> expected_{};  // hashes in order, a ring
  std::size_t count_ = 0;
};
