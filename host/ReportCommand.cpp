// Loading a model, and writing its page beside the target.
#include "host/ReportCommand.h"

#include "host/ExitCode.h"
#include "host/FileNames.h"
#include "host/JsonOut.h"
#include "host/KYRHostMessages.h"
#include "host/KYRHostTexts.h"
#include "host/LogLines.h"
#include "host/SavedModel.h"
#include "host/TextOut.h"
#include "report/ReportWriter.h"
#include "repository/storage/ReplacedFile.h"

int ReportCommand::run() {
  const std::string target = FileNames::pageOf(settings_.file, settings_.output);
  if (FileNames::isSame(settings_.file, target)) {
    log_.fail(KYRHostMessages::PAGE_IS_MODEL.getMessage(KYRString(target)));
    return ExitCode::wrongUsage;
  }
  if (!settings_.log.empty() && FileNames::isSame(settings_.log, target)) {
    log_.fail(KYRHostMessages::PAGE_IS_LOG.getMessage(KYRString(target)));
    return ExitCode::wrongUsage;
  }
  const std::string messages = messagesToJson();
  const std::unique_ptr<KYRStoreModel> model = SavedModel::load(settings_.file);
  ReplacedFile file(KYRFile(KYRString(target)), ReplacedFile::Wait::untilNamed);
  writeReport(*model, messages, file);
  file.commit();
  TextOut(output_).line(KYRHostTexts::REPORT_WRITTEN, target);
  return ExitCode::done;
}

// Each as a list of its level, code and text.
std::string ReportCommand::messagesToJson() const {
  if (settings_.log.empty()) return std::string();
  JsonOut json;
  json.beginArray();
  for (const LogLines::Message& message : LogLines::readFile(KYRFile(KYRString(settings_.log)))) {
    json.beginArray();
    json.text(message.level).text(message.code).text(message.text);
    json.endArray();
  }
  json.endArray();
  return std::string(json.endLine());
}
