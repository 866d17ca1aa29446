// Signals are held by the mask of the thread: nothing has to be done in a handler.
#include "foundation/SignalHold.h"

#include <pthread.h>

namespace {
constexpr int endingSignals[] = {SIGINT, SIGTERM, SIGHUP};
}

SignalHold::SignalHold() noexcept {
  sigset_t held;
  sigemptyset(&held);
  for (const int signal : endingSignals) sigaddset(&held, signal);
  pthread_sigmask(SIG_BLOCK, &held, &before_);
}

SignalHold::~SignalHold() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

bool SignalHold::isSignalled() noexcept {
  sigset_t waiting;
  sigemptyset(&waiting);
  sigpending(&waiting);
  for (const int signal : endingSignals) {
    if (sigismember(&waiting, signal) == 1) return true;
  }
  return false;
}
