// KYRPackage: a name space that groups a model.
#pragma once

#include "repository/model/KYRNamespace.h"

class KYR_EXPORT KYRPackage : public KYRNamespace {
 public:
  ~KYRPackage() override;

 protected:
  KYRPackage() = default;
};
