// KYRStructuralFeature: a feature that holds values.
#pragma once

#include "repository/model/KYRFeature.h"

class KYR_EXPORT KYRStructuralFeature : public KYRFeature {
 public:
  ~KYRStructuralFeature() override;

 protected:
  KYRStructuralFeature() = default;
};
