// MemoryAtEnd: what a process that is about to end does with large things that nobody needs any more.
//
// Taking a few million small objects apart takes a good part of the time of an import. A command that
// makes one import and ends can spare itself that: the system takes all memory of a process at once.
#pragma once

#include <cstddef>
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

  /// Destroys `object`, which holds about `objectCount` others, or leaves it in memory, where it stays
  /// reachable until the process ends.
  template <class T>
  static void give(std::unique_ptr<T> object, std::size_t objectCount) noexcept {
    const bool isLeft = isLeftToSystem() && objectCount >= worthLeaving;
    if (isLeft && keep(object.get())) static_cast<void>(object.release());
  }
  /// Fewer objects are freed at once, so that in most processes nothing is left for a search for leaks.
  static constexpr std::size_t worthLeaving = 10000;

 private:
  // False when there is no memory to remember it.
  static bool keep(const void* object) noexcept;
};
