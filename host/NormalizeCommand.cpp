// Reading, the step, and writing beside the target.
#include "host/NormalizeCommand.h"

#include "foundation/KYRFile.h"
#include "foundation/KYRPhaseTimes.h"
#include "foundation/xml/XmlDocumentReader.h"
#include "foundation/xml/XmlDocumentWriter.h"
#include "host/ExitCode.h"
#include "host/FileNames.h"
#include "host/KYRHostMessages.h"
#include "host/KYRHostTexts.h"
#include "host/ProgressWatch.h"
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
  const ProgressWatch progress(true);
  std::shared_ptr<const XmlDocument> document = readXmlFile(input, nullptr, false);
  {
    const KYRPhaseTimer timer(KYRPhase::normalise);
    document = normalizer.rewrite(document);
  }
  write(*document);
  NormalizeSummary::logNotes(log_, normalizer.getReport());
  TextOut out(output_);
  out.line(KYRHostTexts::NORMALIZE_WRITTEN, settings_.output);
  NormalizeSummary::toText(out, normalizer.getReport());
  return ExitCode::done;
}

void NormalizeCommand::write(const XmlDocument& document) const {
  const KYRPhaseTimer timer(KYRPhase::save);
  ReplacedFile target{KYRFile(KYRString(settings_.output))};
  writeXmlDocument(document, [&target](std::string_view text) { target.write(text); });
  target.commit();
}
