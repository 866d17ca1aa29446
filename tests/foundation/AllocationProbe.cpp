// The replaced allocation functions stand on malloc, which sanitizers go on watching.
#include "tests/foundation/AllocationProbe.h"

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t never = std::numeric_limits<std::size_t>::max();
std::atomic<std::size_t> allocations{0};
std::atomic<std::size_t> firstFailure{never};

void* allocateOrNull(std::size_t size) noexcept {
  if (allocations++ >= firstFailure) return nullptr;
  return std::malloc(size == 0 ? 1 : size);
}

void* allocate(std::size_t size) {
  void* const memory = allocateOrNull(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

void* operator new(std::size_t size) { return allocate(size); }
void* operator new[](std::size_t size) { return allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocateOrNull(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return allocateOrNull(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { std::free(memory); }

AllocationProbe::AllocationProbe() noexcept : start_(allocations) {}

std::size_t AllocationProbe::getCount() const noexcept { return allocations - start_; }

AllocationFailure::AllocationFailure(std::size_t first) noexcept { firstFailure = allocations + first; }

AllocationFailure::~AllocationFailure() { firstFailure = never; }
