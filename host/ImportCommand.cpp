// One import by the plug-in, and what is said of it.
#include "host/ImportCommand.h"

#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <memory>

#include "foundation/KYRFile.h"
#include "foundation/KYROption.h"
#include "foundation/MemoryAtEnd.h"
#include "foundation/xml/XmlRewriting.h"
#include "host/ExitCode.h"
#include "host/FileNames.h"
#include "host/KYRHostMessages.h"
#include "host/KYRHostTexts.h"
#include "host/PhaseReport.h"
#include "host/PluginLibrary.h"
#include "host/ProgressWatch.h"
#include "host/TextOut.h"
#include "host/TraceFile.h"
#include "repository/plugin/KYRImportBridgeDllInterface.h"

namespace {

constexpr const char* rootPackageOption = "BP_ROOT_PACKAGE";
// Read by libkyr, not by the plug-in, hence in no list of options that a plug-in gives.
constexpr const char* modificationTimeOption = "BP_MODIFICATION_TIME";

void countsToJson(JsonOut& json, const SavedModelCounts& counts) {
  json.key("packages").number(counts.packages);
  json.key("classes").number(counts.classes);
  json.key("interfaces").number(counts.interfaces);
  json.key("attributes").number(counts.attributes);
  json.key("operations").number(counts.operations);
  json.key("arguments").number(counts.arguments);
  json.key("diagrams").number(counts.diagrams);
}

void lossToJson(JsonOut& json, const LossSurvey::Loss& loss) {
  json.key("lost").beginObject();
  json.key("classes").number(loss.classes);
  json.key("attributes").number(loss.attributes);
  json.key("associations").number(loss.associations);
  json.key("reasons").text(loss.reasons);
  json.endObject();
}

}  // namespace

std::string ImportCommand::targetOf(const Settings& settings) {
  return FileNames::outputOf(settings.file, settings.output, formatOf(settings));
}

StoreModelFormat ImportCommand::formatOf(const Settings& settings) {
  if (settings.modelFormat.has_value()) return *settings.modelFormat;
  return settings.isAppending ? StoreModelFormat::sqlite : FileNames::formatOf(settings.output);
}

int ImportCommand::run() {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point start = Clock::now();
  target_ = targetOf(settings_);
  if (isWrongUsage()) return ExitCode::wrongUsage;
  const std::string missing = FileNames::missingFolderOf(target_);
  if (!missing.empty()) {
    KYRHostMessages::NO_FOLDER.throwException(KYRString(target_), KYRString(missing));
  }
  if (!settings_.logFile.empty()) log_.openFile(settings_.logFile);
  library_.load(settings_.plugin);
  KYROptionList options;
  fillOptions(options);
  const PhaseReport phases(settings_.withTiming);
  ModelSaver saver = makeSaver();
  if (settings_.isQuiet && !settings_.isResultWanted) saver.skipCounting();
  TraceFile trace(settings_.traceFile);
  ProgressWatch progress(!settings_.isQuiet && settings_.format == HostLog::Format::text);
  // A database needs memory while it is made, and is given that of the objects that were read.
  MemoryAtEnd::leaveToSystem(formatOf(settings_) != StoreModelFormat::sqlite);
  importFile(options);
  trace.commit(normalizer_ ? &normalizer_->getReport() : nullptr);
  result_ = {std::chrono::duration<double>(Clock::now() - start).count(), saver.getCounts()};
  if (!settings_.isQuiet) summarize(phases, trace, progress);
  return ExitCode::done;
}

ModelSaver ImportCommand::makeSaver() {
  if (isToOutput(settings_)) return {formatOf(settings_), output_};
  return {formatOf(settings_), settings_.isAppending};
}

void ImportCommand::summarize(const PhaseReport& phases, const TraceFile& trace, ProgressWatch& progress) {
  if (!isToOutput(settings_)) return writeSummary(phases, trace, progress, output_);
  Output terminal(STDERR_FILENO);
  writeSummary(phases, trace, progress, terminal);
  terminal.flush();
}

void ImportCommand::importFile(KYROptionList& options) {
  const KYRFile input{KYRString(settings_.file)};
  std::optional<XmlRewriting> rewriting;
  if (settings_.normalize.isWanted()) {
    normalizer_.emplace(std::string(input.getFileName().view()), settings_.normalize.getExtent());
    rewriting.emplace(input, *normalizer_);
  } else if (!settings_.isQuiet) {
    // The trace looks at the tree when the import is over.
    survey_.emplace(std::string(input.getFileName().view()), !settings_.traceFile.empty());
    rewriting.emplace(input, *survey_);
  }
  KYRFile target{KYRString(target_)};
  if (!library_.getPlugin().run(originId, target, options, log_)) {
    KYRHostMessages::PLUGIN_REFUSED.throwException();
  }
  if (normalizer_) NormalizeSummary::logNotes(log_, normalizer_->getReport());
}

bool ImportCommand::isWrongUsage() {
  if (isToOutput(settings_) && formatOf(settings_) == StoreModelFormat::sqlite) {
    log_.fail(KYRHostMessages::DATABASE_TO_OUTPUT.getMessage());
    return true;
  }
  if (settings_.isAppending && formatOf(settings_) != StoreModelFormat::sqlite) {
    log_.fail(KYRHostMessages::APPEND_NEEDS_SQLITE.getMessage());
    return true;
  }
  return filesClash();
}

bool ImportCommand::filesClash() {
  if (isTarget(settings_.file)) {
    log_.fail(KYRHostMessages::OUTPUT_IS_INPUT.getMessage(KYRString(target_)));
    return true;
  }
  if (traceClashes()) {
    log_.fail(KYRHostMessages::TRACE_IS_OTHER_FILE.getMessage(KYRString(settings_.traceFile)));
    return true;
  }
  if (settings_.logFile.empty()) return false;
  if (FileNames::isSame(settings_.logFile, settings_.file)) {
    log_.fail(KYRHostMessages::LOG_FILE_IS_INPUT.getMessage(KYRString(settings_.logFile)));
    return true;
  }
  if (isTarget(settings_.logFile)) {
    log_.fail(KYRHostMessages::LOG_FILE_IS_OUTPUT.getMessage(KYRString(settings_.logFile)));
    return true;
  }
  return false;
}

bool ImportCommand::traceClashes() const {
  if (settings_.traceFile.empty()) return false;
  for (const std::string& other : {settings_.file, settings_.logFile}) {
    if (!other.empty() && FileNames::isSame(settings_.traceFile, other)) return true;
  }
  return isTarget(settings_.traceFile);
}

bool ImportCommand::isTarget(const std::string& file) const {
  return !isToOutput(settings_) && FileNames::isSame(file, target_);
}

void ImportCommand::fillOptions(KYROptionList& options) {
  library_.getPlugin().getOptionList(options);
  setOption(options, library_, fileOption, settings_.file);
  if (!settings_.rootPackage.empty()) setOption(options, library_, rootPackageOption, settings_.rootPackage);
  if (settings_.modificationTime.empty()) return;
  auto time = std::make_unique<KYROption>(modificationTimeOption, modificationTimeOption, OptionType::text,
                                          KYRString(), KYRString(), false);
  time->setValue(KYRString(settings_.modificationTime));
  options.add(time.release());  // takes ownership whatever it answers
}

void ImportCommand::setOption(KYROptionList& options, const PluginLibrary& library, const char* identifier,
                              const std::string& value) {
  KYROption* const option = options.get(identifier);
  if (option == nullptr) {
    KYRHostMessages::PLUGIN_NO_OPTION.throwException(KYRString(library.getPath()), KYRString(identifier));
  }
  option->setValue(KYRString(value));
}

KYRString ImportCommand::inSeconds(double seconds) {
  char text[32];
  std::snprintf(text, sizeof text, "%.2f", seconds);
  return KYRString(text);
}

void ImportCommand::resultToJson(JsonOut& json, const std::string& target, const Result& result) {
  json.key("output").text(target);
  json.key("seconds").real(result.seconds);
  if (result.counts.has_value()) countsToJson(json, *result.counts);
}

void ImportCommand::writeSummary(const PhaseReport& phases, const TraceFile& trace, ProgressWatch& progress,
                                 Output& output) {
  std::optional<LossSurvey::Loss> loss;
  if (result_.counts.has_value() && survey_) {
    progress.tell(KYRHostTexts::PROGRESS_SURVEY);
    loss =
        survey_->compare(KYRFile(KYRString(settings_.file)), *result_.counts, !settings_.rootPackage.empty());
  }
  if (settings_.format == HostLog::Format::json) {
    JsonOut json;
    json.beginObject();
    resultToJson(json, target_, result_);
    if (normalizer_) NormalizeSummary::toJson(json.key("normalized"), normalizer_->getReport());
    if (loss.has_value()) lossToJson(json, *loss);
    trace.write(json);
    phases.write(json);
    json.endObject();
    output.write(json.endLine());
    return;
  }
  TextOut out(output);
  out.line(KYRHostTexts::SUMMARY, target_, inSeconds(result_.seconds));
  if (result_.counts.has_value()) {
    const SavedModelCounts& counts = *result_.counts;
    out.line(KYRHostTexts::SUMMARY_COUNTS, counts.packages, counts.classes, counts.interfaces,
             counts.attributes, counts.operations, counts.arguments, counts.diagrams);
  }
  if (normalizer_) NormalizeSummary::toText(out, normalizer_->getReport());
  if (loss.has_value()) {
    out.line(KYRHostTexts::SUMMARY_LOST, loss->classes, loss->attributes, loss->associations, loss->reasons);
  }
  trace.write(out);
  phases.write(out);
}
