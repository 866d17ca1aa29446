// Classes and interfaces.
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "foundation/ShownText.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYROperation.h"
#include "uml/UMLCast.h"
#include "uml/UMLClassifiers.h"
#include "uml/UMLFeatures.h"
#include "uml/UMLRelationships.h"

void KYROmgUml2XmiImportBridge::convertClass(UMLClass* element, KYRDesignPackage* package) {
  if (element->isBoundary) return;  // a frame drawn around others
  auto target = std::make_unique<KYRClass>();
  target->takeName(shownText(element->name));
  target->isPhysicalClass = false;
  target->isAbstract = element->UMLClass::isAbstract;
  completeClass(target.get(), element);
  convertAttributes(target.get(), element->UMLClass::ownedAttribute);
  convertOperations(target.get(), element->ownedOperation);
  collectGeneralizations(element);
  for (UMLInterfaceRealization* realization : element->interfaceRealization) {
    if (realization != nullptr && realization->getKind() == UMLInterfaceRealization::kind) {
      pendingRealizations.add(realization, false);
    }
  }
  if (element->getKind() == UMLAssociationClass::kind) {
    AssociationClass* const record = getAssociationClassRecord(umlCast<UMLAssociation>(element));
    record->class_ = target.get();
    record->package = package;
    keepUnplaced(std::move(target));  // it may have to take a name from its ends first
  } else {
    place(std::move(target), package);
  }
}

void KYROmgUml2XmiImportBridge::convertInterface(UMLInterface* element, KYRDesignPackage* package) {
  if (package == nullptr) return;  // unlike a class, an interface at the top makes no root package
  auto target = std::make_unique<KYRClass>();
  target->takeName(shownText(element->name));
  target->isPhysicalClass = false;
  target->isAbstract = element->UMLClassifier::isAbstract;
  target->classCategory = KYRClassCategoryType::interface_;
  completeClass(target.get(), element);
  convertAttributes(target.get(), element->ownedAttribute);
  convertOperations(target.get(), element->ownedOperation);
  collectGeneralizations(element);
  place(std::move(target), package);
}

// Id, visibility, metadata and links: the same for both.
void KYROmgUml2XmiImportBridge::completeClass(KYRClass* target, UMLClassifier* element) {
  target->sourceId = shownText(element->id);
  if (const UMLVisibilityKind* visibility = element->UMLPackageableElement::visibility) {
    target->visibility = mapVisibility(visibility->getValue());
  }
  applyElementMetadata(target, element);
  if (isPhysicalTarget()) target->isPhysicalClass = true;
  enter(target, element);
}

// The end of an association never becomes an attribute, whatever it is named.
void KYROmgUml2XmiImportBridge::convertAttributes(KYRClass* target,
                                                  const Borrowed<UMLProperty, KYROrderedVector>& properties) {
  countSteps(properties.count());
  for (UMLProperty* property : properties) {
    if (property == nullptr || property->getKind() != UMLProperty::kind) continue;
    if (property->association != nullptr || property->name.isEmpty()) continue;
    std::unique_ptr<KYRAttribute> attribute = convertProperty(property);
    attribute->position = target->getAttributeCount();
    target->addFeatureUniqueName(attribute.get(), '/');
    attribute.release();  // ownership: the class
  }
}

void KYROmgUml2XmiImportBridge::convertOperations(
    KYRClass* target, const Borrowed<UMLOperation, KYROrderedVector>& operations) {
  countSteps(operations.count());
  for (UMLOperation* element : operations) {
    if (element == nullptr || element->getKind() != UMLOperation::kind || element->name.isEmpty()) continue;
    std::unique_ptr<KYROperation> operation = convertOperation(element);
    operation->position = target->getOperationCount();
    target->addOperation(operation.get());
    operation.release();  // ownership: the class
  }
}

void KYROmgUml2XmiImportBridge::collectGeneralizations(const UMLClassifier* element) {
  countSteps(element->generalization.count());
  for (UMLGeneralization* generalization : element->generalization) {
    if (generalization != nullptr && generalization->getKind() == UMLGeneralization::kind) {
      pendingGeneralizations.add(generalization, false);
    }
  }
}
