// A ring of blocks. Its buffers are kept, so that after the first rounds nothing is allocated.
#include "repository/storage/BackgroundSink.h"

#include <system_error>
#include <utility>

#include "foundation/WorkerThread.h"

BackgroundSink::~BackgroundSink() { stop(); }

void BackgroundSink::write(std::string_view block) {
  if (std::exchange(isFirst_, false)) {
    target_.write(block);
    return;
  }
  if (!thread_.joinable() && !isAlone_) start();
  if (isAlone_) {
    target_.write(block);
    return;
  }
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return failure_ || given_ - taken_ < blockCount; });
  if (failure_) std::rethrow_exception(failure_);
  std::string& place = blocks_[given_ % blockCount];
  lock.unlock();  // nobody else touches a block that is not given yet
  place.assign(block);
  lock.lock();
  ++given_;
  changed_.notify_one();
}

void BackgroundSink::finish() {
  stop();
  if (failure_) std::rethrow_exception(failure_);
}

void BackgroundSink::start() {
  try {
    thread_ = startWorkerThread([this] { run(); });
  } catch (const std::system_error&) {
    isAlone_ = true;
  }
}

void BackgroundSink::run() noexcept {
  std::unique_lock lock(mutex_);
  for (;;) {
    changed_.wait(lock, [this] { return isFinished_ || given_ > taken_; });
    if (given_ == taken_) return;
    const std::string& block = blocks_[taken_ % blockCount];
    lock.unlock();
    std::exception_ptr failure;
    try {
      target_.write(block);
    } catch (...) {
      failure = std::current_exception();
    }
    lock.lock();
    ++taken_;
    failure_ = failure;
    changed_.notify_one();
    if (failure_) return;
  }
}

void BackgroundSink::stop() noexcept {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    isFinished_ = true;
    changed_.notify_one();
  }
  thread_.join();
}
