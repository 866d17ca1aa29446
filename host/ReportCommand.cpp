// Loading a model, and writing its page beside the target.
#include "host/ReportCommand.h"

#include "host/ExitCode.h"
#include "host/FileNames.h"
#include "host/KYRHostMessages.h"
#include "host/KYRHostTexts.h"
#include "host/TextOut.h"
#include "report/ReportWriter.h"
#include "repository/storage/ReplacedFile.h"
#include "repository/storage/StoreModelFile.h"

int ReportCommand::run() {
  const std::string target = FileNames::pageOf(settings_.file, settings_.output);
  if (FileNames::isSame(settings_.file, target)) {
    log_.fail(KYRHostMessages::PAGE_IS_MODEL.getMessage(KYRString(target)));
    return ExitCode::wrongUsage;
  }
  const std::unique_ptr<KYRStoreModel> model = loadStoreModel(KYRFile(KYRString(settings_.file)));
  ReplacedFile file(KYRFile(KYRString(target)), ReplacedFile::Wait::untilNamed);
  writeReport(*model, file);
  file.commit();
  TextOut(output_).line(KYRHostTexts::REPORT_WRITTEN, target);
  return ExitCode::done;
}
