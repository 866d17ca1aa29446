// One number for each reason.
#include "host/TraceCounts.h"

#include <algorithm>

#include "host/KYRHostTexts.h"
#include "host/TextOut.h"

void TraceCounts::add(const KYRTraceRecord& told) noexcept {
  counts_[static_cast<std::size_t>(told.reason)] += told.count;
}

std::uint64_t TraceCounts::getCount(KYRTraceReason reason) const noexcept {
  return counts_[static_cast<std::size_t>(reason)];
}

std::vector<KYRTraceReason> TraceCounts::findReasons(KYRTraceOutcome outcome) const {
  std::vector<KYRTraceReason> found;
  for (std::size_t i = 0; i < counts_.size(); ++i) {
    const auto reason = static_cast<KYRTraceReason>(i);
    if (counts_[i] != 0 && KYRTraceReasons::get(reason).outcome == outcome) found.push_back(reason);
  }
  std::stable_sort(found.begin(), found.end(),
                   [this](KYRTraceReason a, KYRTraceReason b) { return getCount(a) > getCount(b); });
  return found;
}

void TraceCounts::writeReasons(TextOut& out, KYRTraceOutcome outcome) const {
  for (const KYRTraceReason reason : findReasons(outcome)) {
    out.line(KYRHostTexts::INSPECT_COUNT, getCount(reason), KYRTraceReasons::get(reason).getIdentifier());
  }
}

void TraceCounts::writeTotals(JsonOut& json) const {
  json.key("elements").number(totals_.read);
  json.key("converted").number(totals_.converted);
  json.key("absorbed").number(totals_.absorbed);
  json.key("lost").number(totals_.lost);
}

void TraceCounts::writeReasons(JsonOut& json) const {
  json.key("reasons").beginObject();
  for (std::size_t i = 0; i < counts_.size(); ++i) {
    if (counts_[i] == 0) continue;
    json.key(KYRTraceReasons::get(static_cast<KYRTraceReason>(i)).getIdentifier().view()).number(counts_[i]);
  }
  json.endObject();
}
