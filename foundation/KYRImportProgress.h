// KYRImportProgress: how far an import has come, for a host that wants to show it.
//
// A host makes one current and runs an import; the import then enters how much of a file it has read and
// which phase it is in, and the host looks from another thread, or from another process when the object
// stands in memory that both share. Nobody pays for it otherwise.
#pragma once

#include <atomic>
#include <cstdint>
#include <optional>

#include "foundation/Export.h"
#include "foundation/KYRPhaseTimes.h"

class KYR_EXPORT KYRImportProgress {
 public:
  struct State {
    std::optional<KYRPhase> phase;  // nothing between two phases; reading is told by the bytes
    std::uint64_t bytesRead = 0;    // of the file that is open; 0 when none is
    std::uint64_t bytesTotal = 0;   // its size when it was opened; 0 when none is
  };

  KYRImportProgress() = default;
  KYRImportProgress(const KYRImportProgress&) = delete;
  KYRImportProgress& operator=(const KYRImportProgress&) = delete;

  /// What imports of this process enter their progress into, or null. Borrowed; to be set before an import
  /// and taken back after it.
  static void setCurrent(KYRImportProgress* progress) noexcept;
  static KYRImportProgress* getCurrent() noexcept;

  /// A moment's look, whose parts may be a moment apart.
  State getState() const noexcept;

  /// Enters a phase and gives what to go back to with `leave`.
  int enter(KYRPhase phase) noexcept;
  void leave(int before) noexcept { phase_.store(before, std::memory_order_relaxed); }
  void openFile(std::uint64_t size) noexcept;
  void addBytes(std::uint64_t count) noexcept { bytesRead_.fetch_add(count, std::memory_order_relaxed); }
  void closeFile() noexcept;

 private:
  static constexpr int noPhase = -1;

  std::atomic<int> phase_{noPhase};
  std::atomic<std::uint64_t> bytesRead_{0};
  std::atomic<std::uint64_t> bytesTotal_{0};
  // Two processes share no locks.
  static_assert(std::atomic<std::uint64_t>::is_always_lock_free && std::atomic<int>::is_always_lock_free);
};
