// A file of XMI 1 is told by its root: a rule that would read it there is none.
#include "host/FailureHint.h"

#include "bridge/messages/KBI_UML2XMI.h"
#include "extension/DocumentElement.h"
#include "foundation/KYRException.h"
#include "foundation/xml/XmlDocumentReader.h"
#include "foundation/xml/XmlRewriting.h"
#include "host/ArrivalCount.h"
#include "host/ExitCode.h"
#include "host/GuardedRun.h"
#include "host/HostLog.h"
#include "host/KYRHostMessages.h"
#include "host/NormalizeSummary.h"
#include "normalize/Normalizer.h"
#include "xmi/XMIParser.h"

namespace {

class NoWords final : public KYRLog {
 public:
  void log(const KYRLogEvent& /*event*/) override {}
};

bool isOfNoModel(const KYRString& failure) {
  return failure.equals(KBI_UML2XMI::UML2_I_BAD_HEADERUML2_ERROR.getMessage(), true);
}

/// The version that the root of a file of XMI 1 tells; empty for any other.
KYRString findFirstXmi(const KYRFile& file) {
  const std::shared_ptr<const XmlDocument> document =
      readXmlFile(file, nullptr, false, XmlReading::asWritten);
  if (document->isEmpty()) return KYRString();
  const DocumentElement root(*document, 0);
  return root.tag().equals("XMI", true) ? root.attribute("xmi.version") : KYRString();
}

bool arrivesWith(Normalizer::Extent extent, const KYRFile& file) {
  Normalizer normalizer(std::string(file.getFileName().view()), extent);
  const XmlRewriting rewriting(file, normalizer);
  NoWords silence;
  XMIParser parser(&silence);
  try {
    UMLModel* const model = parser.parse(file);
    if (model == nullptr) return false;
    const ArrivalCount arrival(*model, false);
    return arrival.classes + arrival.attributes + arrival.associations != 0;
  } catch (const KYRException&) {
    return false;  // the step does not help, which is all there is to know
  }
}

void give(HostLog& log, const std::string& path, const KYRString& failure) {
  if (!isOfNoModel(failure)) return;
  log.setLightestShown(KYRLogLevel::status);
  const KYRFile file{KYRString(path)};
  const KYRString version = findFirstXmi(file);
  if (!version.isEmpty()) {
    KYRHostMessages::HINT_FIRST_XMI.log(log, version);
  } else if (arrivesWith(Normalizer::Extent::usual, file)) {
    KYRHostMessages::HINT_NORMALIZE.log(log, KYRString("--normalize"));
  } else if (arrivesWith(Normalizer::Extent::all, file)) {
    KYRHostMessages::HINT_NORMALIZE.log(log, KYRString("--normalize=all"));
  }
}

}  // namespace

int FailureHint::runWith(HostLog& log, const std::string& file, bool isHintWanted,
                         const std::function<int()>& work) {
  KYRString failure;
  const int code = runGuarded(log, ExitCode::failed, [&failure, &work] {
    try {
      return work();
    } catch (const KYRException& exception) {
      failure = exception.getMessage();
      throw;
    }
  });
  if (isHintWanted) give(log, file, failure);
  return code;
}
