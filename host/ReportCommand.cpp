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
#include "report/GraphvizProcess.h"
#include "report/NeighbourhoodPictures.h"
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
  const std::string pictures = picturesToJson(*model);
  ReplacedFile file(KYRFile(KYRString(target)), ReplacedFile::Wait::untilNamed);
  writeReport(*model, {messages, pictures}, file);
  file.commit();
  TextOut(output_).line(KYRHostTexts::REPORT_WRITTEN, target);
  return ExitCode::done;
}

std::string ReportCommand::picturesToJson(const KYRStoreModel& model) const {
  using Outcome = NeighbourhoodPictures::Outcome;
  if (settings_.layout == Layout::simple) return std::string();
  const std::string program = GraphvizProcess::findProgram();
  if (program.empty()) {
    if (settings_.layout == Layout::graphviz) warn(KYRHostTexts::GRAPHVIZ_MISSING);
    return std::string();
  }
  NeighbourhoodPictures pictures;
  switch (pictures.layOut(model, program)) {
    case Outcome::done:
      break;
    case Outcome::notStarted:
      warn(KYRHostTexts::GRAPHVIZ_NOT_STARTED);
      break;
    case Outcome::late:
      warn(KYRHostTexts::GRAPHVIZ_LATE);
      break;
    case Outcome::ended:
      warn(KYRHostTexts::GRAPHVIZ_ENDED);
      break;
    case Outcome::notUnderstood:
      warn(KYRHostTexts::GRAPHVIZ_NOT_UNDERSTOOD);
      break;
  }
  return pictures.getJson();
}

void ReportCommand::warn(const HostText<0>& reason) const {
  KYRHostMessages::PICTURES_NOT_LAID_OUT.log(log_, reason.toString());
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
