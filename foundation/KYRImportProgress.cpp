// One pointer that is nearly always null. The numbers stand for themselves, so no order is asked of them.
#include "foundation/KYRImportProgress.h"

namespace {
KYRImportProgress* watched = nullptr;
}

void KYRImportProgress::setCurrent(KYRImportProgress* progress) noexcept { watched = progress; }

KYRImportProgress* KYRImportProgress::getCurrent() noexcept { return watched; }

KYRImportProgress::State KYRImportProgress::getState() const noexcept {
  State state;
  const int phase = phase_.load(std::memory_order_relaxed);
  if (phase != noPhase) state.phase = static_cast<KYRPhase>(phase);
  state.bytesTotal = bytesTotal_.load(std::memory_order_relaxed);
  if (state.bytesTotal != 0) state.bytesRead = bytesRead_.load(std::memory_order_relaxed);
  return state;
}

int KYRImportProgress::enter(KYRPhase phase) noexcept {
  return phase_.exchange(static_cast<int>(phase), std::memory_order_relaxed);
}

void KYRImportProgress::openFile(std::uint64_t size) noexcept {
  bytesRead_.store(0, std::memory_order_relaxed);
  bytesTotal_.store(size, std::memory_order_relaxed);
}

void KYRImportProgress::closeFile() noexcept { bytesTotal_.store(0, std::memory_order_relaxed); }
