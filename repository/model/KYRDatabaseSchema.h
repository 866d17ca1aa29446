// KYRDatabaseSchema: a schema of a database.
#pragma once

#include "repository/model/KYRDataPackage.h"

/// The schema with the empty name is the default one.
class KYR_EXPORT KYRDatabaseSchema : public KYRDataPackage {
 public:
  KYRDatabaseSchema() = default;
  ~KYRDatabaseSchema() override;
  int getElementType() const override { return KYRElementType::databaseSchema; }
};
