// UML features, parameters and connectors (UML 2.5, clauses 9.4 to 9.6 and 11.2).
#pragma once

#include "uml/UMLElement.h"
#include "uml/UMLKinds.h"
#include "uml/UMLNamespaces.h"

class UMLFeature : public virtual UMLRedefinableElement {
 public:
  UML_CLASS_IDENTITY(UMLFeature, 11)

  bool isStatic = false;
  Borrowed<UMLClassifier, KYRVector> featuringClassifier;

  bool addFeaturingClassifier(UMLClassifier* entry) { return featuringClassifier.add(entry); }
};

class UMLStructuralFeature : public virtual UMLFeature,
                             public virtual UMLTypedElement,
                             public virtual UMLMultiplicityElement {
 public:
  UML_CLASS_IDENTITY(UMLStructuralFeature, 15)

  bool isReadOnly = false;
};

class UMLBehavioralFeature : public virtual UMLFeature, public virtual UMLNamespace {
 public:
  UML_CLASS_IDENTITY(UMLBehavioralFeature, 99)

  Borrowed<UMLParameter, KYROrderedVector> ownedParameter;
  bool isAbstract = false;
  Borrowed<UMLBehavior, KYRVector> method;
  UMLCallConcurrencyKind* concurrency = nullptr;
  Borrowed<UMLType, KYRVector> raisedException;

  bool addOwnedParameter(UMLParameter* entry) { return ownedParameter.add(entry); }
  bool addMethod(UMLBehavior* entry) { return method.add(entry); }
  bool addRaisedException(UMLType* entry) { return raisedException.add(entry); }
};

class UMLConnectableElement : public virtual UMLTypedElement {
 public:
  UML_CLASS_IDENTITY(UMLConnectableElement, 72)

  Borrowed<UMLConnectorEnd, KYROrderedVector> end;

  bool addEnd(UMLConnectorEnd* entry) { return end.add(entry); }
};

class UMLProperty : public virtual UMLConnectableElement, public virtual UMLStructuralFeature {
 public:
  UML_CLASS_IDENTITY(UMLProperty, 70)

  bool isDerived = false;
  bool isReadOnly = false;
  bool isDerivedUnion = false;
  bool isComposite = false;
  SeldomText default_;
  UMLAggregationKind* aggregation = nullptr;
  UMLClass* class_ = nullptr;
  Borrowed<UMLProperty, KYRVector> redefinedProperty;
  UMLAssociation* owningAssociation = nullptr;
  UMLDataType* datatype = nullptr;
  UMLValueSpecification* defaultValue = nullptr;
  UMLProperty* opposite = nullptr;
  Borrowed<UMLProperty, KYRVector> subsettedProperty;
  UMLAssociation* association = nullptr;

  bool addRedefinedProperty(UMLProperty* entry) { return redefinedProperty.add(entry); }
  bool addSubsettedProperty(UMLProperty* entry) { return subsettedProperty.add(entry); }
};

class UMLOperation : public virtual UMLBehavioralFeature {
 public:
  UML_CLASS_IDENTITY(UMLOperation, 113)

  bool isQuery = false;
  bool isOrdered = false;
  bool isUnique = false;
  int lower = 0;
  SeldomText upper;
  UMLClass* class_ = nullptr;
  Borrowed<UMLConstraint, KYRVector> precondition;
  Borrowed<UMLConstraint, KYRVector> postcondition;
  Borrowed<UMLOperation, KYRVector> redefinedOperation;
  UMLDataType* datatype = nullptr;
  UMLConstraint* bodyCondition = nullptr;
  UMLType* type = nullptr;
  Borrowed<UMLParameter, KYROrderedVector> ownedParameter;
  Borrowed<UMLType, KYRVector> raisedException;
  UMLInterface* interface = nullptr;

  bool addPrecondition(UMLConstraint* entry) { return precondition.add(entry); }
  bool addPostcondition(UMLConstraint* entry) { return postcondition.add(entry); }
  bool addRedefinedOperation(UMLOperation* entry) { return redefinedOperation.add(entry); }
  bool addOwnedParameter(UMLParameter* entry) { return ownedParameter.add(entry); }
  bool addRaisedException(UMLType* entry) { return raisedException.add(entry); }
};

class UMLParameter : public virtual UMLTypedElement, public virtual UMLMultiplicityElement {
 public:
  UML_CLASS_IDENTITY(UMLParameter, 14)

  UMLParameterDirectionKind* direction = nullptr;
  SeldomText default_;
  UMLValueSpecification* defaultValue = nullptr;
  UMLOperation* operation = nullptr;
};

class UMLReception : public virtual UMLBehavioralFeature {
 public:
  UML_CLASS_IDENTITY(UMLReception, 105)

  UMLSignal* signal = nullptr;
};

class UMLConnector : public virtual UMLFeature {
 public:
  UML_CLASS_IDENTITY(UMLConnector, 69)

  UMLAssociation* type = nullptr;
  Borrowed<UMLConnector, KYRVector> redefinedConnector;
  Borrowed<UMLConnectorEnd, KYROrderedVector> end;

  bool addRedefinedConnector(UMLConnector* entry) { return redefinedConnector.add(entry); }
  bool addEnd(UMLConnectorEnd* entry) { return end.add(entry); }
};

class UMLConnectorEnd : public virtual UMLMultiplicityElement {
 public:
  UML_CLASS_IDENTITY(UMLConnectorEnd, 68)

  UMLProperty* definingEnd = nullptr;
  UMLConnectableElement* role = nullptr;
};
