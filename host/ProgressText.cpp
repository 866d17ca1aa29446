// Bytes are told in megabytes of a million, as file managers do.
#include "host/ProgressText.h"

#include <cstdio>

#include "host/KYRHostTexts.h"

namespace {

constexpr std::uint64_t whole = 100;

KYRString inMegabytes(std::uint64_t bytes) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f", static_cast<double>(bytes) / 1e6);
  return KYRString(text);
}

KYRString nameOf(KYRPhase phase) {
  using namespace KYRHostTexts;
  switch (phase) {
    case KYRPhase::tokenise:
    case KYRPhase::objects:
      return PROGRESS_OBJECTS.toString();
    case KYRPhase::normalise:
      return PROGRESS_NORMALISE.toString();
    case KYRPhase::link:
      return PROGRESS_LINK.toString();
    case KYRPhase::extension:
      return PROGRESS_EXTENSION.toString();
    case KYRPhase::convert:
      return PROGRESS_CONVERT.toString();
    case KYRPhase::finish:
      return PROGRESS_FINISH.toString();
    case KYRPhase::save:
      return PROGRESS_SAVE.toString();
    case KYRPhase::release:
      return PROGRESS_RELEASE.toString();
  }
  return KYRString();
}

bool isReading(const KYRImportProgress::State& state) noexcept { return state.bytesRead < state.bytesTotal; }

KYRString percentOf(const KYRImportProgress::State& state) {
  return KYRString(std::to_string(state.bytesRead * whole / state.bytesTotal));
}

KYRString laterPhaseOf(const KYRImportProgress::State& state) {
  return state.phase.has_value() ? nameOf(*state.phase) : KYRString();
}

}  // namespace

KYRString ProgressText::of(const KYRImportProgress::State& state) {
  if (!isReading(state)) return laterPhaseOf(state);
  return KYRHostTexts::PROGRESS_READING.toString(inMegabytes(state.bytesRead), inMegabytes(state.bytesTotal),
                                                 percentOf(state));
}

KYRString ProgressText::brieflyOf(const KYRImportProgress::State& state) {
  if (!isReading(state)) return laterPhaseOf(state);
  return KYRHostTexts::PROGRESS_READING_BRIEFLY.toString(percentOf(state));
}
