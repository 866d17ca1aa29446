// Enumerations: the literals of one become the values of its type.
//
// Enumerations of one name share a type, and one is met again for each feature that has it. Each pass
// makes the enumeration the type's own and writes the data type that the literals tell. But only the
// first pass of an enumeration can add values: from then on the type holds all names, and a further
// pass has nothing to do for any literal. So it does not look at them.
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "foundation/ShownText.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYRTypeValue.h"
#include "uml/UMLCast.h"
#include "uml/UMLClassifiers.h"
#include "uml/UMLValues.h"

namespace {

// The value that the specification of a literal gives, and the data type that it speaks for. Both
// stay as they are where it gives none: an integer 0 is what tools write for no value at all.
void readSpecification(const UMLValueSpecification& specification, KYRTypeValue& value, KYRString& dataType) {
  switch (specification.getKind()) {
    case UMLLiteralInteger::kind: {
      const int number = umlCast<UMLLiteralInteger>(&specification)->value;
      if (number == 0) return;
      value.setValue(KYRString(number));
      dataType = "SQL_INTEGER";
      return;
    }
    case UMLLiteralString::kind: {
      const KYRString& content = umlCast<UMLLiteralString>(&specification)->value;
      if (content.isEmpty()) return;
      value.setValue(content);
      dataType = "SQL_VARCHAR";
      return;
    }
    case UMLLiteralBoolean::kind:
      dataType = "SQL_BOOLEAN";
      return;
    default:
      return;
  }
}

}  // namespace

KYRDerivedType* KYROmgUml2XmiImportBridge::convertEnumeration(UMLEnumeration* element) {
  // The type that an enumeration has found or made once is the one that it would find again.
  KYRDerivedType*& type = enumerationPasses_[element].type;
  if (type == nullptr) type = getDerivedType(element->name, element->id, 0, 0, true);
  type->umlElement = element;
  convertEnumerationLiterals(type);
  ensureBaseType(type);
  return type;
}

void KYROmgUml2XmiImportBridge::convertEnumerationLiterals(KYRDerivedType* type) {
  const auto* const element = umlCast<UMLEnumeration>(type->umlElement);
  if (element == nullptr) return;
  EnumerationPass& pass = enumerationPasses_[element];
  if (pass.filled != type) {
    pass.dataType.empty();
    for (UMLEnumerationLiteral* literal : element->ownedLiteral) {
      if (literal == nullptr || literal->getKind() != UMLEnumerationLiteral::kind) continue;
      addTypeValue(type, literal, pass.dataType);
    }
    pass.filled = type;
  }
  if (!pass.dataType.isEmpty()) type->dataType = pass.dataType;  // the last literal that has one decides
}

// A value is known to others only when the type has taken it, so a refused one leaves nothing behind.
void KYROmgUml2XmiImportBridge::addTypeValue(KYRDerivedType* type, UMLEnumerationLiteral* literal,
                                             KYRString& dataType) {
  ++literalCount;
  try {
    auto value = std::make_unique<KYRTypeValue>();
    value->setName(literal->name.trim());
    value->position = type->getTypeValueCount();
    value->sourceId = shownText(literal->id);
    if (literal->specification != nullptr) readSpecification(*literal->specification, *value, dataType);
    if (value->value.isEmpty()) value->setValue(literal->name);
    applyElementMetadata(value.get(), literal);
    if (type->typeValues.get(value->getName()) != nullptr) return;  // the type would refuse it
    type->addTypeValue(value.get());
    objects.addRecord(value.release());  // ownership: the type
  } catch (...) {
    // Whatever is wrong with one literal, the others are converted.
    return;
  }
}
