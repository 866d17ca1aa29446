// The phases of the conversion in their fixed order, and the choice of the root package.
//
// The element phase makes packages, classes and features at once and only remembers relations: a
// relation can name any class of the file, so all classes exist before the first one is made. Types
// come after that, since a feature's type can be any class as well.
#include "bridge/messages/KBI_UML2XMI.h"
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "foundation/KYRException.h"
#include "foundation/ShownText.h"
#include "repository/model/KYRDataPackage.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRMetadataOrigin.h"
#include "repository/model/KYRStoreModel.h"
#include "uml/UMLCast.h"
#include "uml/UMLClassifiers.h"

namespace {

constexpr const char* rootPackageForLooseElements = "Logical View";

}  // namespace

void KYROmgUml2XmiImportBridge::convertModel() {
  storeModel->takeName(shownText(umlModel->name));
  storeModel->sourceId = shownText(umlModel->id);
  KYRMetadataOrigin& origin = *storeModel->metadataOrigin;
  if (!umlModel->exporter.isEmpty()) {
    origin.toolDetail.empty();
    origin.toolName = umlModel->exporter;
    origin.toolVersion = umlModel->exporterVersion;
  }
  if (!umlModel->umlVersion.isEmpty()) origin.formatVersion = umlModel->umlVersion;
  applyElementMetadata(storeModel, umlModel);
  enter(storeModel, umlModel);
  selectRootPackage();
  chooseDataStore();
  loadOwners();
  KBI_UML2XMI::UML2_S_PROCESSING_ELEMENTS.log(*log);
  convertTopLevel();
  placeAssociationClasses();
  placeClassesInSchemas();
  addDataPackages();
  KBI_UML2XMI::UML2_S_PROCESSING_RELATIONSHIPS.log(*log);
  convertRelations();
  KBI_UML2XMI::UML2_S_CREATING_KEYS.log(*log);
  convertKeys();
  KBI_UML2XMI::UML2_S_PROCESSING_TYPES.log(*log);
  assignFeatureTypes();
  KBI_UML2XMI::UML2_S_CREATING_DIAGRAMS.log(*log);
  if (umlModel->exporter.equals("MagicDraw UML", false)) importDiagrams();
}

// A class, an association or a generalization needs a package to stand in; the list is short on purpose.
void KYROmgUml2XmiImportBridge::selectRootPackage() {
  if (!rootPackageName.isEmpty()) {
    rootOwner = createRootPackage();
    return;
  }
  for (const UMLNamedElement* member : getMembers(umlModel)) {
    if (member == nullptr) continue;
    const int kind = member->getKind();
    if (kind == UMLClass::kind || kind == UMLAssociation::kind || kind == UMLGeneralization::kind) {
      rootPackageName = rootPackageForLooseElements;
      rootOwner = createRootPackage();
      return;
    }
  }
}

KYRDesignPackage* KYROmgUml2XmiImportBridge::createRootPackage() {
  if (KYRDesignPackage* const present = storeModel->designPackages.get(rootPackageName)) return present;
  auto package = std::make_unique<KYRDesignPackage>();
  package->setName(rootPackageName);
  package->isModelPackage = false;
  KYRDesignPackage* const result = package.get();
  storeModel->addDesignPackage(result);
  package.release();  // ownership: the store model
  return result;
}

// A data package that the model refuses, because it holds one of that name, is left out in silence.
void KYROmgUml2XmiImportBridge::addDataPackages() {
  for (KYRDataPackage* package : dataPackages) {
    try {
      storeModel->addDataPackage(package);
    } catch (const KYRException&) {
      continue;
    }
  }
}

void KYROmgUml2XmiImportBridge::convertRelations() {
  for (UMLAssociation* association : pendingAssociations) convertAssociation(association);
  for (UMLGeneralization* generalization : pendingGeneralizations) convertGeneralization(generalization);
  for (UMLInterfaceRealization* realization : pendingRealizations) convertRealization(realization);
  for (UMLDependency* dependency : pendingDependencies) convertDependency(dependency);
}
