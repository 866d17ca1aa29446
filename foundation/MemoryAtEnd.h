// MemoryAtEnd: what a process that is about to end does with large things that nobody needs any more.
//
// Taking a few million small objects apart takes a good part of the time of an import. A command that
// makes one import and ends can spare itself that: the system takes all memory of a process at once.
#pragma once

#include <memory>

#include "foundation/Export.h"

class KYR_EXPORT MemoryAtEnd {
 public:
  /// Whether the process ends soon after what it does now, so that memory may be left to the system. It
  /// is not unless its host says so. May be called from any thread.
  static void leaveToSystem(bool isLeft) noexcept;
  /// Something large is still to come, whatever the host has said: memory is freed from now on. May be
  /// called from any thread.
  static void needMemory(bool isNeeded) noexcept;
  static bool isLeftToSystem() noexcept;

  /// Destroys `object`, or leaves it in memory, where it stays reachable until the process ends.
  template <class T>
  static void give(std::unique_ptr<T> object) noexcept {
    if (isLeftToSystem() && keep(object.get())) static_cast<void>(object.release());
  }

 private:
  // False when there is no memory to remember it.
  static bool keep(const void* object) noexcept;
};
