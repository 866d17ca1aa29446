// KYRFeature: what a classifier has, with a type.
#pragma once

#include "repository/model/KYRModelObject.h"

class KYR_EXPORT KYRFeature : public KYRModelObject {
 public:
  KYRType* type = nullptr;  // referred to
  ~KYRFeature() override;
  /// Sets the type, in place of one that was set before.
  void addType(KYRType* newType);

 protected:
  KYRFeature() = default;
  void unlink() override;
  void replaceType(const KYRType* from, KYRType* to) override;
};
