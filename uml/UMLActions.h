// UML actions and pins (UML 2.5, clause 16).
#pragma once

#include "uml/UMLActivities.h"
#include "uml/UMLElement.h"
#include "uml/UMLNamespaces.h"

class UMLPin : public virtual UMLMultiplicityElement, public virtual UMLObjectNode {
 public:
  UML_CLASS_IDENTITY(UMLPin, 56)
};

class UMLInputPin : public virtual UMLPin {
 public:
  UML_CLASS_IDENTITY(UMLInputPin, 38)
};

class UMLOutputPin : public virtual UMLPin {
 public:
  UML_CLASS_IDENTITY(UMLOutputPin, 37)
};

class UMLValuePin : public virtual UMLInputPin {
 public:
  UML_CLASS_IDENTITY(UMLValuePin, 58)

  UMLValueSpecification* value = nullptr;
};

class UMLAction : public virtual UMLActivityNode {
 public:
  UML_CLASS_IDENTITY(UMLAction, 45)

  Borrowed<UMLOutputPin, KYROrderedVector> output;
  Borrowed<UMLInputPin, KYROrderedVector> input;
  UMLClassifier* context = nullptr;

  bool addOutput(UMLOutputPin* entry) { return output.add(entry); }
  bool addInput(UMLInputPin* entry) { return input.add(entry); }
};

class UMLOpaqueAction : public virtual UMLAction {
 public:
  UML_CLASS_IDENTITY(UMLOpaqueAction, 36)

  KYRString body;
  KYRString language;
  Borrowed<UMLInputPin, KYRVector> inputValue;
  Borrowed<UMLOutputPin, KYRVector> outputValue;

  bool addInputValue(UMLInputPin* entry) { return inputValue.add(entry); }
  bool addOutputValue(UMLOutputPin* entry) { return outputValue.add(entry); }
};

class UMLInvocationAction : public virtual UMLAction {
 public:
  UML_CLASS_IDENTITY(UMLInvocationAction, 39)

  Borrowed<UMLInputPin, KYROrderedVector> argument;

  bool addArgument(UMLInputPin* entry) { return argument.add(entry); }
};

class UMLCallAction : public virtual UMLInvocationAction {
 public:
  UML_CLASS_IDENTITY(UMLCallAction, 40)

  bool isSynchronous = false;
  Borrowed<UMLOutputPin, KYROrderedVector> result;

  bool addResult(UMLOutputPin* entry) { return result.add(entry); }
};

class UMLCallBehaviorAction : public virtual UMLCallAction {
 public:
  UML_CLASS_IDENTITY(UMLCallBehaviorAction, 43)

  UMLBehavior* behavior = nullptr;
};

class UMLCallOperationAction : public virtual UMLCallAction {
 public:
  UML_CLASS_IDENTITY(UMLCallOperationAction, 42)

  UMLOperation* operation = nullptr;
  UMLInputPin* target = nullptr;
};

class UMLSendSignalAction : public virtual UMLInvocationAction {
 public:
  UML_CLASS_IDENTITY(UMLSendSignalAction, 41)

  UMLInputPin* target = nullptr;
  UMLSignal* signal = nullptr;
};
