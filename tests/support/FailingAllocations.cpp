// The replaced operator new of the test program.
#include "tests/support/FailingAllocations.h"

#include <cstdlib>
#include <new>

namespace {
int allocationsToFail = 0;
}

FailingAllocations::FailingAllocations(int count) { allocationsToFail = count; }

FailingAllocations::~FailingAllocations() { allocationsToFail = 0; }

void* operator new(std::size_t size) {
  if (allocationsToFail > 0) {
    --allocationsToFail;
    throw std::bad_alloc();
  }
  if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }

void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
