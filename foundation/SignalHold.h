// SignalHold: keeps the signals that end a process from doing so in the middle of something.
#pragma once

#include <csignal>

#include "foundation/Export.h"

/// While one lives, SIGINT, SIGTERM and SIGHUP wait. They take effect when it dies, so what it protects
/// asks for `isSignalled` wherever it can stop.
class KYR_EXPORT SignalHold {
 public:
  SignalHold() noexcept;
  SignalHold(const SignalHold&) = delete;
  SignalHold& operator=(const SignalHold&) = delete;
  ~SignalHold();
  /// Whether one of them is waiting.
  static bool isSignalled() noexcept;

 private:
  sigset_t before_;
};
