// KYRObjectList: object pointers in order of adding, each once, with cheap removal from anywhere.
//
// Removing leaves a gap; reading by position, other than at the ends, closes all gaps at once. A long
// list finds its entries through an index that is made when the first removal or question asks for it,
// so that lists that only grow never pay for one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "foundation/Export.h"
#include "repository/model/KYRModelForward.h"
#include "repository/model/KYRPointerIndex.h"

/// Internal to the repository.
class KYR_EXPORT KYRObjectList {
 public:
  KYRObjectList() noexcept;
  KYRObjectList(const KYRObjectList&) = delete;
  KYRObjectList& operator=(const KYRObjectList&) = delete;
  ~KYRObjectList();

  std::uint32_t getCount() const noexcept {
    return static_cast<std::uint32_t>(entries_.size()) - first_ - gaps_;
  }
  KYRObject* getAt(std::uint32_t index) const noexcept {
    return gaps_ == 0 ? (index < getCount() ? entries_[std::size_t{first_} + index] : nullptr)
                      : getAmongGaps(index);
  }
  bool contains(const KYRObject* object) const noexcept;
  void add(KYRObject* object);
  /// False when it is not there. Needs no memory: without it only speed is lost.
  bool remove(const KYRObject* object) noexcept;
  void clear() noexcept;
  /// Comparisons and index probes made so far, from 0 again behind the highest number.
  std::uint32_t getComparisonCount() const noexcept;
  /// One that was made by whoever walks the entries.
  void countComparison() const noexcept { ++comparisons_; }

  /// Walks the entries where they stand, gaps as null.
  std::vector<KYRObject*>::const_iterator begin() const noexcept { return entries_.begin() + first_; }
  std::vector<KYRObject*>::const_iterator end() const noexcept { return entries_.end(); }

  /// Entries from which on an index is kept.
  static constexpr std::uint32_t indexThreshold = 16;

 private:
  static constexpr std::uint32_t none = KYRPointerIndex::none;
  KYRObject* getAmongGaps(std::uint32_t index) const noexcept;
  std::uint32_t find(const KYRObject* object) const noexcept;
  bool index() const noexcept;
  void closeGaps() const noexcept;
  void dropEnds() noexcept;

  mutable std::vector<KYRObject*> entries_;  // null in gaps
  mutable std::unique_ptr<KYRPointerIndex> positions_;
  mutable std::uint32_t first_ = 0;  // entries before it are gone
  mutable std::uint32_t gaps_ = 0;   // behind first_
  mutable std::uint32_t comparisons_ = 0;
};
