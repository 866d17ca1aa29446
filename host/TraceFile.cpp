// Lines are gathered to blocks, since there is one for nearly every element of a file.
#include "host/TraceFile.h"

#include "host/KYRHostTexts.h"
#include "host/NormalizeSummary.h"
#include "host/TextOut.h"

namespace {

constexpr std::size_t blockSize = std::size_t{1} << 16U;

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
  counts_.add(told);
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
  counts_.setTotals(totals);
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
    counts_.writeTotals(json_);
    json_.endObject();
    addLine();
  }
  file_->write(buffer_);
  buffer_.clear();
  file_->commit();
}

void TraceFile::write(TextOut& out) const {
  if (file_ == nullptr) return;
  const KYRTraceTotals& totals = counts_.getTotals();
  out.line(KYRHostTexts::SUMMARY_TRACE, totals.read, totals.converted, totals.absorbed, totals.lost, path_);
  counts_.writeReasons(out, KYRTraceOutcome::lost);
}

void TraceFile::write(JsonOut& json) const {
  if (file_ == nullptr) return;
  json.key("trace").beginObject();
  json.key("output").text(path_);
  counts_.writeTotals(json);
  counts_.writeReasons(json);
  json.endObject();
}
