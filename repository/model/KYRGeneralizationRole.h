// KYRGeneralizationRole: one end of a generalization.
#pragma once

#include "repository/model/KYRModelObject.h"

class KYR_EXPORT KYRGeneralizationRole : public KYRModelObject {
 public:
  /// The owning generalization, when this is a subtype role of it; else null.
  KYRGeneralization* generalizationAsSubtype = nullptr;
  /// The owning generalization, when this is a supertype role of it; else null.
  KYRGeneralization* generalizationAsSupertype = nullptr;
  /// The class at this end; null after the class has been deleted.
  KYRClass* associatedClass = nullptr;
  KYRCollection<KYRForeignKey> foreignKeys;  // referred to

  KYRGeneralizationRole() = default;
  ~KYRGeneralizationRole() override;
  int getElementType() const override { return KYRElementType::generalizationRole; }
  /// Sets the class and enters the role in its generalization roles.
  void addAssociatedClass(KYRClass* end);
  void addForeignKey(KYRForeignKey* key);

 protected:
  void leavingOwner() override;
  void unlink() override;
};
