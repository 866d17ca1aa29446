// KYRRealization: the tie between a specification and what realizes it.
#pragma once

#include "repository/model/KYRRelationship.h"

class KYR_EXPORT KYRRealization : public KYRRelationship {
 public:
  // Referred to; null until set and after the class has been deleted.
  KYRClass* realizationClass = nullptr;
  KYRClass* specificationClass = nullptr;

  KYRRealization() = default;
  ~KYRRealization() override;
  int getElementType() const override { return KYRElementType::realization; }
  void addRealizationClass(KYRClass* realization);
  void addSpecificationClass(KYRClass* specification);

 protected:
  void unlink() override;
};
