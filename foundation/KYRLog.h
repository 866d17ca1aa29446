// KYRLog, KYRLogEvent: where messages go. A host derives from KYRLog.
#pragma once

#include "foundation/KYRString.h"

/// Levels of messages, as numbers that a host may compare: the smaller the graver.
namespace KYRLogLevel {
constexpr int fatal = 1;
constexpr int warning = 3;
constexpr int status = 5;
/// The number of "FATAL", "WARNING" or "STATUS"; `status` for any other name.
KYR_EXPORT int fromName(const KYRString& name) noexcept;
/// The name of a level number.
KYR_EXPORT const char* toName(int level) noexcept;
}  // namespace KYRLogLevel

/// One message on its way to a log. Text and code travel apart.
class KYR_EXPORT KYRLogEvent {
 public:
  /// `detail` is a further text, empty in this system.
  KYRLogEvent(const KYRString& text, const KYRString& code, int level, const KYRString& detail);
  const KYRString& getText() const noexcept { return text_; }
  const KYRString& getCode() const noexcept { return code_; }
  int getLevel() const noexcept { return level_; }
  const KYRString& getDetail() const noexcept { return detail_; }

 private:
  KYRString text_;
  KYRString code_;
  int level_;
  KYRString detail_;
};

class KYR_EXPORT KYRLog {
 public:
  virtual ~KYRLog();
  /// Receives an event and records it.
  virtual void log(const KYRLogEvent& event) = 0;
};
