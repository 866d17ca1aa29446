// KYRClass: a class or an interface.
#pragma once

#include "repository/model/KYRClassCategoryType.h"
#include "repository/model/KYRClassifier.h"
#include "repository/model/KYRVisibilityType.h"

class KYR_EXPORT KYRClass : public KYRClassifier {
 public:
  bool isAbstract = false;
  /// True on a physical target.
  bool isPhysicalClass = false;
  KYRClassCategoryType classCategory;
  KYRVisibilityType visibility;

  KYRCollection<KYROperation> operations;  // owned
  KYRCollection<KYRKey> keys;              // owned, the primary key included
  /// The key of `keys` that is primary; null when none is. Set by `addPrimaryCandidateKey`.
  KYRCandidateKey* primaryKey = nullptr;
  /// The type that stands for the class; null until KYRClassType::addAssociatedClass.
  KYRClassType* classType = nullptr;
  /// The association of an association class; null for other classes.
  KYRAssociation* association = nullptr;
  // Where the class is an end. Referred to, in order of adding.
  KYRCollection<KYRAssociationRole> associationRoles;
  KYRCollection<KYRGeneralizationRole> generalizationRoles;
  KYRCollection<KYRDependency> clientDependencies;
  KYRCollection<KYRDependency> supplierDependencies;
  KYRCollection<KYRRealization> realizations;    // in which it is the realization class
  KYRCollection<KYRRealization> specifications;  // in which it is the specification class

  KYRClass() = default;
  ~KYRClass() override;
  int getElementType() const override { return KYRElementType::class_; }
  /// The object as the class that it is; null when it is none, or null.
  static KYRClass* from(KYRObject* object) noexcept {
    const bool isClass = object != nullptr && object->getElementType() == KYRElementType::class_;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-static-cast-downcast): no other class has that number
    return isClass ? static_cast<KYRClass*>(object) : nullptr;
  }

  /// Adds the operation as it is named: overloads share a name.
  void addOperation(KYROperation* operation);
  /// Makes this the class of an association class.
  void addAssociation(KYRAssociation* classAssociation);
  void addKey(KYRKey* key);
  /// Makes it the primary key; it joins `keys` when it is not there.
  void addPrimaryCandidateKey(KYRCandidateKey* key);
  int getAttributeCount() const;
  int getOperationCount() const;
  /// The attribute at a position from 0 in order of adding; null beyond the end.
  KYRAttribute* getAttribute(int index) const;
  /// The first attribute of exactly that name; null when there is none.
  KYRAttribute* getAttribute(const KYRString& name) const;

 protected:
  void listOwned(KYROwnedLists& lists) const override;
  void unlink() override;
};
