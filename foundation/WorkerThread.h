// startWorkerThread: threads that help the one that asked for them.
#pragma once

#include <thread>
#include <utility>

#include "foundation/SignalHold.h"

/// A thread that does `work` and never gets a signal that ends the process: such a signal goes to the thread
/// that does the import, which may hold it back. Raises std::system_error when the system has no thread to
/// give.
template <class Work>
std::thread startWorkerThread(Work&& work) {
  const SignalHold inherited;
  return std::thread(std::forward<Work>(work));
}
