// The driver: the phases of one import in their fixed order.
#include <memory>

#include "bridge/KYROmgUml2XmiImportDllInterface.h"
#include "bridge/messages/KBI_UML2XMI.h"
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "foundation/KYRException.h"
#include "foundation/KYROption.h"
#include "foundation/KYRPhaseTimes.h"
#include "foundation/MemoryAtEnd.h"
#include "repository/KYRRepositoryMessages.h"
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/datatypes/KYRDataTypeConverter.h"
#include "repository/model/KYRMetadataOrigin.h"
#include "repository/model/KYRStoreModel.h"
#include "repository/plugin/KYRBridgeSpecificationLiteral.h"
#include "trace/ImportTrace.h"
#include "uml/UMLNamespaces.h"
#include "xmi/XMIParser.h"

namespace {

constexpr int omgUml2XmiOrigin = 346;  // the number under which hosts know this format
constexpr const char* formatName = "OMG UML2 XMI";
constexpr const char* assumedFormatVersion = "UML 2.1";  // until the file's own version is known
constexpr const char* fileEncoding = "UTF-8";
// Fewer UML objects are freed sooner than a thread begins.
constexpr unsigned int worthAThread = 10000;

// Whatever ends an import, success or exception, runs the release step.
class ReleaseGuard {
 public:
  explicit ReleaseGuard(KYROmgUml2XmiImportBridge& bridge) : bridge_(bridge) {}
  ReleaseGuard(const ReleaseGuard&) = delete;
  ReleaseGuard& operator=(const ReleaseGuard&) = delete;
  ~ReleaseGuard() { bridge_.release(); }

 private:
  KYROmgUml2XmiImportBridge& bridge_;
};

// The tools whose sections are read from the tree as well.
bool needsTree(const KYRString& exporter) {
  return exporter.equals("Enterprise Architect", false) || exporter.equals("MagicDraw UML", false);
}

}  // namespace

int KYROmgUml2XmiImportBridge::importModel(KYRStoreModel& model, KYROptionList& options,
                                           const KYRString& originId) {
  storeModel = &model;
  readOptions(options);
  // Stands before the parser, so that UML objects die first when something is raised.
  const ReleaseGuard guard(*this);
  stampOrigin(originId);
  KBI_UML2XMI::UML2_S_PARSING_FILE.log(*log, file.getName());
  auto parser = std::make_unique<XMIParser>(log);
  importParsed(*parser);
  // What comes now, the saving above all, needs no UML object.
  if (MemoryAtEnd::isLeftToSystem()) {
    MemoryAtEnd::give(std::move(parser), readCount);
  } else if (readCount >= worthAThread) {
    parserRelease_.give(std::move(parser));
  }
  return 1;
}

void KYROmgUml2XmiImportBridge::importParsed(XMIParser& parser) {
  ImportTrace trace(KYRImportTrace::getCurrent(), parser);
  umlModel = parser.parse(file);
  storeModel->keepTexts(parser.getTexts());
  readCount = parser.getObjects().getCount();
  stepLimit = stepsForAnyFile + stepsForOneElement * readCount;
  loadDom();
  parser.dropReading();
  if (umlModel != nullptr) {
    const KYRPhaseTimer timer(KYRPhase::convert);
    convertModel();
  }
  finishModel();
  trace.tell(*this);
}

void KYROmgUml2XmiImportBridge::readOptions(KYROptionList& options) {
  const KYRString& fileOption = KBI_UML2XMI::BP_FILE.getIdentifier();
  const KYROption* const option = options.get(fileOption);
  if (option == nullptr) {
    KYRRepositoryMessages::MISSING_BRIDGE_OPTION.throwException(
        KBLST::BRIDGE_SPEC_OMGUML2XMI_IMPORT.getName(), fileOption);
  }
  file = option->getValue();
  rootPackageName = options.getValue(KBI_UML2XMI::BP_ROOT_PACKAGE.getIdentifier());
}

void KYROmgUml2XmiImportBridge::stampOrigin(const KYRString& originId) {
  std::unique_ptr<KYRMetadataOrigin> origin(generateMetadataOrigin(
      KBLST::BRIDGE_SPEC_OMGUML2XMI_IMPORT, originId, getKYROmgUml2XmiImportInterface()->getBuildVersion()));
  origin->formatName = formatName;
  origin->formatVersion = assumedFormatVersion;
  origin->filePath = file.getPath();
  origin->fileEncoding = fileEncoding;
  origin->toolName.empty();
  origin->toolVersion.empty();
  origin->originCode = omgUml2XmiOrigin;
  storeModel->addMetadataOrigin(origin.get());
  origin.release();  // ownership: the store model
}

// Keys, schemas and diagrams of the two tools stand outside the UML body. A tree reading that fails
// with anything but the library's own exception is reported as an unreadable file.
void KYROmgUml2XmiImportBridge::loadDom() {
  if (umlModel == nullptr || !needsTree(umlModel->exporter)) return;
  try {
    dom = std::make_unique<KYRDOM>(log);
    domRoot.reset(dom->parseFile(file));
    if (domRoot != nullptr) domModel = domRoot->getFirstElement("uml:Model");
  } catch (const KYRException&) {
    throw;
  } catch (...) {
    KBI_UML2XMI::UML2_I_XML_ERROR.throwException("Unknown error");
  }
}

void KYROmgUml2XmiImportBridge::finishModel() {
  const KYRPhaseTimer timer(KYRPhase::finish);
  markOptionalAttributes();
  factorizeTypes(storeModel, 0, 0);
  for (KYRClassDiagram* diagram : diagrams) {
    verifyDiagram(diagram);
    processPresentationElements(diagram, false);
  }
  diagrams.clear();
  if (storeModel->getName().isEmpty()) storeModel->setName(file.getFileName());
  storeModel->designLevel = isPhysicalTarget() ? KYRDesignLevelType::physical : KYRDesignLevelType::logical;
  storeModel->storeType = isPhysicalTarget() ? KYRStoreType::dataStore : KYRStoreType::design;
  if (dataTypeConverter != nullptr) setDataStore(*storeModel, dataTypeConverter->getTargetDataStore());
}
