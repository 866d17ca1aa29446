// KYRGeneralization: a superclass and its subclasses, by their roles.
#pragma once

#include "repository/model/KYRRelationship.h"

class KYR_EXPORT KYRGeneralization : public KYRRelationship {
 public:
  KYRCollection<KYRGeneralizationRole> supertypeRoles;  // owned
  KYRCollection<KYRGeneralizationRole> subtypeRoles;    // owned

  KYRGeneralization() = default;
  ~KYRGeneralization() override;
  int getElementType() const override { return KYRElementType::generalization; }
  void addSupertypeRole(KYRGeneralizationRole* role);
  void addSubtypeRole(KYRGeneralizationRole* role);

 protected:
  void listOwned(KYROwnedLists& lists) const override;
};
