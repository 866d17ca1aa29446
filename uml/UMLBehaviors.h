// UML behaviors, triggers and events (UML 2.5, clauses 13 and 17).
#pragma once

#include "uml/UMLClassifiers.h"
#include "uml/UMLElement.h"
#include "uml/UMLNamespaces.h"

class UMLBehavior : public virtual UMLClass {
 public:
  UML_CLASS_IDENTITY(UMLBehavior, 32)

  bool isReentrant = false;
  Borrowed<UMLBehavior, KYRVector> redefinedBehavior;
  UMLBehavioralFeature* specification = nullptr;
  Borrowed<UMLParameter, KYROrderedVector> ownedParameter;
  UMLBehavioredClassifier* context = nullptr;
  Borrowed<UMLConstraint, KYRVector> precondition;
  Borrowed<UMLConstraint, KYRVector> postcondition;

  bool addRedefinedBehavior(UMLBehavior* entry) { return redefinedBehavior.add(entry); }
  bool addOwnedParameter(UMLParameter* entry) { return ownedParameter.add(entry); }
  bool addPrecondition(UMLConstraint* entry) { return precondition.add(entry); }
  bool addPostcondition(UMLConstraint* entry) { return postcondition.add(entry); }
};

class UMLOpaqueBehavior : public virtual UMLBehavior {
 public:
  UML_CLASS_IDENTITY(UMLOpaqueBehavior, 34)

  KYRString body;
  KYRString language;
};

class UMLFunctionBehavior : public virtual UMLOpaqueBehavior {
 public:
  UML_CLASS_IDENTITY(UMLFunctionBehavior, 35)
};

class UMLTrigger : public virtual UMLNamedElement {
 public:
  UML_CLASS_IDENTITY(UMLTrigger, 103)

  UMLEvent* event = nullptr;
};

class UMLEvent : public virtual UMLPackageableElement {
 public:
  UML_CLASS_IDENTITY(UMLEvent, 112)
};

class UMLExecutionEvent : public virtual UMLEvent {
 public:
  UML_CLASS_IDENTITY(UMLExecutionEvent, 84)
};

class UMLCreationEvent : public virtual UMLEvent {
 public:
  UML_CLASS_IDENTITY(UMLCreationEvent, 85)
};

class UMLDestructionEvent : public virtual UMLEvent {
 public:
  UML_CLASS_IDENTITY(UMLDestructionEvent, 86)
};

class UMLMessageEvent : public virtual UMLEvent {
 public:
  UML_CLASS_IDENTITY(UMLMessageEvent, 109)
};

class UMLAnyReceiveEvent : public virtual UMLMessageEvent {
 public:
  UML_CLASS_IDENTITY(UMLAnyReceiveEvent, 110)
};

class UMLCallEvent : public virtual UMLMessageEvent {
 public:
  UML_CLASS_IDENTITY(UMLCallEvent, 100)

  UMLOperation* operation = nullptr;
};

class UMLChangeEvent : public virtual UMLEvent {
 public:
  UML_CLASS_IDENTITY(UMLChangeEvent, 101)

  UMLValueSpecification* changeExpression = nullptr;
};

class UMLSignalEvent : public virtual UMLMessageEvent {
 public:
  UML_CLASS_IDENTITY(UMLSignalEvent, 107)

  UMLSignal* signal = nullptr;
};

class UMLTimeEvent : public virtual UMLEvent {
 public:
  UML_CLASS_IDENTITY(UMLTimeEvent, 108)

  bool isRelative = false;
  UMLValueSpecification* when = nullptr;
};

class UMLSendOperationEvent : public virtual UMLMessageEvent {
 public:
  UML_CLASS_IDENTITY(UMLSendOperationEvent, 87)

  UMLOperation* operation = nullptr;
};

class UMLSendSignalEvent : public virtual UMLMessageEvent {
 public:
  UML_CLASS_IDENTITY(UMLSendSignalEvent, 88)

  UMLSignal* signal = nullptr;
};

class UMLReceiveOperationEvent : public virtual UMLMessageEvent {
 public:
  UML_CLASS_IDENTITY(UMLReceiveOperationEvent, 91)

  UMLOperation* operation = nullptr;
};

class UMLReceiveSignalEvent : public virtual UMLMessageEvent {
 public:
  UML_CLASS_IDENTITY(UMLReceiveSignalEvent, 92)

  UMLSignal* signal = nullptr;
};
