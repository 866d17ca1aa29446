// TextSlots: the slots of a hash table of texts.
//
// The ids and names that tools write are often counted: "c4711" comes behind "c4710", and is looked up behind
// it. So such texts lie near each other here: slots stand in groups of eight, and the group of a text is
// chosen by all its characters but the last two, which only move it among a few pages of memory. In a table
// of a million entries that spares most of the waiting for address translation. Texts that find their group
// full move on by steps that all their characters choose, so no choice of texts makes for long walks.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "foundation/TextHash.h"

/// Slots that users fill as they like. `Slot` is copied when the table grows and has
/// `std::uint32_t hash`, as `hashOf` gives it;
/// `bool isFree() const`, true of `Slot()`: nothing is or was there;
/// `bool isGone() const`: something was there, and what was entered later may stand behind it.
/// References to slots are valid until `claim`. Looking up counts, so it takes a table of one's own thread.
template <class Slot>
class TextSlots {
 public:
  static constexpr std::size_t groupSize = 8;

  /// `slotCount` is a power of two of at least `groupSize`.
  explicit TextSlots(std::size_t slotCount) : groups_(slotCount / groupSize) {}

  /// The hash of a text in tables that draw that seed. A file cannot be made so that its texts meet.
  static std::uint32_t hashOf(std::string_view text, std::uint64_t seed) noexcept {
    const std::size_t length = text.size() - std::min(text.size(), lastCharacters);
    const std::uint64_t first = TextHash::of(text.substr(0, length), seed);
    std::uint64_t last = 0;
    std::uint64_t neighbour = 0;
    for (const char character : text.substr(length)) {
      const auto byte = static_cast<unsigned char>(character);
      last = last << 8U | byte;
      neighbour = neighbour << 4U | byte % 16U;  // tells digits apart, and most letters
    }
    const std::uint64_t check = TextHash::mix(first, last) % (1U << checkBits);
    return static_cast<std::uint32_t>((first ^ neighbour) << checkBits | check);
  }

  /// The slot of that hash for which `isSought(slot)` holds; else the one where such a text is to be
  /// entered, which is free or gone.
  template <class IsSought>
  Slot& seek(std::uint32_t hash, IsSought isSought) noexcept {
    Slot* place = nullptr;
    for (GroupWalk walk(*this, hash);; walk.next()) {
      ++probes_;
      Group& group = groups_[walk.group];
      for (std::size_t i = 0; i < groupSize; ++i) {
        Slot& slot = group[(hash + i) % groupSize];
        if (slot.isFree()) return place != nullptr ? *place : slot;
        if (slot.isGone()) {
          if (place == nullptr) place = &slot;
        } else if (slot.hash == hash && isSought(slot)) {
          return slot;
        }
      }
    }
  }
  template <class IsSought>
  const Slot& seek(std::uint32_t hash, IsSought isSought) const noexcept {
    return const_cast<TextSlots*>(this)->seek(hash, isSought);
  }
  /// Makes the place that `seek` found one's own; the slot to fill may be another one, in a larger table.
  Slot& claim(Slot& place, std::uint32_t hash) {
    if (place.isGone()) return place;
    Slot* claimed = &place;
    if (3 * (used_ + 1) > 2 * getCount()) {
      rebuild(countTaken());
      claimed = &seek(hash, [](const Slot&) { return false; });
    }
    ++used_;
    return *claimed;
  }
  /// Asks memory for the slots of a hash, and, once they are there, which of them probably is the one.
  void prefetch(std::uint32_t hash) const noexcept { __builtin_prefetch(groups_[home(hash)].data()); }
  const Slot* guess(std::uint32_t hash) const noexcept {
    const auto& group = groups_[home(hash)];
    const auto found = std::find_if(group.begin(), group.end(), [hash](const Slot& slot) {
      return slot.hash == hash && !slot.isFree() && !slot.isGone();
    });
    return found == group.end() ? nullptr : &*found;
  }

  std::size_t getCount() const noexcept { return groups_.size() * groupSize; }
  /// Groups looked at so far.
  std::uint64_t getProbeCount() const noexcept { return probes_; }
  /// Calls `visit(slot)` for all that are neither free nor gone.
  template <class Visit>
  void forEach(Visit visit) const {
    for (const Group& group : groups_) {
      for (const Slot& slot : group) {
        if (!slot.isFree() && !slot.isGone()) visit(slot);
      }
    }
  }

 private:
  static constexpr std::size_t lastCharacters = 2;
  using Group = std::array<Slot, groupSize>;
  static constexpr unsigned int checkBits = 8;  // below those of the group

  // The step is odd, so the walk meets every group.
  struct GroupWalk {
    GroupWalk(const TextSlots& slots, std::uint32_t slotHash) noexcept
        : group(slots.home(slotHash)), mask(slots.groups_.size() - 1), hash(slotHash) {}
    void next() noexcept {
      group = (group + ((hash * std::uint64_t{0x9E3779B97F4A7C15U} >> 32) | 1U)) & mask;
    }
    std::size_t group;
    std::size_t mask;
    std::uint32_t hash;
  };

  std::size_t home(std::uint32_t hash) const noexcept { return (hash >> checkBits) & (groups_.size() - 1); }
  std::size_t countTaken() const noexcept {
    std::size_t count = 0;
    forEach([&count](const Slot&) { ++count; });
    return count;
  }
  // Where many are gone the table keeps its size.
  void rebuild(std::size_t taken) {
    TextSlots larger(3 * (taken + 1) > getCount() ? 2 * getCount() : getCount());
    forEach(
        [&larger](const Slot& slot) { larger.seek(slot.hash, [](const Slot&) { return false; }) = slot; });
    groups_.swap(larger.groups_);
    used_ = taken;
  }

  std::vector<Group> groups_;  // a power of two
  std::size_t used_ = 0;       // slots that are not free; two thirds of all at most
  mutable std::uint64_t probes_ = 0;
};
