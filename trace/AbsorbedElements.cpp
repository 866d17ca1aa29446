// From each object to the elements whose content it has taken.
#include "trace/AbsorbedElements.h"

#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "repository/model/KYRArgument.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYROperation.h"
#include "repository/model/KYRType.h"
#include "trace/ArrivedObjects.h"
#include "trace/VisitedElements.h"
#include "uml/UMLCast.h"
#include "uml/UMLClasses.h"
#include "xmi/UMLObjectTable.h"

namespace {

using Reason = KYRTraceReason;

// Roles and types are made without documentation and comments.
bool showsComments(const KYRObject& object) {
  switch (object.getElementType()) {
    case KYRElementType::associationRole:
    case KYRElementType::generalizationRole:
    case KYRElementType::derivedType:
      return false;
    default:
      return true;
  }
}

bool hasText(const UMLValueSpecification& value) {
  switch (value.getKind()) {
    case UMLLiteralString::kind:
      return !umlCast<UMLLiteralString>(&value)->value.isEmpty();
    case UMLOpaqueExpression::kind:
      return !umlCast<UMLOpaqueExpression>(&value)->body.isEmpty();
    default:
      return false;
  }
}

bool isBound(const UMLValueSpecification* value, bool isUpper) {
  if (value == nullptr) return false;
  const int kind = value->getKind();
  return kind == UMLLiteralInteger::kind || (isUpper && kind == UMLLiteralUnlimitedNatural::kind);
}

bool givesLiteralValue(const UMLValueSpecification& value) {
  switch (value.getKind()) {
    case UMLLiteralInteger::kind:
      return umlCast<UMLLiteralInteger>(&value)->value != 0;
    case UMLLiteralString::kind:
      return !umlCast<UMLLiteralString>(&value)->value.isEmpty();
    case UMLLiteralBoolean::kind:
      return true;
    default:
      return false;
  }
}

bool isTypeOfValues(int kind) {
  return kind == UMLEnumeration::kind || kind == UMLPrimitiveType::kind || kind == UMLDataType::kind;
}

const KYRClass* classOf(const UMLClassifier* element) {
  return element == nullptr ? nullptr : dynamic_cast<const KYRClass*>(element->repositoryObject);
}

// The UML type of a feature of the model, and what has become of it there.
struct FeatureType {
  explicit FeatureType(const KYRObject& feature) {
    // The element type is the class, so the casts need no check.
    // NOLINTBEGIN(cppcoreguidelines-pro-type-static-cast-downcast)
    switch (feature.getElementType()) {
      case KYRElementType::attribute:
        object = static_cast<const KYRAttribute&>(feature).type;
        break;
      case KYRElementType::argument:
        object = static_cast<const KYRArgument&>(feature).type;
        break;
      case KYRElementType::operation: {
        object = static_cast<const KYROperation&>(feature).returnType;
        const auto* const operation = umlCast<UMLOperation>(feature.umlElement);
        if (operation != nullptr) element = operation->type;
        return;
      }
      default:
        return;
    }
    // NOLINTEND(cppcoreguidelines-pro-type-static-cast-downcast)
    if (const auto* const typed = umlCast<UMLTypedElement>(feature.umlElement)) element = typed->type;
  }
  const UMLType* element = nullptr;
  const KYRObject* object = nullptr;
};

}  // namespace

AbsorbedElements::AbsorbedElements(const KYROmgUml2XmiImportBridge& bridge, const UMLObjectTable& elements,
                                   const ArrivedObjects& arrived, const VisitedElements& visited)
    : arrived_(arrived), visited_(visited) {
  addOwnColumns(bridge);
  addGeneralizations(bridge);
  addTypesOfFeatures(bridge);
  for (unsigned int i = 0; i < elements.getSlotCount(); ++i) {
    const UMLElement& element = *elements.at(i);
    if (const KYRObject* const object = arrived.find(&element)) {
      addContentOf(element, *object);
    } else {
      addTypeMember(element);
    }
  }
}

const AbsorbedElements::Place* AbsorbedElements::find(const UMLElement* element) const {
  const auto known = places_.find(element);
  return known == places_.end() ? nullptr : &known->second;
}

void AbsorbedElements::add(const UMLElement* element, Reason reason, const KYRObject* object) {
  if (element != nullptr && object != nullptr) places_.try_emplace(element, Place{reason, object});
}

void AbsorbedElements::addContentOf(const UMLElement& element, const KYRObject& object) {
  if (showsComments(object)) addComments(element, object);
  switch (element.getKind()) {
    case UMLProperty::kind: {
      const auto& property = *umlCast<UMLProperty>(&element);
      if (object.getElementType() == KYRElementType::attribute) addAttributeContent(property, object);
      if (object.getElementType() == KYRElementType::associationRole) addEndContent(property, object);
      break;
    }
    case UMLOperation::kind:
      addReturnParameters(*umlCast<UMLOperation>(&element), object);
      break;
    case UMLEnumerationLiteral::kind:
      addLiteralContent(*umlCast<UMLEnumerationLiteral>(&element), object);
      break;
    default:
      break;
  }
}

void AbsorbedElements::addComments(const UMLElement& element, const KYRObject& object) {
  for (const UMLComment* comment : element.ownedComment) {
    if (comment != nullptr && !comment->body.isEmpty() && commentTargets_.appliesTo(*comment, element)) {
      add(comment, Reason::description, &object);
    }
  }
}

void AbsorbedElements::addAttributeContent(const UMLProperty& property, const KYRObject& attribute) {
  if (property.defaultValue != nullptr && hasText(*property.defaultValue)) {
    add(property.defaultValue, Reason::initialValue, &attribute);
  }
}

void AbsorbedElements::addEndContent(const UMLProperty& end, const KYRObject& role) {
  if (isBound(end.lowerValue, false)) add(end.lowerValue, Reason::multiplicity, &role);
  if (isBound(end.upperValue, true)) add(end.upperValue, Reason::multiplicity, &role);
}

// A parameter that the conversion has come to and made no argument of is one that tells what is returned.
void AbsorbedElements::addReturnParameters(const UMLOperation& operation, const KYRObject& object) {
  if (operation.type == nullptr) return;
  const UMLParameter* last = nullptr;
  for (const UMLParameter* parameter : operation.UMLOperation::ownedParameter) {
    if (parameter == nullptr || parameter->getKind() != UMLParameter::kind) continue;
    if (parameter->type != nullptr && arrived_.find(parameter) == nullptr) last = parameter;
  }
  add(last, Reason::returnType, &object);
}

void AbsorbedElements::addLiteralContent(const UMLEnumerationLiteral& literal, const KYRObject& value) {
  if (literal.specification != nullptr && givesLiteralValue(*literal.specification)) {
    add(literal.specification, Reason::literalValue, &value);
  }
}

// The edge that made a generalization is taken for it; those that joined it are part of it.
void AbsorbedElements::addGeneralizations(const KYROmgUml2XmiImportBridge& bridge) {
  for (const UMLGeneralization* edge : bridge.pendingGeneralizations) {
    const auto* const role = dynamic_cast<const KYRGeneralizationRole*>(arrived_.find(edge));
    const KYRClass* const super = classOf(edge->general);
    if (role != nullptr && super != nullptr && role->generalizationAsSubtype != nullptr) {
      generalizationsBySuper_.try_emplace(super, role->generalizationAsSubtype);
    }
  }
  std::unordered_map<const KYRObject*, const UMLGeneralization*> makers;
  for (const UMLGeneralization* edge : bridge.pendingGeneralizations) {
    const KYRGeneralization* const whole = findGeneralization(edge);
    if (whole == nullptr) continue;
    const bool isMaker = makers.try_emplace(whole, edge).first->second == edge;
    if (isMaker && edge->generalizationSet.at(0) == nullptr) addComments(*edge, *whole);
    if (!isMaker || arrived_.find(edge) == nullptr) add(edge, Reason::mergedGeneralization, whole);
    for (const UMLGeneralizationSet* set : edge->generalizationSet) {
      if (set != nullptr && arrived_.find(set) == nullptr) add(set, Reason::mergedGeneralization, whole);
    }
  }
}

const KYRGeneralization* AbsorbedElements::findGeneralization(const UMLGeneralization* edge) const {
  const KYRClass* const super = classOf(edge->general);
  if (super == nullptr || classOf(edge->specific) == nullptr) return nullptr;
  const auto known = generalizationsBySuper_.find(super);
  return known == generalizationsBySuper_.end() ? nullptr : known->second;
}

void AbsorbedElements::addTypesOfFeatures(const KYROmgUml2XmiImportBridge& bridge) {
  for (const KYRModelObject* feature : bridge.typedFeatures) {
    const FeatureType type(*feature);
    if (type.element == nullptr || arrived_.find(type.element) != nullptr) continue;
    add(type.element, isTypeOfValues(type.element->getKind()) ? Reason::sharedType : Reason::typeName,
        type.object);
  }
}

// Those that are members of packages are converted whether or not a feature has them.
void AbsorbedElements::addTypeMember(const UMLElement& element) {
  const int kind = element.getKind();
  if (kind != UMLEnumeration::kind && kind != UMLPrimitiveType::kind) return;
  if (!visited_.isMember(&element)) return;
  const KYRString& name = umlCast<UMLNamedElement>(&element)->name;
  if (!name.isEmpty()) {
    add(&element, Reason::sharedType, arrived_.findTypeNamed(name));
  } else if (visited_.isTopMember(&element)) {
    add(&element, Reason::sharedType, arrived_.findTypeNamed("undefined"));
  }
}

void AbsorbedElements::addOwnColumns(const KYROmgUml2XmiImportBridge& bridge) {
  KYRRBTree::Iterator dropped(bridge.droppedAttributes, true);
  while (const void* entry = dropped.get()) {
    dropped.next();
    const auto* const attribute = static_cast<const KYRAttribute*>(entry);
    if (attribute->owner == nullptr) continue;
    const KYRString& name = attribute->getName();
    const int point = name.find(".", 0);
    if (point < 0) continue;
    add(attribute->umlElement, Reason::ownColumn,
        attribute->owner->getAttribute(name.mid(static_cast<unsigned int>(point) + 1)));
  }
}
