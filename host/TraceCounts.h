// TraceCounts: how many elements of a file were converted, absorbed and lost, and for which reasons.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "foundation/KYRImportTrace.h"
#include "host/JsonOut.h"

class TextOut;

class TraceCounts {
 public:
  void add(const KYRTraceRecord& told) noexcept;
  void setTotals(const KYRTraceTotals& totals) noexcept { totals_ = totals; }
  const KYRTraceTotals& getTotals() const noexcept { return totals_; }
  std::uint64_t getCount(KYRTraceReason reason) const noexcept;
  /// The reasons of that outcome that were told, most frequent first.
  std::vector<KYRTraceReason> findReasons(KYRTraceOutcome outcome) const;

  /// A line for each of those reasons.
  void writeReasons(TextOut& out, KYRTraceOutcome outcome) const;
  /// The members "elements", "converted", "absorbed" and "lost" of the object that is open.
  void writeTotals(JsonOut& json) const;
  /// The member "reasons": all that were told.
  void writeReasons(JsonOut& json) const;

 private:
  KYRTraceTotals totals_;
  std::array<std::uint64_t, KYRTraceReasons::count> counts_{};
};
