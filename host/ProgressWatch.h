// ProgressWatch: shows the progress of an import of this process while it lives.
//
// A thread of its own looks now and then, so that the work itself is not held up.
#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

#include "foundation/KYRImportProgress.h"
#include "host/HostLiteral.h"
#include "host/ProgressLine.h"

class ProgressWatch {
 public:
  /// Does nothing unless it is wanted and there is a terminal.
  explicit ProgressWatch(bool isWanted);
  ProgressWatch(const ProgressWatch&) = delete;
  ProgressWatch& operator=(const ProgressWatch&) = delete;
  ~ProgressWatch();

  /// From now on the work is what the text says, whatever the phases.
  void tell(const HostText<0>& text);

 private:
  void watch();

  KYRImportProgress progress_;
  ProgressLine line_;
  std::mutex mutex_;
  std::condition_variable ended_;
  bool isEnded_ = false;
  KYRString told_;
  std::thread thread_;
};
