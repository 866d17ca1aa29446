// Borrowed<T, Container>: the typed face of a list of pointers that it does not own.
//
// The container family stores `const void*`. Since the UML classes have virtual bases, a pointer
// must come out as the type it went in as; this face converts in one place, so the uniqueness test
// compares like with like. Most lists of a model are empty or hold one entry, and most others a few, so
// the face costs one pointer: null, the single entry itself, a ShortPointerList, or from sixteen entries on
// a Container, which has an index; the lowest bits tell which.
#pragma once

#include <cassert>
#include <cstdint>
#include <memory>
#include <utility>

#include "foundation/KYRVector.h"
#include "foundation/ShortPointerList.h"

template <class T, class Container = KYRVector>
class Borrowed {
 public:
  using Entry = T;
  Borrowed() noexcept = default;
  Borrowed(const Borrowed& other) { *this = other; }
  Borrowed(Borrowed&& other) noexcept : bits_(std::exchange(other.bits_, 0)) {}
  Borrowed& operator=(const Borrowed& other) {
    if (this != &other) {
      std::uintptr_t copy = other.bits_;
      if (other.isShort()) copy = number(ShortPointerList::larger(other.shortList())) | shortMark;
      if (other.isLong()) copy = number(new Container(*other.longList()));
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
    if (isLong()) return longList()->add(untyped(entry), unique, nullptr);
    if (bits_ == 0 && entry != nullptr) {
      bits_ = number(untyped(entry)) | singleMark;
      return true;
    }
    if (unique && contains(entry)) return false;
    if (count() == ShortPointerList::highestCount) {
      lengthen();
      return longList()->add(untyped(entry), false, nullptr);
    }
    makeRoom();
    shortList()->append(untyped(entry));
    return true;
  }
  /// Number of entries. It may change during a walk, so loops read it each time.
  unsigned int count() const noexcept {
    if (bits_ == 0) return 0;
    if (isSingle()) return 1;
    return isShort() ? shortList()->getCount() : longList()->getCount();
  }
  bool isEmpty() const noexcept { return count() == 0; }
  /// The entry at a position from 0; null beyond the end.
  T* at(unsigned int index) const noexcept {
    if (bits_ == 0) return nullptr;
    if (isSingle()) return index == 0 ? single() : nullptr;
    return typed(isShort() ? shortList()->at(index) : longList()->getAt(index));
  }
  bool contains(const T* entry) const {
    if (bits_ == 0) return false;
    if (isSingle()) return single() == entry;
    return isShort() ? shortList()->contains(untyped(entry)) : longList()->contains(untyped(entry), nullptr);
  }
  void removeAt(unsigned int index) {
    if (isSingle()) {
      if (index == 0) bits_ = 0;
    } else if (isShort()) {
      shortList()->removeAt(index);
    } else if (isLong()) {
      longList()->removeAt(index);
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
    if (isShort()) ShortPointerList::destroy(shortList());
    if (isLong()) delete longList();
    bits_ = 0;
  }
  /// Pointer comparisons of the uniqueness test so far, those of short lists left out; see KYRVector.
  std::uint64_t getComparisonCount() const noexcept {
    return isLong() ? longList()->getComparisonCount() : 0;
  }

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
  static constexpr std::uintptr_t shortMark = 2;
  static constexpr std::uintptr_t marks = singleMark | shortMark;

  static const void* untyped(const T* entry) noexcept { return static_cast<const void*>(entry); }
  static T* typed(const void* entry) noexcept { return static_cast<T*>(const_cast<void*>(entry)); }
  static std::uintptr_t number(const void* pointed) noexcept {
    const auto bits = reinterpret_cast<std::uintptr_t>(pointed);
    assert((bits & marks) == 0);  // what has a virtual table, or was allocated, lies at such addresses
    return bits;
  }
  // NOLINTNEXTLINE(performance-no-int-to-ptr): a marked pointer is a number, that is the idea
  void* pointer() const noexcept { return reinterpret_cast<void*>(bits_ & ~marks); }
  bool isSingle() const noexcept { return (bits_ & singleMark) != 0; }
  bool isShort() const noexcept { return (bits_ & shortMark) != 0; }
  bool isLong() const noexcept { return bits_ != 0 && (bits_ & marks) == 0; }
  T* single() const noexcept { return typed(pointer()); }
  ShortPointerList* shortList() const noexcept { return static_cast<ShortPointerList*>(pointer()); }
  Container* longList() const noexcept { return static_cast<Container*>(pointer()); }

  // A short list with room for one more entry, of the entries that are there.
  void makeRoom() {
    if (isShort() && !shortList()->isFull()) return;
    ShortPointerList* const list = ShortPointerList::larger(isShort() ? shortList() : nullptr);
    if (isSingle()) list->append(untyped(single()));
    if (isShort()) ShortPointerList::destroy(shortList());
    bits_ = number(list) | shortMark;
  }
  // From a full short list to a container.
  void lengthen() {
    auto container = std::make_unique<Container>(int{2 * ShortPointerList::highestCount});
    for (unsigned int i = 0; i < count(); ++i) container->add(untyped(at(i)), false, nullptr);
    ShortPointerList::destroy(shortList());
    bits_ = number(container.release());
  }

  std::uintptr_t bits_ = 0;
};
