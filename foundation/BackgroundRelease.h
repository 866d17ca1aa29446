// BackgroundRelease: takes large things apart on a thread of its own while its owner goes on.
//
// Freeing a few million small objects takes a good part of a second, and nobody waits for the result.
#pragma once

#include <memory>
#include <thread>
#include <utility>

#include "foundation/WorkerThread.h"

/// Whoever owns this waits, at the latest in its destructor, until all that was given is gone.
class BackgroundRelease {
 public:
  BackgroundRelease() = default;
  BackgroundRelease(const BackgroundRelease&) = delete;
  BackgroundRelease& operator=(const BackgroundRelease&) = delete;
  ~BackgroundRelease() { wait(); }

  /// Destroys `object`, which nobody else may use any more; in place when the system has no thread to give.
  template <class T>
  void give(std::unique_ptr<T> object) noexcept {
    wait();
    try {
      thread_ = startWorkerThread([taken = std::move(object)]() mutable noexcept { taken.reset(); });
    } catch (...) {  // what the thread would have owned went with it
    }
  }
  /// Returns when everything given has been destroyed.
  void wait() noexcept {
    if (thread_.joinable()) thread_.join();
  }

 private:
  std::thread thread_;
};
