// One operation for each class that the conversion knows, and one for where an element stands.
#include "trace/LostElements.h"

#include "repository/model/KYRObject.h"
#include "trace/AbsorbedElements.h"
#include "trace/ArrivedObjects.h"
#include "trace/ReadNotes.h"
#include "trace/VisitedElements.h"
#include "uml/UMLCast.h"
#include "uml/UMLClasses.h"
#include "uml/UMLMetamodel.h"
#include "xmi/UMLObjectTable.h"

namespace {

using Reason = KYRTraceReason;
using Loss = LostElements::Loss;

constexpr unsigned int fewestEnds = 2;

Loss lossOf(Reason reason) { return {reason, KYRString(), KYRString()}; }
Loss lossOf(Reason reason, const KYRString& other) { return {reason, other, KYRString()}; }
Loss lossOf(Reason reason, const UMLElement& other) { return lossOf(reason, LostElements::describe(other)); }

bool isExplained(const Loss& loss) { return loss.reason != Reason::unexplained; }

bool hasNoName(const UMLElement& element) {
  const auto* const named = umlCast<UMLNamedElement>(&element);
  return named == nullptr || named->name.isEmpty();
}

bool isClassKind(const UMLElement* element) {
  if (element == nullptr) return false;
  const int kind = element->getKind();
  return kind == UMLClass::kind || kind == UMLAssociationClass::kind || kind == UMLInterface::kind;
}

const Borrowed<UMLProperty, KYROrderedVector>& endsOf(const UMLAssociation& association) {
  return association.memberEnd.count() < fewestEnds ? association.ownedEnd : association.memberEnd;
}

}  // namespace

LostElements::LostElements(const UMLObjectTable& elements, const ReadNotes& notes,
                           const ArrivedObjects& arrived, const VisitedElements& visited,
                           const AbsorbedElements& absorbed)
    : elements_(elements), notes_(notes), arrived_(arrived), visited_(visited), absorbed_(absorbed) {}

KYRString LostElements::describe(const UMLElement& element) {
  KYRString text(UMLMetamodel::classRows[static_cast<unsigned int>(element.getKind())].name);
  text += " '";
  text += element.elementName.isEmpty() ? element.id : element.elementName;
  text += "'";
  return text;
}

bool LostElements::isThere(const UMLElement* element) const { return arrived_.find(element) != nullptr; }

Loss LostElements::explain(const UMLElement& element) const {
  // Elements without an id are seldom more than references that a tool has written as elements.
  if (element.id.isEmpty()) return lossOf(Reason::noId);
  const UMLElement* const bearer = elements_.find(element.id);
  if (bearer != &element && bearer != nullptr) return lossOf(Reason::sameId, *bearer);
  return explainByKind(element);
}

Loss LostElements::explainByKind(const UMLElement& element) const {
  switch (element.getKind()) {
    case UMLModel::kind:
      return lossOf(Reason::otherModel);
    case UMLPackage::kind:
      return element.repositoryObject != nullptr ? lossOf(Reason::emptyPackage) : explainPlace(element);
    case UMLClass::kind:
    case UMLInterface::kind:
    case UMLAssociationClass::kind:
      return explainClass(element);
    case UMLEnumeration::kind:
    case UMLPrimitiveType::kind:
    case UMLDataType::kind:
      return explainType(element);
    case UMLEnumerationLiteral::kind:
      return explainLiteral(*umlCast<UMLEnumerationLiteral>(&element));
    case UMLProperty::kind:
      return explainProperty(*umlCast<UMLProperty>(&element));
    case UMLOperation::kind:
      return explainFeature(element);
    case UMLParameter::kind:
      return explainParameter(*umlCast<UMLParameter>(&element));
    case UMLAssociation::kind:
      return explainAssociation(*umlCast<UMLAssociation>(&element));
    case UMLGeneralization::kind:
      return explainGeneralization(*umlCast<UMLGeneralization>(&element));
    case UMLGeneralizationSet::kind:
      return lossOf(Reason::noGeneralization);
    case UMLInterfaceRealization::kind:
      return explainDependency(*umlCast<UMLDependency>(&element), UMLInterface::kind);
    case UMLDependency::kind:
      return explainDependency(*umlCast<UMLDependency>(&element), UMLClass::kind);
    case UMLComment::kind:
      return lossOf(umlCast<UMLComment>(&element)->body.isEmpty() ? Reason::emptyComment : Reason::noTarget);
    default:
      return element.isKindOf(UMLValueSpecification::kind) ? explainValue(element)
                                                           : lossOf(Reason::kindNotConverted);
  }
}

Loss LostElements::explainPlace(const UMLElement& element) const {
  const UMLElement* const owner = element.owner;
  if (owner == nullptr) return lossOf(Reason::outsideModel);
  if (!isThere(owner) && owner->repositoryObject == nullptr) return lossOf(Reason::ownerNotConverted, *owner);
  return lossOf(Reason::otherPlace, *owner);
}

Loss LostElements::explainValue(const UMLElement& element) const {
  const UMLElement* const owner = element.owner;
  if (owner == nullptr) return lossOf(Reason::outsideModel);
  if (!isThere(owner)) return lossOf(Reason::ownerNotConverted, *owner);
  const int kind = element.getKind();
  if (const auto* const literal = umlCast<UMLEnumerationLiteral>(owner)) {
    if (literal->specification != &element) return lossOf(Reason::otherPlace, *owner);
    const bool isRead = kind == UMLLiteralInteger::kind || kind == UMLLiteralString::kind;
    return lossOf(isRead ? Reason::emptyValue : Reason::valueKind, *owner);
  }
  if (const auto* const property = umlCast<UMLProperty>(owner)) {
    const bool isRole = arrived_.find(owner)->getElementType() == KYRElementType::associationRole;
    if (isRole && (property->lowerValue == &element || property->upperValue == &element)) {
      return lossOf(Reason::valueKind, *owner);
    }
    if (!isRole && property->defaultValue == &element) {
      const bool isRead = kind == UMLLiteralString::kind || kind == UMLOpaqueExpression::kind;
      return lossOf(isRead ? Reason::emptyValue : Reason::valueKind, *owner);
    }
  }
  return lossOf(Reason::noPlace, *owner);
}

Loss LostElements::explainClass(const UMLElement& element) const {
  const auto* const asClass = umlCast<UMLClass>(&element);
  if (!visited_.isMember(&element)) {
    if (element.owner != nullptr && element.owner->isKindOf(UMLClassifier::kind)) {
      return lossOf(Reason::nestedClassifier, *element.owner);
    }
    return explainPlace(element);
  }
  if (element.getKind() == UMLAssociationClass::kind) {
    if (asClass->isBoundary) return lossOf(Reason::boundary);
    return lossOf(hasNoName(element) ? Reason::noEndNames : Reason::noPackage);
  }
  if (hasNoName(element)) return lossOf(Reason::noName);
  if (asClass != nullptr && asClass->isBoundary) return lossOf(Reason::boundary);
  if (element.getKind() == UMLInterface::kind && element.repositoryObject == nullptr) {
    return lossOf(Reason::topInterface);
  }
  return lossOf(element.repositoryObject != nullptr ? Reason::noPackage : Reason::unexplained);
}

Loss LostElements::explainType(const UMLElement& element) const {
  if (element.getKind() == UMLDataType::kind) return lossOf(Reason::typeNotUsed);
  if (visited_.isMember(&element)) return lossOf(hasNoName(element) ? Reason::noName : Reason::unexplained);
  if (element.owner != nullptr && element.owner->isKindOf(UMLClassifier::kind)) {
    return lossOf(Reason::nestedClassifier, *element.owner);
  }
  return explainPlace(element);
}

Loss LostElements::explainLiteral(const UMLEnumerationLiteral& literal) const {
  const UMLElement* const owner = literal.owner;
  if (owner == nullptr) return lossOf(Reason::outsideModel);
  const bool isType = isThere(owner) || absorbed_.find(owner) != nullptr;
  if (!isType || hasNoName(*owner)) return lossOf(Reason::ownerNotConverted, *owner);
  const auto* const enumeration = umlCast<UMLEnumeration>(owner);
  const bool isListed = enumeration != nullptr && literal.enumeration == enumeration;
  return lossOf(isListed ? Reason::sameLiteral : Reason::otherPlace, *owner);
}

Loss LostElements::explainFeature(const UMLElement& feature) const {
  if (visited_.isFeature(&feature) && hasNoName(feature)) return lossOf(Reason::noName);
  const UMLElement* const owner = feature.owner;
  if (owner != nullptr && owner->isKindOf(UMLDataType::kind)) return lossOf(Reason::typeFeature, *owner);
  return explainPlace(feature);
}

Loss LostElements::explainProperty(const UMLProperty& property) const {
  const UMLAssociation* association = property.association;
  if (association == nullptr) association = property.owningAssociation;
  if (association == nullptr) association = umlCast<UMLAssociation>(property.owner);
  if (association == nullptr) return explainFeature(property);
  Loss own = explainAssociationEnd(property);
  if (isExplained(own)) return own;
  const bool isThereBeside = isThere(association) && association->getKind() == UMLAssociation::kind;
  return lossOf(isThereBeside ? Reason::otherPlace : Reason::associationNotConverted, *association);
}

Loss LostElements::explainParameter(const UMLParameter& parameter) const {
  if (!visited_.isFeature(&parameter)) return explainPlace(parameter);
  const UMLElement* const owner = parameter.owner != nullptr ? parameter.owner : &parameter;
  if (!isThere(owner)) return lossOf(Reason::ownerNotConverted, *owner);
  return lossOf(parameter.type == nullptr ? Reason::noReturnType : Reason::laterReturn, *owner);
}

Loss LostElements::explainAssociation(const UMLAssociation& association) const {
  if (!visited_.isRelation(&association)) return explainPlace(association);
  const auto& ends = endsOf(association);
  if (ends.count() < fewestEnds) return explainEnd(association, nullptr, false, "memberEnd");
  for (const UMLProperty* end : ends) {
    if (end == nullptr) continue;
    Loss loss = explainAssociationEnd(*end);
    if (isExplained(loss)) return loss;
  }
  return lossOf(Reason::noPackage);
}

Loss LostElements::explainAssociationEnd(const UMLProperty& end) const {
  return explainEnd(end, end.type, isClassKind(end.type), "type");
}

Loss LostElements::explainGeneralization(const UMLGeneralization& edge) const {
  if (!visited_.isRelation(&edge)) return explainPlace(edge);
  for (const UMLClassifier* end : {edge.general, edge.specific}) {
    Loss loss = explainEnd(edge, end, isClassKind(end), end == edge.general ? "general" : "specific");
    if (isExplained(loss)) return loss;
  }
  return lossOf(Reason::noPackage);
}

Loss LostElements::explainDependency(const UMLDependency& dependency, int supplierKind) const {
  if (!visited_.isRelation(&dependency)) return explainPlace(dependency);
  const UMLNamedElement* const supplier = dependency.supplier.at(0);
  Loss loss = explainEnd(dependency, supplier, supplier != nullptr && supplier->getKind() == supplierKind,
                         "supplier");
  if (isExplained(loss)) return loss;
  const UMLNamedElement* const client = dependency.client.at(0);
  loss = explainEnd(dependency, client, client != nullptr && client->getKind() == UMLClass::kind, "client");
  return isExplained(loss) ? loss : lossOf(Reason::noPackage);
}

Loss LostElements::explainEnd(const UMLElement& relation, const UMLElement* end, bool isRightKind,
                              const char* role) const {
  if (end == nullptr) return {Reason::endMissing, KYRString(role), notes_.missingIdOf(relation.id)};
  if (!isRightKind) return lossOf(Reason::endNotClass, *end);
  return isThere(end) ? lossOf(Reason::unexplained) : lossOf(Reason::endNotConverted, *end);
}
