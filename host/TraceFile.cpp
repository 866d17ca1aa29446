// Lines are gathered to blocks, since there is one for nearly every element of a file.
#include "host/TraceFile.h"

#include <algorithm>
#include <vector>

#include "host/KYRHostTexts.h"
#include "host/NormalizeSummary.h"
#include "host/TextOut.h"

namespace {

constexpr std::size_t blockSize = std::size_t{1} << 16U;

void totalsToJson(JsonOut& json, const KYRTraceTotals& totals) {
  json.key("elements").number(totals.read);
  json.key("converted").number(totals.converted);
  json.key("absorbed").number(totals.absorbed);
  json.key("lost").number(totals.lost);
}

void textToJson(JsonOut& json, const char* key, const KYRString& text) {
  if (!text.isEmpty()) json.key(key).text(text);
}

}  // namespace

TraceFile::TraceFile(const std::string& path) : path_(path) {
  if (path.empty()) return;
  // A trace can be made again, so nobody waits for the disk.
  file_ = std::make_unique<ReplacedFile>(KYRFile(KYRString(path)), ReplacedFile::Wait::untilNamed);
  setCurrent(this);
}

TraceFile::~TraceFile() {
  if (file_ != nullptr) setCurrent(nullptr);
}

void TraceFile::record(const KYRTraceRecord& told) {
  const KYRTraceReasons::Row& row = KYRTraceReasons::get(told.reason);
  counts_[static_cast<std::size_t>(told.reason)] += told.count;
  json_.beginLine();
  json_.beginObject();
  json_.key("outcome").text(KYRTraceReasons::getName(row.outcome));
  json_.key("reason").text(row.getIdentifier());
  if (*told.kind != '\0') json_.key("kind").text(told.kind);
  textToJson(json_, "id", told.id);
  textToJson(json_, "name", told.name);
  if (told.line != 0) json_.key("line").number(told.line);
  if (told.count != 1) json_.key("count").number(told.count);
  if (*told.objectKind != '\0') {
    json_.key("object").text(told.objectKind);
    json_.key("path").text(told.objectPath);
  }
  textToJson(json_, "missing", told.missingId);
  json_.key("text").text(told.sentence);
  json_.endObject();
  addLine();
}

void TraceFile::finish(const KYRTraceTotals& totals) {
  totals_ = totals;
  isFinished_ = true;
}

void TraceFile::addLine() {
  buffer_ += json_.endLine();
  if (buffer_.size() < blockSize) return;
  file_->write(buffer_);
  buffer_.clear();
}

void TraceFile::commit(const NormalizeReport* rules) {
  if (file_ == nullptr) return;
  if (rules != nullptr) {
    json_.beginLine();
    json_.beginObject();
    NormalizeSummary::toJson(json_.key("normalized"), *rules);
    json_.endObject();
    addLine();
  }
  if (isFinished_) {  // the sum is the last line
    json_.beginLine();
    json_.beginObject();
    totalsToJson(json_, totals_);
    json_.endObject();
    addLine();
  }
  file_->write(buffer_);
  buffer_.clear();
  file_->commit();
}

void TraceFile::write(TextOut& out) const {
  if (file_ == nullptr) return;
  out.line(KYRHostTexts::SUMMARY_TRACE, totals_.read, totals_.converted, totals_.absorbed, totals_.lost,
           path_);
  std::vector<std::size_t> lost;
  for (std::size_t i = 0; i < counts_.size(); ++i) {
    const bool isLost = KYRTraceReasons::get(static_cast<KYRTraceReason>(i)).outcome == KYRTraceOutcome::lost;
    if (isLost && counts_[i] != 0) lost.push_back(i);
  }
  std::stable_sort(lost.begin(), lost.end(),
                   [this](std::size_t a, std::size_t b) { return counts_[a] > counts_[b]; });
  for (const std::size_t i : lost) {
    out.line(KYRHostTexts::INSPECT_COUNT, counts_[i],
             KYRTraceReasons::get(static_cast<KYRTraceReason>(i)).getIdentifier());
  }
}

void TraceFile::write(JsonOut& json) const {
  if (file_ == nullptr) return;
  json.key("trace").beginObject();
  json.key("output").text(path_);
  totalsToJson(json, totals_);
  json.key("reasons").beginObject();
  for (std::size_t i = 0; i < counts_.size(); ++i) {
    if (counts_[i] == 0) continue;
    json.key(KYRTraceReasons::get(static_cast<KYRTraceReason>(i)).getIdentifier().view()).number(counts_[i]);
  }
  json.endObject();
  json.endObject();
}
