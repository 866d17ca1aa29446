// JsonAllocator: the memory of RapidJSON's readers and writers. Its own allocator hands on a null pointer
// when there is none, and the library writes to it.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <new>

/// RapidJSON's allocator concept, whose names these are.
class JsonAllocator {
 public:
  static constexpr bool kNeedFree = true;

  /// Raises std::bad_alloc; null for no bytes.
  void* Malloc(std::size_t size) { return size == 0 ? nullptr : checked(std::malloc(size)); }
  /// The same; what was there stays when it raises.
  void* Realloc(void* memory, std::size_t, std::size_t size) {
    if (size != 0) return checked(std::realloc(memory, size));
    std::free(memory);
    return nullptr;
  }
  static void Free(void* memory) noexcept { std::free(memory); }

 private:
  static void* checked(void* memory) {
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
  }
};
