// Reading, the step, and writing beside the target.
#include "host/NormalizeCommand.h"

#include "foundation/KYRFile.h"
#include "foundation/xml/XmlDocumentReader.h"
#include "foundation/xml/XmlDocumentWriter.h"
#include "host/ExitCode.h"
#include "host/FileNames.h"
#include "host/KYRHostMessages.h"
#include "host/KYRHostTexts.h"
#include "host/TextOut.h"
#include "repository/storage/ReplacedFile.h"

int NormalizeCommand::run() {
  if (FileNames::isSame(settings_.file, settings_.output)) {
    log_.fail(KYRHostMessages::NORMALIZED_IS_INPUT.getMessage(KYRString(settings_.output)));
    return ExitCode::wrongUsage;
  }
  const KYRFile input{KYRString(settings_.file)};
  Normalizer normalizer(std::string(input.getFileName().view()),
                        settings_.isAll ? Normalizer::Extent::all : Normalizer::Extent::usual);
  const std::shared_ptr<const XmlDocument> document = normalizer.rewrite(readXmlFile(input, nullptr, false));
  ReplacedFile target{KYRFile(KYRString(settings_.output))};
  writeXmlDocument(*document, [&target](std::string_view text) { target.write(text); });
  target.commit();
  NormalizeSummary::logNotes(log_, normalizer.getReport());
  TextOut out(output_);
  out.line(KYRHostTexts::NORMALIZE_WRITTEN, settings_.output);
  NormalizeSummary::toText(out, normalizer.getReport());
  return ExitCode::done;
}
