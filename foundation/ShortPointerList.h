// ShortPointerList: a few pointers in one piece of memory, in order of adding.
//
// A model has lists by the hundred thousand, and most of those that hold more than one entry hold a
// handful. As a KYRVector such a list is two pieces of memory, of which more is frame than content.
#pragma once

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <new>

class ShortPointerList {
 public:
  /// The most that one holds.
  static constexpr std::uint32_t highestCount = 15;

  ShortPointerList(const ShortPointerList&) = delete;
  ShortPointerList& operator=(const ShortPointerList&) = delete;

  /// A list of the same entries with room for at least one more, or without room when it can hold no more;
  /// an empty one for null. To be given to `destroy`.
  static ShortPointerList* larger(const ShortPointerList* list) {
    // With its frame each of them fills a size in which allocators hand out memory.
    const std::uint32_t count = list == nullptr ? 0 : list->count_;
    const std::uint32_t capacity = count < 5 ? 5 : count < 11 ? 11 : highestCount;
    void* const place = ::operator new(sizeof(ShortPointerList) + capacity * sizeof(const void*));
    auto* const made = new (place) ShortPointerList(capacity);
    for (std::uint32_t i = 0; i < count; ++i) made->append(list->at(i));
    return made;
  }
  static void destroy(ShortPointerList* list) noexcept { ::operator delete(list); }

  std::uint32_t getCount() const noexcept { return count_; }
  bool isFull() const noexcept { return count_ == capacity_; }
  /// Null beyond the end.
  const void* at(std::uint32_t index) const noexcept { return index < count_ ? entries()[index] : nullptr; }
  bool contains(const void* entry) const noexcept {
    return std::find(entries(), entries() + count_, entry) != entries() + count_;
  }
  /// Only when the list is not full.
  void append(const void* entry) noexcept {
    assert(!isFull());
    new (entries() + count_++) const void*(entry);
  }
  void removeAt(std::uint32_t index) noexcept {
    if (index >= count_) return;
    std::copy(entries() + index + 1, entries() + count_, entries() + index);
    --count_;
  }

 private:
  explicit ShortPointerList(std::uint32_t capacity) noexcept : capacity_(capacity) {}
  ~ShortPointerList() = default;

  // The entries stand behind the list.
  const void** entries() noexcept { return reinterpret_cast<const void**>(this + 1); }
  const void* const* entries() const noexcept { return reinterpret_cast<const void* const*>(this + 1); }

  std::uint32_t count_ = 0;
  std::uint32_t capacity_;
};
static_assert(sizeof(ShortPointerList) % alignof(const void*) == 0);
