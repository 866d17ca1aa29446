// The replaced operator new of the test program.
#include "tests/support/FailingAllocation.h"

#include <cstdlib>
#include <new>

namespace {
long allocationsLeft = -1;  // before one fails; below 0: none does
}

FailingAllocation::FailingAllocation(long number) { allocationsLeft = number; }

FailingAllocation::~FailingAllocation() { allocationsLeft = -1; }

bool FailingAllocation::hasFailed() const { return allocationsLeft < 0; }

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  if (allocationsLeft >= 0 && allocationsLeft-- == 0) return nullptr;
  return std::malloc(size == 0 ? 1 : size);
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
