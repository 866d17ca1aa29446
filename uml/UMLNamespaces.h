// UML names, namespaces, packages and types in the abstract (UML 2.5, clauses 7 and 12).
#pragma once

#include "uml/UMLElement.h"
#include "uml/UMLKinds.h"

class KYRType;

class UMLComment : public virtual UMLElement {
 public:
  UML_CLASS_IDENTITY(UMLComment, 1)

  KYRString body;
  Borrowed<UMLElement, KYRVector> annotatedElement;

  bool addAnnotatedElement(UMLElement* entry) { return annotatedElement.add(entry); }
};

class UMLNamedElement : public virtual UMLElement {
 public:
  UML_CLASS_IDENTITY(UMLNamedElement, 64)

  KYRString name;
  UMLVisibilityKind* visibility = nullptr;
  SeldomText qualifiedName;
  Borrowed<UMLDependency, KYRVector> clientDependency;
  UMLNamespace* namespace_ = nullptr;

  bool addClientDependency(UMLDependency* entry) { return clientDependency.add(entry); }
};

class UMLPackageableElement : public virtual UMLNamedElement {
 public:
  UML_CLASS_IDENTITY(UMLPackageableElement, 65)

  UMLVisibilityKind* visibility = nullptr;
};

class UMLNamespace : public virtual UMLNamedElement {
 public:
  UML_CLASS_IDENTITY(UMLNamespace, 66)

  Borrowed<UMLElementImport, KYRVector> elementImport;
  Borrowed<UMLPackageImport, KYRVector> packageImport;
  Borrowed<UMLConstraint, KYRVector> ownedRule;
  Borrowed<UMLNamedElement, KYRVector> member;
  Borrowed<UMLPackageableElement, KYRVector> importedMember;
  Borrowed<UMLNamedElement, KYRVector> ownedMember;

  bool addElementImport(UMLElementImport* entry) { return elementImport.add(entry); }
  bool addPackageImport(UMLPackageImport* entry) { return packageImport.add(entry); }
  bool addOwnedRule(UMLConstraint* entry) { return ownedRule.add(entry); }
  bool addMember(UMLNamedElement* entry) { return member.add(entry); }
  bool addImportedMember(UMLPackageableElement* entry) { return importedMember.add(entry); }
  bool addOwnedMember(UMLNamedElement* entry) { return ownedMember.add(entry); }
};

class UMLPackage : public virtual UMLPackageableElement, public virtual UMLNamespace {
 public:
  UML_CLASS_IDENTITY(UMLPackage, 18)

  Borrowed<UMLPackageMerge, KYRVector> packageMerge;
  Borrowed<UMLPackageableElement, KYRVector> packagedElement;
  Borrowed<UMLType, KYRVector> ownedType;
  Borrowed<UMLPackage, KYRVector> nestedPackage;
  UMLPackage* nestingPackage = nullptr;

  bool addPackageMerge(UMLPackageMerge* entry) { return packageMerge.add(entry); }
  bool addPackagedElement(UMLPackageableElement* entry) { return packagedElement.add(entry); }
  bool addOwnedType(UMLType* entry) { return ownedType.add(entry); }
  bool addNestedPackage(UMLPackage* entry) { return nestedPackage.add(entry); }
};

class UMLModel : public virtual UMLPackage {
 public:
  UML_CLASS_IDENTITY(UMLModel, 114)

  KYRString exporter;
  KYRString exporterVersion;
  KYRString umlVersion;
  KYRString viewpoint;
};

class UMLType : public virtual UMLPackageableElement {
 public:
  UML_CLASS_IDENTITY(UMLType, 30)

  UMLPackage* package = nullptr;
  int length = 0;
  int scale = 0;
  // What the conversion gives to features of this type, as long as it goes on; null of enumerations.
  KYRType* repositoryType = nullptr;
};

class UMLTypedElement : public virtual UMLNamedElement {
 public:
  UML_CLASS_IDENTITY(UMLTypedElement, 10)

  UMLType* type = nullptr;
};

class UMLMultiplicityElement : public virtual UMLElement {
 public:
  UML_CLASS_IDENTITY(UMLMultiplicityElement, 44)

  bool isOrdered = false;
  bool isUnique = false;
  int lower = 0;
  SeldomText upper;
  UMLValueSpecification* upperValue = nullptr;
  UMLValueSpecification* lowerValue = nullptr;
};

class UMLRedefinableElement : public virtual UMLNamedElement {
 public:
  UML_CLASS_IDENTITY(UMLRedefinableElement, 12)

  bool isLeaf = false;
  Borrowed<UMLRedefinableElement, KYRVector> redefinedElement;
  Borrowed<UMLClassifier, KYRVector> redefinitionContext;

  bool addRedefinedElement(UMLRedefinableElement* entry) { return redefinedElement.add(entry); }
  bool addRedefinitionContext(UMLClassifier* entry) { return redefinitionContext.add(entry); }
};

class UMLConstraint : public virtual UMLPackageableElement {
 public:
  UML_CLASS_IDENTITY(UMLConstraint, 8)

  Borrowed<UMLElement, KYROrderedVector> constrainedElement;
  UMLValueSpecification* specification = nullptr;
  UMLNamespace* context = nullptr;

  bool addConstrainedElement(UMLElement* entry) { return constrainedElement.add(entry); }
};
