// KYRPhaseTimes: where the time of an import goes, for a host that wants to know.
//
// A host makes one current and runs an import; the phases then enter the processor time that they
// took. Nobody pays for it otherwise. Reading ahead runs beside the making of objects, so the sum of
// all phases may exceed what the clock on the wall tells.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>

#include "foundation/Export.h"

/// The phases of an import in their order. A file that is read more than once is tokenised once.
enum class KYRPhase { tokenise, normalise, objects, link, extension, convert, finish, save, release };

class KYRImportProgress;

class KYR_EXPORT KYRPhaseTimes {
 public:
  static constexpr std::size_t phaseCount = 9;

  /// The times that phases of this process enter into, or null. Borrowed; to be set before an import
  /// and taken back after it.
  static void setCurrent(KYRPhaseTimes* times) noexcept;
  static KYRPhaseTimes* getCurrent() noexcept;
  /// "tokenise", "normalise", ...
  static const char* getName(KYRPhase phase) noexcept;

  /// Seconds of processor time spent so far.
  double getSeconds(KYRPhase phase) const noexcept { return seconds_[static_cast<std::size_t>(phase)]; }
  /// Threads may enter at the same time.
  void add(KYRPhase phase, double seconds) noexcept { seconds_[static_cast<std::size_t>(phase)] += seconds; }

 private:
  std::array<std::atomic<double>, phaseCount> seconds_{};
};

/// Enters the processor time of this thread from its making to its end, and tells the progress of the import
/// of the phase. A timer that ends within another's life is counted in both.
class KYR_EXPORT KYRPhaseTimer {
 public:
  explicit KYRPhaseTimer(KYRPhase phase) noexcept;
  KYRPhaseTimer(const KYRPhaseTimer&) = delete;
  KYRPhaseTimer& operator=(const KYRPhaseTimer&) = delete;
  ~KYRPhaseTimer();

 private:
  KYRPhaseTimes* const times_;
  KYRImportProgress* const progress_;
  const KYRPhase phase_;
  const int phaseBefore_;
  const double start_;
};
