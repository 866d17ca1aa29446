// KYRVector, KYROrderedVector: lists of object pointers in insertion order.
//
// Uniqueness is by pointer. Small lists are scanned; from `indexThreshold` entries on the list keeps
// an index of its pointers on the side, so that adding with `unique` stays near O(1).
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "foundation/KYRContainer.h"

class KYR_EXPORT KYRVector : public KYRContainer {
 public:
  KYRVector();
  /// Room for `initialSize` entries; a negative size counts as 0.
  explicit KYRVector(int initialSize);
  /// Shares the object pointers.
  KYRVector(const KYRVector& other);
  KYRVector(KYRVector&& other) noexcept;
  KYRVector& operator=(const KYRVector& other);
  KYRVector& operator=(KYRVector&& other) noexcept;
  ~KYRVector() override;

  void empty() override;
  Iterator* newIterator(bool forward) const override;
  void deleteIterator(Iterator* iterator) const override;
  bool add(const void* object, bool unique, Iterator* position) override;
  bool contains(const void* object, Iterator* position) const override;
  /// In a vector the key of an object is its address.
  const void* findFirst(const void* key, Iterator* position) const override;
  const void* remove(Iterator* position) override;

  /// Number of entries. It may change during a walk, so loops read it each time.
  unsigned int getCount() const noexcept { return static_cast<unsigned int>(entries_.size()); }
  bool isEmpty() const noexcept { return entries_.empty(); }
  /// The entry at a position from 0; null beyond the end.
  const void* getAt(unsigned int index) const noexcept {
    return index < entries_.size() ? entries_[index] : nullptr;
  }
  /// Removes a position; nothing beyond the end. O(1) at the last position.
  void removeAt(unsigned int index);
  /// Pointer comparisons and index probes made so far by the uniqueness test and `contains`.
  /// Tests count them to show that the cost stays linear.
  std::uint64_t getComparisonCount() const noexcept { return comparisons_; }

  /// Entries from which on a pointer index is kept.
  static constexpr unsigned int indexThreshold = 16;

 private:
  class PointerIndex;
  class VectorIterator;
  std::vector<const void*> entries_;
  mutable std::unique_ptr<PointerIndex> index_;
  mutable std::uint64_t comparisons_ = 0;
};

/// Marks what the metamodel declares as ordered. It behaves as a KYRVector.
class KYR_EXPORT KYROrderedVector : public KYRVector {
 public:
  using KYRVector::KYRVector;
  KYROrderedVector() = default;
  /// Shares the object pointers.
  explicit KYROrderedVector(const KYRVector& other) : _KYRContainer(other), KYRVector(other) {}
};
