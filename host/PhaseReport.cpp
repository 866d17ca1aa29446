// All phases are told, also those that took no time, so that a script finds what it looks for.
#include "host/PhaseReport.h"

#include <cstdio>

#include "host/JsonOut.h"
#include "host/KYRHostTexts.h"
#include "host/TextOut.h"

namespace {

template <class Tell>
void tellAll(const KYRPhaseTimes& times, Tell tell) {
  for (std::size_t number = 0; number < KYRPhaseTimes::phaseCount; ++number) {
    const auto phase = static_cast<KYRPhase>(number);
    tell(KYRPhaseTimes::getName(phase), times.getSeconds(phase));
  }
}

}  // namespace

PhaseReport::PhaseReport(bool isWanted) noexcept : isWanted_(isWanted) {
  if (isWanted_) KYRPhaseTimes::setCurrent(&times_);
}

PhaseReport::~PhaseReport() {
  if (isWanted_) KYRPhaseTimes::setCurrent(nullptr);
}

void PhaseReport::write(TextOut& out) const {
  if (!isWanted_) return;
  tellAll(times_, [&out](const char* name, double seconds) {
    char text[32];
    std::snprintf(text, sizeof text, "%7.3f", seconds);
    out.line(KYRHostTexts::SUMMARY_PHASE, KYRString(text), KYRString(name));
  });
}

void PhaseReport::write(JsonOut& json) const {
  if (!isWanted_) return;
  json.key("phases").beginObject();
  tellAll(times_, [&json](const char* name, double seconds) { json.key(name).real(seconds); });
  json.endObject();
}
