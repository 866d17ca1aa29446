// KYRRelationship: a relation between classes.
#pragma once

#include "repository/model/KYRModelElement.h"

class KYR_EXPORT KYRRelationship : public KYRModelElement {
 public:
  ~KYRRelationship() override;

 protected:
  KYRRelationship() = default;
};
