// UML use cases (UML 2.5, clause 18).
#pragma once

#include "uml/UMLClassifiers.h"
#include "uml/UMLElement.h"
#include "uml/UMLNamespaces.h"
#include "uml/UMLRelationships.h"

class UMLUseCase : public virtual UMLBehavioredClassifier {
 public:
  UML_CLASS_IDENTITY(UMLUseCase, 96)

  Borrowed<UMLInclude, KYRVector> include;
  Borrowed<UMLExtend, KYRVector> extend;
  Borrowed<UMLExtensionPoint, KYRVector> extensionPoint;
  Borrowed<UMLClassifier, KYRVector> subject;

  bool addInclude(UMLInclude* entry) { return include.add(entry); }
  bool addExtend(UMLExtend* entry) { return extend.add(entry); }
  bool addExtensionPoint(UMLExtensionPoint* entry) { return extensionPoint.add(entry); }
  bool addSubject(UMLClassifier* entry) { return subject.add(entry); }
};

class UMLActor : public virtual UMLBehavioredClassifier {
 public:
  UML_CLASS_IDENTITY(UMLActor, 93)
};

class UMLExtend : public virtual UMLDirectedRelationship, public virtual UMLNamedElement {
 public:
  UML_CLASS_IDENTITY(UMLExtend, 94)

  UMLUseCase* extendedCase = nullptr;
  UMLUseCase* extension = nullptr;
  UMLConstraint* condition = nullptr;
  Borrowed<UMLExtensionPoint, KYROrderedVector> extensionLocation;

  bool addExtensionLocation(UMLExtensionPoint* entry) { return extensionLocation.add(entry); }
};

class UMLInclude : public virtual UMLDirectedRelationship, public virtual UMLNamedElement {
 public:
  UML_CLASS_IDENTITY(UMLInclude, 95)

  UMLUseCase* includingCase = nullptr;
  UMLUseCase* addition = nullptr;
};

class UMLExtensionPoint : public virtual UMLRedefinableElement {
 public:
  UML_CLASS_IDENTITY(UMLExtensionPoint, 97)

  UMLUseCase* useCase = nullptr;
};
