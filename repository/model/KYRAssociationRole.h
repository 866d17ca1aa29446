// KYRAssociationRole: one end of an association.
#pragma once

#include "repository/model/KYRModelObject.h"
#include "repository/model/KYRVisibilityType.h"

class KYR_EXPORT KYRAssociationRole : public KYRModelObject {
 public:
  KYRVisibilityType visibility;
  bool isOrdered = false;
  bool isAggregate = false;
  /// True on the role that setSourceProperty has marked.
  bool isSource = false;
  /// See buildMultiplicity.
  KYRString multiplicity;
  /// The class at this end; null after the class has been deleted.
  KYRClass* associatedClass = nullptr;
  KYRCollection<KYRForeignKey> foreignKeys;  // referred to

  KYRAssociationRole() = default;
  ~KYRAssociationRole() override;
  int getElementType() const override { return KYRElementType::associationRole; }
  /// The association that owns the role; null when none does.
  KYRAssociation* getAssociation() const;
  /// Sets the class and enters the role in its roles.
  void addAssociatedClass(KYRClass* end);
  void addForeignKey(KYRForeignKey* key);

 protected:
  void unlink() override;
};
