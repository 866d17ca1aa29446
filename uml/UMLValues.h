// UML values and instances (UML 2.5, clauses 8 and 9.8).
#pragma once

#include "uml/UMLElement.h"
#include "uml/UMLNamespaces.h"

class UMLValueSpecification : public virtual UMLTypedElement, public virtual UMLPackageableElement {
 public:
  UML_CLASS_IDENTITY(UMLValueSpecification, 25)
};

class UMLLiteralSpecification : public virtual UMLValueSpecification {
 public:
  UML_CLASS_IDENTITY(UMLLiteralSpecification, 3)
};

class UMLLiteralInteger : public virtual UMLLiteralSpecification {
 public:
  UML_CLASS_IDENTITY(UMLLiteralInteger, 4)

  int value = 0;
};

class UMLLiteralString : public virtual UMLLiteralSpecification {
 public:
  UML_CLASS_IDENTITY(UMLLiteralString, 5)

  KYRString value;
};

class UMLLiteralBoolean : public virtual UMLLiteralSpecification {
 public:
  UML_CLASS_IDENTITY(UMLLiteralBoolean, 6)

  bool value = false;
};

class UMLLiteralNull : public virtual UMLLiteralSpecification {
 public:
  UML_CLASS_IDENTITY(UMLLiteralNull, 7)
};

class UMLLiteralUnlimitedNatural : public virtual UMLLiteralSpecification {
 public:
  UML_CLASS_IDENTITY(UMLLiteralUnlimitedNatural, 29)

  KYRString value;
};

class UMLExpression : public virtual UMLValueSpecification {
 public:
  UML_CLASS_IDENTITY(UMLExpression, 31)

  KYRString symbol;
  Borrowed<UMLValueSpecification, KYRVector> operand;

  bool addOperand(UMLValueSpecification* entry) { return operand.add(entry); }
};

class UMLOpaqueExpression : public virtual UMLValueSpecification {
 public:
  UML_CLASS_IDENTITY(UMLOpaqueExpression, 33)

  KYRString body;
  KYRString language;
  UMLParameter* result = nullptr;
  UMLBehavior* behavior = nullptr;
};

class UMLInstanceSpecification : public virtual UMLPackageableElement {
 public:
  UML_CLASS_IDENTITY(UMLInstanceSpecification, 16)

  Borrowed<UMLClassifier, KYRVector> classifier;
  Borrowed<UMLSlot, KYRVector> slot;
  UMLValueSpecification* specification = nullptr;

  bool addClassifier(UMLClassifier* entry) { return classifier.add(entry); }
  bool addSlot(UMLSlot* entry) { return slot.add(entry); }
};

class UMLInstanceValue : public virtual UMLValueSpecification {
 public:
  UML_CLASS_IDENTITY(UMLInstanceValue, 28)

  UMLInstanceSpecification* instance = nullptr;
};

class UMLSlot : public virtual UMLElement {
 public:
  UML_CLASS_IDENTITY(UMLSlot, 17)

  UMLInstanceSpecification* owningInstance = nullptr;
  UMLStructuralFeature* definingFeature = nullptr;
  Borrowed<UMLValueSpecification, KYROrderedVector> value;

  bool addValue(UMLValueSpecification* entry) { return value.add(entry); }
};

class UMLEnumerationLiteral : public virtual UMLInstanceSpecification {
 public:
  UML_CLASS_IDENTITY(UMLEnumerationLiteral, 22)

  UMLEnumeration* enumeration = nullptr;
};
