// FailingCalls: makes system calls of this program fail, and threads that are to be started, wherever they
// are made.
#pragma once

#include <cstddef>

enum class FailingCall { open, read, write, sync, rename, remove, thread };

/// The call of that number, from 0 on, fails with that errno, and so do those behind it when the extent
/// says so. One object at a time; calls of all threads count.
class CallFault {
 public:
  enum class Extent { one, allFrom };
  CallFault(FailingCall call, long number, int error, Extent extent = Extent::one) noexcept;
  CallFault(const CallFault&) = delete;
  CallFault& operator=(const CallFault&) = delete;
  ~CallFault();
  bool hasFailed() const noexcept;
};

/// While it lives, reads and writes take at most so many bytes at a time.
class ShortTransfers {
 public:
  explicit ShortTransfers(std::size_t bytes) noexcept;
  ShortTransfers(const ShortTransfers&) = delete;
  ShortTransfers& operator=(const ShortTransfers&) = delete;
  ~ShortTransfers();
};
