// KYRDataPackage: a package of what a data store holds.
#pragma once

#include "repository/model/KYRPackage.h"

class KYR_EXPORT KYRDataPackage : public KYRPackage {
 public:
  /// What was put in by KYRNamespaceElement::addDataPackage; referred to, no two of one name.
  KYRCollection<KYRNamespaceElement> dataElements;

  KYRDataPackage() = default;
  ~KYRDataPackage() override;
  int getElementType() const override { return KYRElementType::dataPackage; }

 protected:
  void unlink() override;
};
