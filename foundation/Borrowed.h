// Borrowed<T, Container>: the typed face of a list of pointers that it does not own.
//
// The container family stores `const void*`. Since the UML classes have virtual bases, a pointer
// must come out as the type it went in as; this face converts in one place, so the uniqueness test
// compares like with like. Most lists of a model are empty or hold one entry, so the face costs one
// pointer: null, the single entry itself (marked in the lowest bit), or a Container on the heap.
#pragma once

#include <cassert>
#include <cstdint>
#include <memory>
#include <utility>

#include "foundation/KYRVector.h"

template <class T, class Container = KYRVector>
class Borrowed {
 public:
  using Entry = T;
  Borrowed() noexcept = default;
  Borrowed(const Borrowed& other) { *this = other; }
  Borrowed(Borrowed&& other) noexcept : bits_(std::exchange(other.bits_, 0)) {}
  Borrowed& operator=(const Borrowed& other) {
    if (this != &other) {
      const std::uintptr_t copy = other.isHeap() ? number(new Container(*other.heap())) : other.bits_;
      clear();
      bits_ = copy;
    }
    return *this;
  }
  Borrowed& operator=(Borrowed&& other) noexcept {
    std::swap(bits_, other.bits_);
    return *this;
  }
  ~Borrowed() { clear(); }

  /// Appends; with `unique` an entry already present is refused and the result is false.
  bool add(T* entry, bool unique = true) {
    if (bits_ == 0 && entry != nullptr) {
      bits_ = single(entry);
      return true;
    }
    if (isSingle()) {
      if (unique && at(0) == entry) return false;
      auto container = std::make_unique<Container>();
      container->add(untyped(at(0)), false, nullptr);
      container->add(untyped(entry), false, nullptr);
      bits_ = number(container.release());
      return true;
    }
    if (bits_ == 0) bits_ = number(new Container());
    return heap()->add(untyped(entry), unique, nullptr);
  }
  /// Number of entries. It may change during a walk, so loops read it each time.
  unsigned int count() const noexcept {
    if (bits_ == 0) return 0;
    return isSingle() ? 1 : heap()->getCount();
  }
  bool isEmpty() const noexcept { return count() == 0; }
  /// The entry at a position from 0; null beyond the end.
  T* at(unsigned int index) const noexcept {
    if (isSingle()) return index == 0 ? typed(pointer(bits_ & ~singleMark)) : nullptr;
    return bits_ == 0 ? nullptr : typed(heap()->getAt(index));
  }
  bool contains(const T* entry) const {
    if (isSingle()) return at(0) == entry;
    return bits_ != 0 && heap()->contains(untyped(entry), nullptr);
  }
  void removeAt(unsigned int index) {
    if (isSingle()) {
      if (index == 0) bits_ = 0;
    } else if (bits_ != 0) {
      heap()->removeAt(index);
    }
  }
  /// Removes the entry wherever it stands; false when it is not there.
  bool remove(const T* entry) {
    for (unsigned int i = 0; i < count(); ++i) {
      if (at(i) == entry) {
        removeAt(i);
        return true;
      }
    }
    return false;
  }
  void clear() noexcept {
    if (isHeap()) delete heap();
    bits_ = 0;
  }
  /// Pointer comparisons of the uniqueness test so far; see KYRVector.
  std::uint64_t getComparisonCount() const noexcept { return isHeap() ? heap()->getComparisonCount() : 0; }

  class Walk {
   public:
    Walk(const Borrowed& list, unsigned int index) noexcept : list_(&list), index_(index) {}
    T* operator*() const noexcept { return list_->at(index_); }
    Walk& operator++() noexcept {
      ++index_;
      return *this;
    }
    bool operator!=(const Walk& other) const noexcept { return index_ != other.index_; }

   private:
    const Borrowed* list_;
    unsigned int index_;
  };
  /// A walk over the entries that are there when it starts.
  Walk begin() const noexcept { return {*this, 0}; }
  Walk end() const noexcept { return {*this, count()}; }

 private:
  static constexpr std::uintptr_t singleMark = 1;
  static const void* untyped(const T* entry) noexcept { return static_cast<const void*>(entry); }
  static T* typed(const void* entry) noexcept { return static_cast<T*>(const_cast<void*>(entry)); }
  static std::uintptr_t single(const T* entry) noexcept {
    const std::uintptr_t bits = number(untyped(entry));
    assert((bits & singleMark) == 0);  // objects with a virtual table lie at even addresses
    return bits | singleMark;
  }
  static std::uintptr_t number(const void* pointed) noexcept {
    return reinterpret_cast<std::uintptr_t>(pointed);
  }
  // NOLINTNEXTLINE(performance-no-int-to-ptr): a marked pointer is a number, that is the idea
  static void* pointer(std::uintptr_t bits) noexcept { return reinterpret_cast<void*>(bits); }
  bool isSingle() const noexcept { return (bits_ & singleMark) != 0; }
  bool isHeap() const noexcept { return bits_ != 0 && !isSingle(); }
  Container* heap() const noexcept { return static_cast<Container*>(pointer(bits_)); }

  std::uintptr_t bits_ = 0;
};
