// Numbers stand in columns of fixed width, and the name of the file behind them.
#include "host/ImportReport.h"

#include <cstdio>

#include "foundation/KYRFile.h"
#include "host/ImportChild.h"
#include "host/JsonOut.h"
#include "host/KYRHostMessages.h"
#include "host/KYRHostTexts.h"
#include "host/ProgressText.h"
#include "host/TextOut.h"

namespace {

std::string rowOf(const KYRString& word, double seconds, const SavedModelCounts* counts,
                  const std::string& name) {
  char start[64];
  std::snprintf(start, sizeof start, "%-6s %9.2f", word.getCharacters(), seconds);
  std::string row = start;
  const SavedModelCounts none;
  const SavedModelCounts& shown = counts != nullptr ? *counts : none;
  for (const std::uint64_t number : {shown.packages, shown.classes, shown.interfaces, shown.attributes,
                                     shown.operations, shown.arguments}) {
    constexpr std::size_t width = 12;
    const std::string text = counts != nullptr ? std::to_string(number) : "-";
    row.append(text.size() < width ? width - text.size() : 1, ' ');
    row += text;
  }
  return row + "  " + TerminalText::escape(name) + "\n";
}

}  // namespace

ImportReport::ImportReport(bool isQuiet, HostLog::Format format, std::size_t fileCount, Output& output,
                           HostLog& log)
    : isQuiet_(isQuiet),
      format_(format),
      fileCount_(fileCount),
      output_(output),
      log_(log),
      progress_(!isQuiet && format == HostLog::Format::text) {}

void ImportReport::tell(const ImportChild& child) {
  log_.passOn(child.getShown(), child.getLogged());
  if (child.isDone()) {
    tellDone(child);
  } else {
    tellFailed(child);
  }
  output_.flush();
}

void ImportReport::tellDone(const ImportChild& child) {
  const ImportCommand::Result& result = child.getResult();
  seconds_ += result.seconds;
  if (result.counts.has_value()) sum_ += *result.counts;
  if (isQuiet_) {
    // No other line names the file that the warnings are of.
    if (!child.getShown().empty()) KYRHostMessages::FILE_HAS_WARNINGS.log(log_, KYRString(child.getFile()));
    return;
  }
  const std::string target = ImportCommand::targetOf(child.getSettings());
  if (format_ == HostLog::Format::json) {
    JsonOut json;
    json.beginObject();
    json.key("file").text(child.getFile());
    ImportCommand::resultToJson(json, target, result);
    json.endObject();
    output_.write(json.endLine());
    return;
  }
  TextOut(output_).line(KYRHostTexts::SUMMARY, target, ImportCommand::inSeconds(result.seconds));
  rows_ += rowOf(KYRHostTexts::BATCH_DONE.toString(), result.seconds,
                 result.counts.has_value() ? &*result.counts : nullptr, child.getFile());
}

void ImportReport::tellFailed(const ImportChild& child) {
  ++failed_;
  const KYRString name(child.getFile());
  log_.fail(child.getSignal() != 0
                ? KYRHostMessages::FILE_BROKEN_OFF.getMessage(name, KYRString(child.getSignal()))
                : KYRHostMessages::FILE_FAILED.getMessage(name));
  if (isQuiet_) return;
  if (format_ == HostLog::Format::json) {
    JsonOut json;
    json.beginObject();
    json.key("file").text(child.getFile());
    json.key("failed").boolean(true);
    json.endObject();
    output_.write(json.endLine());
    return;
  }
  TextOut(output_).line(KYRHostTexts::BATCH_FILE_FAILED, child.getFile());
  rows_ += rowOf(KYRHostTexts::BATCH_FAILED.toString(), child.getResult().seconds, nullptr, child.getFile());
}

void ImportReport::close() {
  if (isQuiet_) return;
  if (format_ == HostLog::Format::json) {
    JsonOut json;
    json.beginObject();
    json.key("files").number(fileCount_);
    json.key("failed").number(failed_);
    json.key("seconds").real(seconds_);
    json.endObject();
    output_.write(json.endLine());
    return;
  }
  TextOut out(output_);
  out.line(KYRHostTexts::BATCH_HEAD);
  output_.write(rows_);
  const KYRString sum = KYRHostTexts::BATCH_SUM.toString(KYRString(std::to_string(fileCount_)),
                                                         KYRString(std::to_string(failed_)));
  output_.write(rowOf(KYRString(), seconds_, &sum_, std::string(sum.view())));
}

void ImportReport::showProgress(std::size_t done, const std::vector<const ImportChild*>& running) {
  if (!showsProgress()) return;
  KYRString line = KYRHostTexts::BATCH_PROGRESS.toString(KYRString(std::to_string(done)),
                                                         KYRString(std::to_string(fileCount_)));
  for (const ImportChild* child : running) {
    const KYRString state = ProgressText::brieflyOf(child->getProgress());
    if (state.isEmpty()) continue;
    const KYRString name = KYRFile(KYRString(child->getFile())).getFileName();
    line += KYRHostTexts::BATCH_PROGRESS_OF.toString(KYRString(TerminalText::escape(name.view())), state);
  }
  progress_.show(line.view());
}
