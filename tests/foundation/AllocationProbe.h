// Watches the allocator of the test program: counts allocations, and can make the n-th one fail.
// A program has one set of allocation functions, so all tests of this folder share these.
#pragma once

#include <cstddef>

/// Counts the allocations made while it lives.
class AllocationProbe {
 public:
  AllocationProbe() noexcept;
  std::size_t getCount() const noexcept;

 private:
  std::size_t start_;
};

/// While it lives, the allocation of that number (from 0) and all later ones fail.
class AllocationFailure {
 public:
  explicit AllocationFailure(std::size_t first) noexcept;
  AllocationFailure(const AllocationFailure&) = delete;
  AllocationFailure& operator=(const AllocationFailure&) = delete;
  ~AllocationFailure();
};
