// KYRAssociation: an association of two or more roles.
#pragma once

#include "repository/model/KYRRelationship.h"

class KYR_EXPORT KYRAssociation : public KYRRelationship {
 public:
  bool isComposite = false;
  KYRCollection<KYRAssociationRole> roles;  // owned
  /// The class of an association class; null for a plain association.
  KYRClass* associationClass = nullptr;

  KYRAssociation() = default;
  ~KYRAssociation() override;
  int getElementType() const override { return KYRElementType::association; }
  void addAssociationRole(KYRAssociationRole* role);

 protected:
  void listOwned(KYROwnedLists& lists) const override;
  void unlink() override;
};
