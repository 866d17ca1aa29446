// UML classifiers (UML 2.5, clauses 9.2, 10 and 11).
#pragma once

#include "uml/UMLElement.h"
#include "uml/UMLNamespaces.h"
#include "uml/UMLRelationships.h"

class UMLClassifier : public virtual UMLRedefinableElement,
                      public virtual UMLType,
                      public virtual UMLNamespace {
 public:
  UML_CLASS_IDENTITY(UMLClassifier, 98)

  bool isAbstract = false;
  Borrowed<UMLGeneralization, KYRVector> generalization;
  Borrowed<UMLFeature, KYRVector> feature;
  Borrowed<UMLNamedElement, KYRVector> inheritedMember;
  Borrowed<UMLClassifier, KYRVector> redefinedClassifier;
  Borrowed<UMLClassifier, KYRVector> general;
  Borrowed<UMLSubstitution, KYRVector> substitution;
  Borrowed<UMLProperty, KYRVector> attribute;
  Borrowed<UMLUseCase, KYRVector> ownedUseCase;
  Borrowed<UMLUseCase, KYRVector> useCase;

  bool addGeneralization(UMLGeneralization* entry) { return generalization.add(entry); }
  bool addFeature(UMLFeature* entry) { return feature.add(entry); }
  bool addInheritedMember(UMLNamedElement* entry) { return inheritedMember.add(entry); }
  bool addRedefinedClassifier(UMLClassifier* entry) { return redefinedClassifier.add(entry); }
  bool addGeneral(UMLClassifier* entry) { return general.add(entry); }
  bool addSubstitution(UMLSubstitution* entry) { return substitution.add(entry); }
  bool addAttribute(UMLProperty* entry) { return attribute.add(entry); }
  bool addOwnedUseCase(UMLUseCase* entry) { return ownedUseCase.add(entry); }
  bool addUseCase(UMLUseCase* entry) { return useCase.add(entry); }
};

class UMLStructuredClassifier : public virtual UMLClassifier {
 public:
  UML_CLASS_IDENTITY(UMLStructuredClassifier, 71)

  Borrowed<UMLProperty, KYROrderedVector> ownedAttribute;
  Borrowed<UMLProperty, KYRVector> part;
  Borrowed<UMLConnectableElement, KYRVector> role;
  Borrowed<UMLConnector, KYRVector> ownedConnector;

  bool addOwnedAttribute(UMLProperty* entry) { return ownedAttribute.add(entry); }
  bool addPart(UMLProperty* entry) { return part.add(entry); }
  bool addRole(UMLConnectableElement* entry) { return role.add(entry); }
  bool addOwnedConnector(UMLConnector* entry) { return ownedConnector.add(entry); }
};

class UMLBehavioredClassifier : public virtual UMLClassifier {
 public:
  UML_CLASS_IDENTITY(UMLBehavioredClassifier, 111)

  Borrowed<UMLBehavior, KYRVector> ownedBehavior;
  UMLBehavior* classifierBehavior = nullptr;
  Borrowed<UMLInterfaceRealization, KYRVector> interfaceRealization;
  Borrowed<UMLTrigger, KYRVector> ownedTrigger;

  bool addOwnedBehavior(UMLBehavior* entry) { return ownedBehavior.add(entry); }
  bool addInterfaceRealization(UMLInterfaceRealization* entry) { return interfaceRealization.add(entry); }
  bool addOwnedTrigger(UMLTrigger* entry) { return ownedTrigger.add(entry); }
};

class UMLClass : public virtual UMLBehavioredClassifier {
 public:
  UML_CLASS_IDENTITY(UMLClass, 102)

  bool isBoundary = false;
  bool isAbstract = false;
  bool isActive = false;
  Borrowed<UMLClassifier, KYROrderedVector> nestedClassifier;
  Borrowed<UMLProperty, KYROrderedVector> ownedAttribute;
  Borrowed<UMLOperation, KYROrderedVector> ownedOperation;
  Borrowed<UMLClass, KYRVector> superClass;
  Borrowed<UMLReception, KYRVector> ownedReception;

  bool addNestedClassifier(UMLClassifier* entry) { return nestedClassifier.add(entry); }
  bool addOwnedAttribute(UMLProperty* entry) { return ownedAttribute.add(entry); }
  bool addOwnedOperation(UMLOperation* entry) { return ownedOperation.add(entry); }
  bool addSuperClass(UMLClass* entry) { return superClass.add(entry); }
  bool addOwnedReception(UMLReception* entry) { return ownedReception.add(entry); }
};

class UMLInterface : public virtual UMLClassifier {
 public:
  UML_CLASS_IDENTITY(UMLInterface, 104)

  Borrowed<UMLProperty, KYROrderedVector> ownedAttribute;
  Borrowed<UMLOperation, KYROrderedVector> ownedOperation;
  Borrowed<UMLClassifier, KYROrderedVector> nestedClassifier;
  Borrowed<UMLInterface, KYRVector> redefinedInterface;
  Borrowed<UMLReception, KYRVector> ownedReception;

  bool addOwnedAttribute(UMLProperty* entry) { return ownedAttribute.add(entry); }
  bool addOwnedOperation(UMLOperation* entry) { return ownedOperation.add(entry); }
  bool addNestedClassifier(UMLClassifier* entry) { return nestedClassifier.add(entry); }
  bool addRedefinedInterface(UMLInterface* entry) { return redefinedInterface.add(entry); }
  bool addOwnedReception(UMLReception* entry) { return ownedReception.add(entry); }
};

class UMLDataType : public virtual UMLClassifier {
 public:
  UML_CLASS_IDENTITY(UMLDataType, 20)

  Borrowed<UMLProperty, KYROrderedVector> ownedAttribute;
  Borrowed<UMLOperation, KYRVector> ownedOperation;

  bool addOwnedAttribute(UMLProperty* entry) { return ownedAttribute.add(entry); }
  bool addOwnedOperation(UMLOperation* entry) { return ownedOperation.add(entry); }
};

class UMLEnumeration : public virtual UMLDataType {
 public:
  UML_CLASS_IDENTITY(UMLEnumeration, 21)

  Borrowed<UMLEnumerationLiteral, KYROrderedVector> ownedLiteral;

  bool addOwnedLiteral(UMLEnumerationLiteral* entry) { return ownedLiteral.add(entry); }
};

class UMLPrimitiveType : public virtual UMLDataType {
 public:
  UML_CLASS_IDENTITY(UMLPrimitiveType, 23)
};

class UMLSignal : public virtual UMLClassifier {
 public:
  UML_CLASS_IDENTITY(UMLSignal, 106)

  Borrowed<UMLProperty, KYROrderedVector> ownedAttribute;

  bool addOwnedAttribute(UMLProperty* entry) { return ownedAttribute.add(entry); }
};

class UMLAssociation : public virtual UMLRelationship, public virtual UMLClassifier {
 public:
  UML_CLASS_IDENTITY(UMLAssociation, 24)

  bool isDerived = false;
  Borrowed<UMLProperty, KYROrderedVector> ownedEnd;
  Borrowed<UMLType, KYROrderedVector> endType;
  Borrowed<UMLProperty, KYROrderedVector> memberEnd;
  Borrowed<UMLProperty, KYRVector> navigableOwnedEnd;

  bool addOwnedEnd(UMLProperty* entry) { return ownedEnd.add(entry); }
  bool addEndType(UMLType* entry) { return endType.add(entry); }
  bool addMemberEnd(UMLProperty* entry) { return memberEnd.add(entry); }
  bool addNavigableOwnedEnd(UMLProperty* entry) { return navigableOwnedEnd.add(entry); }
};

class UMLAssociationClass : public virtual UMLAssociation, public virtual UMLClass {
 public:
  UML_CLASS_IDENTITY(UMLAssociationClass, 116)
};
