// AddressRuns: tells of most new pointers that a list does not hold them, by their addresses alone.
//
// Objects are mostly added in the order in which they were made, and those made one after the other lie
// one behind the other in memory. So the addresses of a list rise in long runs, which lie apart: a few
// ranges say as much as a table of all entries would.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <vector>

/// The ranges of the addresses of a list. Internal to KYRVector.
class AddressRuns {
 public:
  /// Whether none of the entries that were added is `entry`. False means that it may be one.
  bool excludes(const void* entry, std::uint64_t& comparisons) const noexcept {
    ++comparisons;
    const std::uintptr_t address = addressOf(entry);
    if (continues(address)) return true;
    comparisons += std::bit_width(runs_.size());
    const auto above = firstAbove(address);
    return above == runs_.begin() || std::prev(above)->high < address;
  }

  /// Makes room for `entry`, the next of a list of `count`; `add` then needs no memory. False when the
  /// addresses do not rise in long runs, or when the list may hold it already.
  bool makeRoom(const void* entry, std::size_t count) {
    std::uint64_t comparisons = 0;
    if (!excludes(entry, comparisons)) return false;
    if (continues(addressOf(entry))) return true;
    if (runs_.size() > std::min(shortestAverage + count / shortestAverage, mostRuns)) return false;
    if (runs_.size() == runs_.capacity()) runs_.reserve(2 * runs_.size() + 1);
    return true;
  }

  void add(const void* entry) noexcept {
    const std::uintptr_t address = addressOf(entry);
    if (!continues(address)) {
      const auto above = firstAbove(address);
      limit_ = above == runs_.end() ? std::numeric_limits<std::uintptr_t>::max() : above->low;
      last_ = static_cast<std::size_t>(runs_.insert(above, {address, address}) - runs_.begin());
    }
    runs_[last_].high = address;
  }

 private:
  // Runs shorter than this on average are no better than a table.
  static constexpr std::size_t shortestAverage = 16;
  // A run that is new may move all others.
  static constexpr std::size_t mostRuns = 1024;
  // A wider gap may be filled with newer objects, whose addresses would then lie within the run.
  static constexpr std::uintptr_t longestStep = std::uintptr_t{64} * 1024;
  struct Run {
    std::uintptr_t low;
    std::uintptr_t high;
  };

  static std::uintptr_t addressOf(const void* entry) noexcept {
    return reinterpret_cast<std::uintptr_t>(entry);
  }
  bool continues(std::uintptr_t address) const noexcept {
    return last_ < runs_.size() && runs_[last_].high < address && address < limit_ &&
           address - runs_[last_].high <= longestStep;
  }
  std::vector<Run>::const_iterator firstAbove(std::uintptr_t address) const noexcept {
    return std::upper_bound(runs_.begin(), runs_.end(), address,
                            [](std::uintptr_t wanted, const Run& run) { return wanted < run.low; });
  }

  std::vector<Run> runs_;     // by address
  std::size_t last_ = 0;      // the run of the last entry
  std::uintptr_t limit_ = 0;  // where the run above that one begins
};
