// KYRKey: attributes of a class that tell its instances apart or point at others.
#pragma once

#include "repository/model/KYRModelObject.h"

class KYR_EXPORT KYRKey : public KYRModelObject {
 public:
  KYRCollection<KYRAttribute> attributes;  // referred to
  /// The class that owns the key; null before it is added.
  KYRClass* associatedClass = nullptr;
  ~KYRKey() override;
  /// Adds the attribute; one that the key holds already is passed over.
  void addAttribute(KYRAttribute* attribute);
  /// Makes the class the owner of the key: the same as KYRClass::addKey.
  void addAssociatedClass(KYRClass* keyClass);

 protected:
  KYRKey() = default;
  void leavingOwner() override;
  void unlink() override;
};
