// KYRClassType: a class in the place of a type.
#pragma once

#include "repository/model/KYRType.h"

class KYR_EXPORT KYRClassType : public KYRType {
 public:
  KYRClass* associatedClass = nullptr;  // referred to

  KYRClassType() = default;
  ~KYRClassType() override;
  int getElementType() const override { return KYRElementType::classType; }
  /// Ties the two; the class then returns this as its class type.
  void addAssociatedClass(KYRClass* typeClass);

 protected:
  void unlink() override;
};
