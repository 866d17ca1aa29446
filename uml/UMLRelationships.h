// UML relationships: imports, generalizations, dependencies (UML 2.5, clauses 7.8, 9.9 and 12).
#pragma once

#include "uml/UMLElement.h"
#include "uml/UMLKinds.h"
#include "uml/UMLNamespaces.h"

class UMLRelationship : public virtual UMLElement {
 public:
  UML_CLASS_IDENTITY(UMLRelationship, 26)

  Borrowed<UMLElement, KYRVector> relatedElement;

  bool addRelatedElement(UMLElement* entry) { return relatedElement.add(entry); }
};

class UMLDirectedRelationship : public virtual UMLRelationship {
 public:
  UML_CLASS_IDENTITY(UMLDirectedRelationship, 2)

  Borrowed<UMLElement, KYRVector> source;
  Borrowed<UMLElement, KYRVector> target;

  bool addSource(UMLElement* entry) { return source.add(entry); }
  bool addTarget(UMLElement* entry) { return target.add(entry); }
};

class UMLElementImport : public virtual UMLDirectedRelationship {
 public:
  UML_CLASS_IDENTITY(UMLElementImport, 9)

  UMLVisibilityKind* visibility = nullptr;
  KYRString alias;
  UMLPackageableElement* importedElement = nullptr;
  UMLNamespace* importingNamespace = nullptr;
};

class UMLPackageImport : public virtual UMLDirectedRelationship {
 public:
  UML_CLASS_IDENTITY(UMLPackageImport, 19)

  UMLVisibilityKind* visibility = nullptr;
  UMLNamespace* importingNamespace = nullptr;
  UMLPackage* importedPackage = nullptr;
};

class UMLPackageMerge : public virtual UMLDirectedRelationship {
 public:
  UML_CLASS_IDENTITY(UMLPackageMerge, 27)

  UMLPackage* receivingPackage = nullptr;
  UMLPackage* mergedPackage = nullptr;
};

class UMLGeneralization : public virtual UMLDirectedRelationship {
 public:
  UML_CLASS_IDENTITY(UMLGeneralization, 13)

  bool isSubstitutable = false;
  UMLClassifier* specific = nullptr;
  UMLClassifier* general = nullptr;
  Borrowed<UMLGeneralizationSet, KYRVector> generalizationSet;

  bool addGeneralizationSet(UMLGeneralizationSet* entry) { return generalizationSet.add(entry); }
};

class UMLGeneralizationSet : public virtual UMLPackageableElement {
 public:
  UML_CLASS_IDENTITY(UMLGeneralizationSet, 115)

  bool isCovering = false;
  bool isDisjoint = false;
  const void* reservedReference = nullptr;  // nothing sets or reads it
  Borrowed<UMLGeneralization, KYRVector> generalization;

  bool addGeneralization(UMLGeneralization* entry) { return generalization.add(entry); }
};

class UMLDependency : public virtual UMLDirectedRelationship, public virtual UMLPackageableElement {
 public:
  UML_CLASS_IDENTITY(UMLDependency, 61)

  Borrowed<UMLNamedElement, KYRVector> supplier;
  Borrowed<UMLNamedElement, KYRVector> client;

  bool addSupplier(UMLNamedElement* entry) { return supplier.add(entry); }
  bool addClient(UMLNamedElement* entry) { return client.add(entry); }
};

class UMLAbstraction : public virtual UMLDependency {
 public:
  UML_CLASS_IDENTITY(UMLAbstraction, 60)

  UMLOpaqueExpression* mapping = nullptr;
};

class UMLRealization : public virtual UMLAbstraction {
 public:
  UML_CLASS_IDENTITY(UMLRealization, 62)
};

class UMLUsage : public virtual UMLDependency {
 public:
  UML_CLASS_IDENTITY(UMLUsage, 59)
};

class UMLSubstitution : public virtual UMLRealization {
 public:
  UML_CLASS_IDENTITY(UMLSubstitution, 63)

  UMLClassifier* contract = nullptr;
  UMLClassifier* substitutingClassifier = nullptr;
};

class UMLInterfaceRealization : public virtual UMLRealization {
 public:
  UML_CLASS_IDENTITY(UMLInterfaceRealization, 67)

  UMLInterface* contract = nullptr;
  UMLBehavioredClassifier* implementingClassifier = nullptr;
};
