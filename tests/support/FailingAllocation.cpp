// The replaced allocation functions of the test program: those of C, on which those of C++ stand, or under
// a sanitizer those of C++ alone. Nothing here allocates but for its caller.
#include "tests/support/FailingAllocation.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <limits>
#include <new>

#include "foundation/Export.h"

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define KYR_SANITIZED_ALLOCATOR 1
#else
#define KYR_SANITIZED_ALLOCATOR 0
#endif

namespace {

constexpr long never = std::numeric_limits<long>::max();
std::atomic<long> allocations{0};  // while an object lives
std::atomic<long> firstFailure{never};
std::atomic<long> lastFailure{never};
std::atomic<long> blocks{0};

bool mayAllocate() noexcept {
  if (firstFailure.load(std::memory_order_relaxed) == never) return true;
  const long number = allocations++;
  return number < firstFailure || number > lastFailure;
}

}  // namespace

FailingAllocation::FailingAllocation(long number, Extent extent) noexcept {
  allocations = 0;
  lastFailure = extent == Extent::one ? number : never;
  firstFailure = number;
}

FailingAllocation::~FailingAllocation() { firstFailure = never; }

bool FailingAllocation::hasFailed() const noexcept { return allocations > firstFailure; }

long FailingAllocation::getCount() noexcept { return allocations; }

long FailingAllocation::getBlocks() noexcept { return blocks; }

bool FailingAllocation::reachesC() noexcept { return KYR_SANITIZED_ALLOCATOR == 0; }

#if KYR_SANITIZED_ALLOCATOR

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return mayAllocate() ? std::malloc(size == 0 ? 1 : size) : nullptr;
}

void* operator new(std::size_t size) {
  if (void* const memory = operator new(size, std::nothrow)) return memory;
  throw std::bad_alloc();
}

// Written out, since a sanitizer has forms of its own for arrays.
void* operator new[](std::size_t size) { return operator new(size); }

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return operator new(size, std::nothrow);
}

void operator delete(void* memory) noexcept { std::free(memory); }

void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

void operator delete[](void* memory) noexcept { std::free(memory); }

void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

#else

// The C library's own.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* __libc_calloc(std::size_t count, std::size_t size);
extern "C" void* __libc_realloc(void* memory, std::size_t size);
extern "C" void* __libc_memalign(std::size_t alignment, std::size_t size);
extern "C" void __libc_free(void* memory);

namespace {

void* counted(void* memory) noexcept {
  if (memory != nullptr) blocks.fetch_add(1, std::memory_order_relaxed);
  return memory;
}

void* refuse() noexcept {
  errno = ENOMEM;
  return nullptr;
}

}  // namespace

extern "C" KYR_EXPORT void* malloc(std::size_t size) {
  return mayAllocate() ? counted(__libc_malloc(size)) : refuse();
}

extern "C" KYR_EXPORT void* calloc(std::size_t count, std::size_t size) {
  return mayAllocate() ? counted(__libc_calloc(count, size)) : refuse();
}

extern "C" KYR_EXPORT void* realloc(void* memory, std::size_t size) {
  if (memory == nullptr) return malloc(size);
  if (!mayAllocate()) return refuse();
  void* const moved = __libc_realloc(memory, size);
  if (moved == nullptr && size == 0) --blocks;  // that was `free`
  return moved;
}

extern "C" KYR_EXPORT void* aligned_alloc(std::size_t alignment, std::size_t size) {
  return mayAllocate() ? counted(__libc_memalign(alignment, size)) : refuse();
}

extern "C" KYR_EXPORT int posix_memalign(void** memory, std::size_t alignment, std::size_t size) {
  if (!mayAllocate()) return ENOMEM;
  *memory = counted(__libc_memalign(alignment, size));
  return *memory == nullptr ? ENOMEM : 0;
}

extern "C" KYR_EXPORT void free(void* memory) {
  if (memory != nullptr) blocks.fetch_sub(1, std::memory_order_relaxed);
  __libc_free(memory);
}

#endif
