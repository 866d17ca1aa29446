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
  /// The hash of an id, for `IdTable::intern`: computed anew only for one that was not expected, or whose
  /// place here another one has taken.
  std::uint32_t hashOf(const KYRString& id) noexcept;
  /// Forgets what was expected: its characters may go, and others come in their place.
  void forget() noexcept { known_.fill({}); }
  /// Hashes computed anew by `hashOf` so far; tests see by it that expected ids are known.
  std::uint64_t getComputedCount() const noexcept { return computed_; }

 private:
  // Several times as many as are told ahead at once (XmlEventPipe), so that few lose their place.
  static constexpr std::size_t size = 256;
  static constexpr std::size_t fewestBytes = 8;  // from one id to the next, as a rule
  struct Known {
    const char* characters = nullptr;
    std::uint32_t hash = 0;
  };
  static std::size_t placeOf(const char* characters) noexcept {
    return reinterpret_cast<std::uintptr_t>(characters) / fewestBytes % size;
  }

  const IdTable& ids_;
  std::array<Known, size> known_;               // each at the place that its characters tell
  std::array<std::uint32_t, size> expected_{};  // hashes in order, a ring
  std::size_t count_ = 0;
  std::uint64_t computed_ = 0;
};
