// FailingAllocation: makes one allocation of this test program fail, wherever it is made.
#pragma once

class FailingAllocation {
 public:
  /// The allocation of that number, from 0 on, raises std::bad_alloc.
  explicit FailingAllocation(long number);
  FailingAllocation(const FailingAllocation&) = delete;
  FailingAllocation& operator=(const FailingAllocation&) = delete;
  /// Allocations succeed again.
  ~FailingAllocation();
  bool hasFailed() const;
};
