// The plug-in object: what the bridge tells of itself, and the frame of one import.
#include "bridge/KYROmgUml2XmiImportDllInterface.h"

#include "BuildTime.h"
#include "bridge/SpecificationText.h"
#include "bridge/messages/KBI_UML2XMI.h"
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "foundation/KYRDate.h"
#include "foundation/KYRFile.h"
#include "foundation/KYROption.h"
#include "foundation/MemoryAtEnd.h"
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/datatypes/KYRDataTypeConstants.h"
#include "repository/model/KYRStoreModel.h"
#include "repository/plugin/KBCM.h"
#include "repository/plugin/KYRBridgeSpecification.h"
#include "repository/plugin/KYRBridgeSpecificationLiteral.h"
#include "repository/plugin/KYRDataStoreList.h"

namespace {

constexpr const char* bridgeName = "OmgUml2XmiImport";
constexpr const char* pluginName = "KYROmgUml2XmiImport";
constexpr const char* fileExtensions[] = {"xml", "xmi", "uml", "uml2", nullptr};

}  // namespace

KYRString descriptionOf(const KYRBridgeSpecificationLiteral& literal) {
  const KYRString& id = literal.getInternalCode_DescriptionLiteralId();
  const KYRTextLiteral* const text = KBI_UML2XMI::findTextLiteral(id);
  return text != nullptr ? text->getText() : "*** " + id;
}

KYROmgUml2XmiImportDllInterface::KYROmgUml2XmiImportDllInterface() = default;

KYROmgUml2XmiImportDllInterface::~KYROmgUml2XmiImportDllInterface() = default;

const KYRString& KYROmgUml2XmiImportDllInterface::getBuildVersion() {
  if (buildVersion.isEmpty()) {
    buildVersion = KYRString(projectVersion) + " - " + KYRDate(buildTime).getPstTimestamp();
  }
  return buildVersion;
}

void KYROmgUml2XmiImportDllInterface::getSpecification(const KYRString& name,
                                                       KYRBridgeSpecification& specification) {
  const KYRBridgeSpecificationLiteral* literal = getBridgeSpecification(name);
  if (literal == nullptr) literal = &KBLST::BRIDGE_SPEC_OMGUML2XMI_IMPORT;
  specification.initialize(literal->getTool_Web(), literal->getVendor_Name(), literal->getTool_Name(),
                           literal->getTool_Versions(), literal->getMethodology_Summary(), getBuildVersion(),
                           descriptionOf(*literal), false);
}

void KYROmgUml2XmiImportDllInterface::getOptionList(KYROptionList& options) {
  options.removeAll();
  options.add(KBI_UML2XMI::BP_FILE.generateOption(true, fileExtensions, OpenMode::read, true).release());
  options.add(KBI_UML2XMI::BP_ROOT_PACKAGE.generateOption(false).release());
}

void KYROmgUml2XmiImportDllInterface::getDataStoreList(KYRDataStoreList& list) {
  list.add("all", KYRDataTypeConstants::DATASTORE_OMG_UML_OMG_UML, 1, 0, 0);
  list.add("all", KYRDataTypeConstants::DATASTORE_OMG_UML_OMG_UML_SEA, 1, 0, 0);
}

KYRString KYROmgUml2XmiImportDllInterface::getMappingSpecificationXmlFile() { return pluginName; }

bool KYROmgUml2XmiImportDllInterface::run(const KYRString& originId, KYRFile& outputFile,
                                          KYROptionList& options, KYRLog& log) {
  auto storeModel = std::make_unique<KYRStoreModel>();
  KYROmgUml2XmiImportBridge bridge(&log);
  const int result = bridge.importModel(*storeModel, options, originId);
  setModelModificationTime(*storeModel, options);
  saveStoreModel(outputFile, *storeModel, log);
  MemoryAtEnd::give(std::move(storeModel), bridge.readCount);
  return result != 0;
}

KYRDirectoryStructureModel* KYROmgUml2XmiImportDllInterface::browse(const KYRString&, const KYRString&,
                                                                    KYROptionList&, KYRLog&) {
  KBCM::UNSUPPORTED_BRIDGE_OPERATION.throwException(bridgeName, "browse");
}

bool KYROmgUml2XmiImportDllInterface::test(const KYRString&, KYROptionList&, KYRLog&) { return true; }

KYROmgUml2XmiImportDllInterface* getKYROmgUml2XmiImportInterface() {
  static KYROmgUml2XmiImportDllInterface plugin;
  return &plugin;
}
