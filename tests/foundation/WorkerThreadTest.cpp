// startWorkerThread: the work is done, and signals that end a process do not reach it.
#include "foundation/WorkerThread.h"

#include <gtest/gtest.h>
#include <pthread.h>

namespace {

bool isHeld(int signal) {
  sigset_t held;
  pthread_sigmask(SIG_BLOCK, nullptr, &held);
  return sigismember(&held, signal) == 1;
}

TEST(WorkerThread, HoldsTheSignalsThatEndAProcessAndItsMakerDoesNot) {
  bool areHeld = false;
  startWorkerThread([&] { areHeld = isHeld(SIGINT) && isHeld(SIGTERM) && isHeld(SIGHUP); }).join();
  EXPECT_TRUE(areHeld);
  EXPECT_FALSE(isHeld(SIGTERM));
}

}  // namespace
