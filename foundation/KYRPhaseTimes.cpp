// One pointer that is nearly always null, and the clock of the thread.
#include "foundation/KYRPhaseTimes.h"

#include <time.h>

#include "foundation/KYRImportProgress.h"

namespace {

KYRPhaseTimes* current = nullptr;

double threadSeconds() noexcept {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

}  // namespace

void KYRPhaseTimes::setCurrent(KYRPhaseTimes* times) noexcept { current = times; }

KYRPhaseTimes* KYRPhaseTimes::getCurrent() noexcept { return current; }

const char* KYRPhaseTimes::getName(KYRPhase phase) noexcept {
  static constexpr std::array<const char*, phaseCount> names = {
      "tokenise", "normalise", "objects", "link", "extension", "convert", "finish", "save", "release"};
  return names[static_cast<std::size_t>(phase)];
}

// Tokenising runs beside the making of objects and is told by the bytes read.
KYRPhaseTimer::KYRPhaseTimer(KYRPhase phase) noexcept
    : times_(current),
      progress_(phase == KYRPhase::tokenise ? nullptr : KYRImportProgress::getCurrent()),
      phase_(phase),
      phaseBefore_(progress_ == nullptr ? 0 : progress_->enter(phase)),
      start_(times_ == nullptr ? 0 : threadSeconds()) {}

KYRPhaseTimer::~KYRPhaseTimer() {
  if (progress_ != nullptr) progress_->leave(phaseBefore_);
  if (times_ != nullptr) times_->add(phase_, threadSeconds() - start_);
}
