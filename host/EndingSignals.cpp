// The handler does what POSIX allows in one: it removes files and sends signals.
#include "host/EndingSignals.h"

#include <unistd.h>

#include "host/ExitCode.h"
#include "host/ProgressLine.h"
#include "report/GraphvizProcess.h"
#include "repository/storage/UnfinishedFiles.h"

namespace {

void removeAndEnd(int signal) {
  UnfinishedFiles::removeAll();
  GraphvizProcess::endAtSignal();
  ProgressLine::wipeAtSignal();
  EndingSignals::endBy(signal);
}

}  // namespace

void EndingSignals::handle() noexcept {
  struct sigaction action = {};
  action.sa_handler = removeAndEnd;
  // One at a time: a second one must not end the process before the first has removed the files.
  for (const int signal : all) sigaddset(&action.sa_mask, signal);
  for (const int signal : all) {
    struct sigaction before = {};
    sigaction(signal, nullptr, &before);
    if (before.sa_handler != SIG_IGN) sigaction(signal, &action, nullptr);
  }
}

void EndingSignals::endBy(int signal) noexcept {
  std::signal(signal, SIG_DFL);
  raise(signal);
  sigset_t only;
  sigemptyset(&only);
  sigaddset(&only, signal);
  sigprocmask(SIG_UNBLOCK, &only, nullptr);  // the raised one comes now
  _exit(ExitCode::failed);
}
