// KYRDate: a point in time.
#pragma once

#include <cstdint>

#include "foundation/KYRString.h"

class KYR_EXPORT KYRDate {
 public:
  /// Seconds since 1970-01-01T00:00:00Z.
  explicit KYRDate(std::int64_t time) noexcept : time_(time) {}
  std::int64_t getTime() const noexcept { return time_; }
  /// The time in US Pacific time, as "2026-01-01 00:00:00 PST" or "... PDT". The rule is computed
  /// here (second Sunday of March to first Sunday of November, at 2 o'clock local time, the US law
  /// of 2007, for every year), so the machine's time zone data plays no part. Times outside the years
  /// 0 to 9999 count as the nearest one inside, here and in `getIsoTimestamp`.
  KYRString getPstTimestamp() const;
  /// The time as ISO 8601 in UTC: "2026-01-01T00:00:00Z".
  KYRString getIsoTimestamp() const;
  /// Reads "2026-01-01T00:00:00Z" (also with an offset such as "+02:00", or the date alone).
  /// False when the text is no such time; `time` is then untouched.
  static bool parseIsoTimestamp(const KYRString& text, std::int64_t& time);

 private:
  std::int64_t time_;
};
