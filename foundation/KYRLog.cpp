// Log events and the names of their levels.
#include "foundation/KYRLog.h"

int KYRLogLevel::fromName(const KYRString& name) noexcept {
  if (name.view() == "FATAL") return fatal;
  if (name.view() == "WARNING") return warning;
  return status;
}

const char* KYRLogLevel::toName(int level) noexcept {
  if (level <= fatal) return "FATAL";
  return level <= warning ? "WARNING" : "STATUS";
}

KYRLogEvent::KYRLogEvent(const KYRString& text, const KYRString& code, int level, const KYRString& detail)
    : text_(text), code_(code), level_(level), detail_(detail) {}

KYRLog::~KYRLog() = default;
