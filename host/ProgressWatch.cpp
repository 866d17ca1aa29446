// A system that has no thread to give costs the line, not the import.
#include "host/ProgressWatch.h"

#include <new>
#include <system_error>

#include "foundation/WorkerThread.h"
#include "host/ProgressText.h"

ProgressWatch::ProgressWatch(bool isWanted) : line_(isWanted) {
  if (!line_.isOn()) return;
  try {
    thread_ = startWorkerThread([this] {
      try {
        watch();
      } catch (const std::bad_alloc&) {
        // The import will say so if it does not come to its end.
      }
    });
  } catch (const std::system_error&) {
    return;
  }
  KYRImportProgress::setCurrent(&progress_);
}

ProgressWatch::~ProgressWatch() {
  if (!thread_.joinable()) return;
  KYRImportProgress::setCurrent(nullptr);
  {
    const std::lock_guard lock(mutex_);
    isEnded_ = true;
  }
  ended_.notify_one();
  thread_.join();
}

void ProgressWatch::tell(const HostText<0>& text) {
  const std::lock_guard lock(mutex_);
  told_ = text.toString();
}

void ProgressWatch::watch() {
  std::unique_lock lock(mutex_);
  for (std::chrono::milliseconds wait = ProgressLine::patience;
       !ended_.wait_for(lock, wait, [this] { return isEnded_; }); wait = ProgressLine::interval) {
    line_.show((told_.isEmpty() ? ProgressText::of(progress_.getState()) : told_).view());
  }
}
