// FailingAllocations: makes the next allocations of this program fail. Link FailingAllocations.cpp
// into the test program, which replaces operator new.
#pragma once

class FailingAllocations {
 public:
  /// The next `count` allocations raise std::bad_alloc; later ones succeed again.
  explicit FailingAllocations(int count);
  FailingAllocations(const FailingAllocations&) = delete;
  FailingAllocations& operator=(const FailingAllocations&) = delete;
  /// Allocations succeed again, also when fewer were made.
  ~FailingAllocations();
};
