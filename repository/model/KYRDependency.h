// KYRDependency: a client class that depends on a supplier class.
#pragma once

#include "repository/model/KYRRelationship.h"

class KYR_EXPORT KYRDependency : public KYRRelationship {
 public:
  // Referred to; null until set and after the class has been deleted.
  KYRClass* clientClass = nullptr;
  KYRClass* supplierClass = nullptr;

  KYRDependency() = default;
  ~KYRDependency() override;
  int getElementType() const override { return KYRElementType::dependency; }
  void addClientClass(KYRClass* client);
  void addSupplierClass(KYRClass* supplier);

 protected:
  void unlink() override;
};
