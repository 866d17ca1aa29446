// Generalizations, realizations and dependencies. A relation whose ends are not both classes of the
// right kind is dropped in silence; of several suppliers or clients the first counts.
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "foundation/ShownText.h"
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDependency.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYRRealization.h"
#include "uml/UMLCast.h"
#include "uml/UMLClassifiers.h"
#include "uml/UMLRelationships.h"

namespace {

// The class made from the first entry, when that is of exactly the kind; null otherwise.
KYRClass* firstClass(const Borrowed<UMLNamedElement>& ends, int kind) {
  const UMLNamedElement* const end = ends.at(0);
  return end != nullptr && end->getKind() == kind ? KYRClass::from(end->repositoryObject) : nullptr;
}

KYRClass* classOf(const UMLClassifier* element) {
  return element != nullptr ? KYRClass::from(element->repositoryObject) : nullptr;
}

}  // namespace

void KYROmgUml2XmiImportBridge::convertGeneralization(UMLGeneralization* edge) {
  UMLGeneralizationSet* const set = edge->generalizationSet.at(0);
  const bool isSet = set != nullptr && set->getKind() == UMLGeneralizationSet::kind;
  connectGeneralization(isSet ? static_cast<UMLElement*>(set) : edge, edge);
}

// One generalization for each superclass: the first edge makes and names it, later ones join it.
void KYROmgUml2XmiImportBridge::connectGeneralization(UMLElement* cause, UMLGeneralization* edge) {
  const bool isSet = cause->getKind() == UMLGeneralizationSet::kind;
  if (!isSet && cause->getKind() != UMLGeneralization::kind) return;
  KYRClass* const super = classOf(edge->general);
  KYRClass* const sub = classOf(edge->specific);
  if (super == nullptr || sub == nullptr) return;
  KYRGeneralization*& generalization = generalizationsBySuper_[super];
  if (generalization == nullptr) generalization = createGeneralization(cause, super);
  getSupertypeGeneralizationRole(generalization, super, true);
  const unsigned int knownRoles = generalization->subtypeRoles.count();
  KYRGeneralizationRole* const role = getSubtypeGeneralizationRole(generalization, sub, true);
  // A second edge between the same classes renames their role.
  if (generalization->subtypeRoles.count() == knownRoles) objects.removeRecord(role);
  role->sourceId = shownText(edge->id);
  objects.addRecord(role);
}

KYRGeneralization* KYROmgUml2XmiImportBridge::createGeneralization(UMLElement* cause, KYRClass* super) {
  auto generalization = std::make_unique<KYRGeneralization>();
  KYRGeneralization* const result = generalization.get();
  // Only a set has a name: a single generalization is no named element.
  if (const UMLNamedElement* named = umlCast<UMLNamedElement>(cause))
    result->takeName(shownText(named->name));
  if (cause->getKind() == UMLGeneralizationSet::kind) {
    result->sourceId = shownText(cause->id);
    objects.addRecord(result);
  }
  applyElementMetadata(result, cause);
  place(std::move(generalization), dynamic_cast<KYRNamespace*>(super->getParent()));
  return result;
}

void KYROmgUml2XmiImportBridge::convertRealization(UMLInterfaceRealization* element) {
  KYRClass* const supplier = firstClass(element->supplier, UMLInterface::kind);
  KYRClass* const client = firstClass(element->client, UMLClass::kind);
  if (supplier == nullptr || client == nullptr) return;
  auto realization = std::make_unique<KYRRealization>();
  realization->sourceId = shownText(element->id);
  if (!element->name.isEmpty()) realization->takeName(shownText(element->name));
  applyElementMetadata(realization.get(), element);
  objects.addRecord(realization.get());
  realization->addRealizationClass(supplier);
  realization->addSpecificationClass(client);
  place(std::move(realization), supplier->getDesignPackage());
}

void KYROmgUml2XmiImportBridge::convertDependency(UMLDependency* element) {
  KYRClass* const supplier = firstClass(element->supplier, UMLClass::kind);
  KYRClass* const client = firstClass(element->client, UMLClass::kind);
  if (supplier == nullptr || client == nullptr) return;
  auto dependency = std::make_unique<KYRDependency>();
  dependency->sourceId = shownText(element->id);
  if (!element->name.isEmpty()) dependency->takeName(shownText(element->name));
  applyElementMetadata(dependency.get(), element);
  objects.addRecord(dependency.get());
  dependency->addSupplierClass(supplier);
  dependency->addClientClass(client);
  place(std::move(dependency), supplier->getDesignPackage());
}
