// KYRAttribute: an attribute of a class.
#pragma once

#include "repository/model/KYRPosition.h"
#include "repository/model/KYRStructuralFeature.h"
#include "repository/model/KYRVisibilityType.h"

class KYR_EXPORT KYRAttribute : public KYRStructuralFeature {
 public:
  KYRPosition position;
  KYRVisibilityType visibility;
  bool isOptional = false;
  bool isDerived = false;
  bool isStatic = false;
  KYRString initialValue;
  /// The class that has the attribute; null before it is added.
  KYRClass* owner = nullptr;
  KYRCollection<KYRKey> keys;  // referred to: the keys that hold it

  KYRAttribute() = default;
  ~KYRAttribute() override;
  int getElementType() const override { return KYRElementType::attribute; }

 protected:
  void leavingOwner() override;
  void unlink() override;
};
