// BackgroundQueue: items that a thread of its own takes one after the other, in the order in which they
// were given.
//
// A ring of items. They are kept and filled anew, so that after the first rounds nothing is allocated.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "foundation/WorkerThread.h"

template <class Item>
class BackgroundQueue {
 public:
  using Taker = std::function<void(const Item&)>;

  /// So many items can wait; they begin as copies of `empty`. What `taker` uses must outlive the queue.
  BackgroundQueue(std::size_t places, const Item& empty, Taker taker)
      : items_(places, empty), taker_(std::move(taker)) {}
  BackgroundQueue(const BackgroundQueue&) = delete;
  BackgroundQueue& operator=(const BackgroundQueue&) = delete;
  /// Returns when nothing is being taken any more. What waits is dropped.
  ~BackgroundQueue() { stop(); }

  /// Gives the item that `fill` fills, which has been used before; waits while there is none. Raises what
  /// the taker raised for an earlier one. Where the system has no thread to give, it is taken at once.
  template <class Fill>
  void give(const Fill& fill) {
    if (!thread_.joinable() && !isAlone_) start();
    if (isAlone_) {
      fill(items_[0]);
      taker_(items_[0]);
      return;
    }
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return failure_ || given_ - taken_ < items_.size(); });
    if (failure_) std::rethrow_exception(failure_);
    Item& place = items_[given_ % items_.size()];
    lock.unlock();  // nobody else touches an item that is not given yet
    fill(place);
    lock.lock();
    ++given_;
    changed_.notify_one();
  }

  /// Returns when all items are taken. Raises what the taker raised.
  void wait() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return failure_ || given_ == taken_; });
    if (failure_) std::rethrow_exception(failure_);
  }

 private:
  void start() {
    try {
      thread_ = startWorkerThread([this] { run(); });
    } catch (const std::system_error&) {
      isAlone_ = true;
    }
  }

  void run() noexcept {
    std::unique_lock lock(mutex_);
    for (;;) {
      changed_.wait(lock, [this] { return isFinished_ || given_ > taken_; });
      if (isFinished_) return;
      const Item& item = items_[taken_ % items_.size()];
      lock.unlock();
      std::exception_ptr failure;
      try {
        taker_(item);
      } catch (...) {  // it comes out of `give` or `wait`
        failure = std::current_exception();
      }
      lock.lock();
      ++taken_;
      failure_ = failure;
      changed_.notify_one();
      if (failure_) return;
    }
  }

  void stop() noexcept {
    if (!thread_.joinable()) return;
    {
      const std::lock_guard lock(mutex_);
      isFinished_ = true;
      changed_.notify_one();
    }
    thread_.join();
  }

  std::mutex mutex_;  // guards what follows, but for the items and the taker
  std::condition_variable changed_;
  std::size_t given_ = 0;
  std::size_t taken_ = 0;
  bool isFinished_ = false;
  std::exception_ptr failure_;
  std::vector<Item> items_;
  Taker taker_;
  std::thread thread_;    // started by the first item
  bool isAlone_ = false;  // the system had no thread to give
};
