// Associations. An end that cannot be tied to a class is dropped, and an association left with fewer
// than two ends is dropped with it, without a trace.
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "foundation/ShownText.h"
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDesignPackage.h"
#include "uml/UMLCast.h"
#include "uml/UMLClassifiers.h"
#include "uml/UMLFeatures.h"
#include "uml/UMLValues.h"

namespace {

constexpr unsigned int fewestEnds = 2;

// The class at an end: only classes and interfaces count, and only those that were converted.
KYRClass* endClass(const UMLProperty& end) {
  if (end.type == nullptr) return nullptr;
  const int kind = end.type->getKind();
  if (kind != UMLClass::kind && kind != UMLAssociationClass::kind && kind != UMLInterface::kind) {
    return nullptr;
  }
  return KYRClass::from(end.type->repositoryObject);
}

int lowerBound(const UMLProperty& end) {
  const UMLValueSpecification* const value = end.lowerValue;
  if (value == nullptr || value->getKind() != UMLLiteralInteger::kind) return 0;
  return umlCast<UMLLiteralInteger>(value)->value;
}

int upperBound(const UMLProperty& end) {
  const UMLValueSpecification* const value = end.upperValue;
  if (value == nullptr) return manyMultiplicity;
  if (value->getKind() == UMLLiteralInteger::kind) return umlCast<UMLLiteralInteger>(value)->value;
  if (value->getKind() != UMLLiteralUnlimitedNatural::kind) return manyMultiplicity;
  const KYRString& text = umlCast<UMLLiteralUnlimitedNatural>(value)->value;
  return text.view() == "*" ? manyMultiplicity : text.getInt();
}

KYRString multiplicityOf(const UMLProperty& end) {
  int lower = lowerBound(end);
  int upper = upperBound(end);
  if (upper < 0) upper = manyMultiplicity;
  if (lower < 0) lower = manyMultiplicity;
  if (lower > upper) lower = upper;
  return buildMultiplicity(lower, upper);
}

bool isComposite(const UMLProperty& end) {
  return end.aggregation != nullptr && end.aggregation->getValue() == UMLAggregationKind::composite;
}

}  // namespace

void KYROmgUml2XmiImportBridge::convertAssociation(UMLAssociation* element) {
  const AssociationClass* record = nullptr;
  if (element->getKind() == UMLAssociationClass::kind) {
    record = getAssociationClassRecord(element);
    if (record->class_ == nullptr) return;  // the class was dropped, so there is nothing to stand beside
  }
  const auto& ends = element->memberEnd.count() < fewestEnds ? element->ownedEnd : element->memberEnd;
  if (ends.count() < fewestEnds) return;
  countSteps(ends.count());
  auto association = std::make_unique<KYRAssociation>();
  std::vector<UMLProperty*> keptEnds;
  for (UMLProperty* end : ends) {
    if (end == nullptr) continue;
    std::unique_ptr<KYRAssociationRole> role = convertAssociationEnd(end);
    if (role == nullptr) continue;
    if (isComposite(*end)) association->isComposite = true;
    association->addAssociationRole(role.get());
    role.release();  // ownership: the association
    keptEnds.push_back(end);
  }
  const auto& roles = association->roles;
  if (roles.count() < fewestEnds) return;
  // Roles are known to others only from here on, so that a dropped association leaves nothing behind.
  for (unsigned int i = 0; i < roles.count(); ++i) enter(roles[i], keptEnds[i]);
  if (roles.count() == fewestEnds) setSourceProperty(roles[0], roles[1]);
  if (record != nullptr) {
    record->class_->addAssociation(association.get());
    association->sourceId = element->id + associationSuffix;
  } else {
    if (!element->name.isEmpty()) association->takeName(shownText(element->name));
    association->sourceId = shownText(element->id);
    applyElementMetadata(association.get(), element);
  }
  objects.addRecord(association.get());
  KYRDesignPackage* const package = roles[0]->associatedClass->getDesignPackage();
  place(std::move(association), package);
}

std::unique_ptr<KYRAssociationRole> KYROmgUml2XmiImportBridge::convertAssociationEnd(UMLProperty* element) {
  KYRClass* const target = endClass(*element);
  if (target == nullptr) return nullptr;
  auto role = std::make_unique<KYRAssociationRole>();
  role->addAssociatedClass(target);
  if (!element->name.isEmpty()) role->takeName(shownText(element->name));
  role->sourceId = shownText(element->id);
  role->multiplicity = multiplicityOf(*element);
  role->isOrdered = element->isOrdered;
  if (const UMLVisibilityKind* visibility = element->UMLNamedElement::visibility) {
    role->visibility = mapVisibility(visibility->getValue());
  }
  if (const UMLAggregationKind* aggregation = element->aggregation) {
    role->isAggregate = aggregation->getValue() != UMLAggregationKind::none;
  }
  return role;
}
