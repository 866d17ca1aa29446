// FailingAllocation: makes allocations of this test program fail, wherever they are made: in C++ code
// everywhere, and without a sanitizer, which has an allocator of its own, in C libraries too.
#pragma once

class FailingAllocation {
 public:
  enum class Extent { one, allFrom };
  /// The allocation of that number, from 0 on, finds no memory, and those behind it neither when the extent
  /// says so. One object at a time; allocations of all threads count.
  explicit FailingAllocation(long number, Extent extent = Extent::one) noexcept;
  FailingAllocation(const FailingAllocation&) = delete;
  FailingAllocation& operator=(const FailingAllocation&) = delete;
  /// Allocations succeed again.
  ~FailingAllocation();
  bool hasFailed() const noexcept;
  /// How many allocations were asked for so far.
  static long getCount() noexcept;
  /// How many blocks of memory are in use, of C++ and of C; always 0 where the functions of C do not fail.
  static long getBlocks() noexcept;
  /// Whether the functions of C fail too.
  static bool reachesC() noexcept;
};
