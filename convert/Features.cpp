// Attributes, operations and arguments. Types come later: each of them waits in `typedFeatures`.
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "foundation/ShownText.h"
#include "repository/model/KYRArgument.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYROperation.h"
#include "uml/UMLCast.h"
#include "uml/UMLFeatures.h"
#include "uml/UMLValues.h"

namespace {

KYRArgumentType mapDirection(const UMLParameterDirectionKind* direction) {
  if (direction == nullptr) return KYRArgumentType::notSet;
  switch (direction->getValue()) {
    case UMLParameterDirectionKind::in:
      return KYRArgumentType::in;
    case UMLParameterDirectionKind::inout:
      return KYRArgumentType::inOut;
    case UMLParameterDirectionKind::out:
      return KYRArgumentType::out;
    case UMLParameterDirectionKind::return_:
      return KYRArgumentType::return_;
    default:
      return KYRArgumentType::notSet;
  }
}

// What an operation gives back, as tools write it: nameless, called "return", or at least typed. A
// parameter of that direction that is none of these is an argument like any other.
bool isReturn(const UMLParameter& parameter) {
  if (parameter.direction == nullptr) return false;
  if (parameter.direction->getValue() != UMLParameterDirectionKind::return_) return false;
  return parameter.name.isEmpty() || parameter.name.view() == "return" || parameter.type != nullptr;
}

}  // namespace

KYRVisibilityType KYROmgUml2XmiImportBridge::mapVisibility(int visibility) {
  switch (visibility) {
    case UMLVisibilityKind::public_:
      return KYRVisibilityType::public_;
    case UMLVisibilityKind::protected_:
      return KYRVisibilityType::protected_;
    case UMLVisibilityKind::package:
      return KYRVisibilityType::package;
    default:
      return KYRVisibilityType::private_;
  }
}

// Literals of other kinds have no text: a default that is an integer literal is lost on purpose.
KYRString KYROmgUml2XmiImportBridge::valueSpecificationText(const UMLValueSpecification* value) {
  switch (value->getKind()) {
    case UMLLiteralString::kind:
      return shownText(umlCast<UMLLiteralString>(value)->value);
    case UMLOpaqueExpression::kind:
      return shownText(umlCast<UMLOpaqueExpression>(value)->body);
    default:
      return {};
  }
}

std::unique_ptr<KYRAttribute> KYROmgUml2XmiImportBridge::convertProperty(UMLProperty* element) {
  auto attribute = std::make_unique<KYRAttribute>();
  attribute->takeName(shownText(element->name));
  attribute->sourceId = shownText(element->id);
  applyElementMetadata(attribute.get(), element);
  enter(attribute.get(), element);
  if (element->defaultValue != nullptr) {
    attribute->initialValue = valueSpecificationText(element->defaultValue);
  }
  attribute->isDerived = element->isDerived;
  attribute->isStatic = element->isStatic;
  if (const UMLVisibilityKind* visibility = element->UMLNamedElement::visibility) {
    attribute->visibility = mapVisibility(visibility->getValue());
  }
  typedFeatures.add(attribute.get(), false);
  return attribute;
}

std::unique_ptr<KYROperation> KYROmgUml2XmiImportBridge::convertOperation(UMLOperation* element) {
  auto operation = std::make_unique<KYROperation>();
  operation->takeName(shownText(element->name));
  operation->sourceId = shownText(element->id);
  applyElementMetadata(operation.get(), element);
  enter(operation.get(), element);
  operation->isStatic = element->isStatic;
  if (const UMLVisibilityKind* visibility = element->UMLNamedElement::visibility) {
    operation->visibility = mapVisibility(visibility->getValue());
  }
  countSteps(element->UMLOperation::ownedParameter.count());
  for (UMLParameter* parameter : element->UMLOperation::ownedParameter) {
    if (parameter == nullptr || parameter->getKind() != UMLParameter::kind) continue;
    if (!isReturn(*parameter)) {
      convertParameter(parameter, operation.get());
    } else if (parameter->type != nullptr) {
      element->type = parameter->type;  // of several return parameters the last one that has a type counts
    }
  }
  typedFeatures.add(operation.get(), false);
  return operation;
}

void KYROmgUml2XmiImportBridge::convertParameter(UMLParameter* element, KYROperation* operation) {
  auto argument = std::make_unique<KYRArgument>();
  argument->takeName(shownText(element->name));
  argument->sourceId = shownText(element->id);
  applyElementMetadata(argument.get(), element);
  argument->position = operation->getArgumentCount();
  operation->addArgument(argument.get());
  KYRArgument* const added = argument.release();  // ownership: the operation
  enter(added, element);
  added->direction = mapDirection(element->direction);
  typedFeatures.add(added, false);
}
