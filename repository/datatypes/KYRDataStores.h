// The data stores that have a table of type names, for lookups and for listing them.
#pragma once

#include <span>

#include "foundation/Export.h"
#include "foundation/KYRString.h"
#include "repository/datatypes/KYRDataTypeTable.h"

/// A data store and its table. Several stores may share one table.
struct KYRKnownDataStore {
  /// A `DATASTORE_` constant of KYRDataTypeConstants.
  const char* name;
  /// What people call it.
  const char* title;
  /// The table, made at the first call; it lives as long as the process.
  const KYRDataTypeTable& (*getTable)();
};

/// All data stores, in the order of their names, the UML ones last.
KYR_EXPORT std::span<const KYRKnownDataStore> getKnownDataStores() noexcept;
/// The data store of a name, without regard to case; null when there is none.
KYR_EXPORT const KYRKnownDataStore* findKnownDataStore(const KYRString& name) noexcept;
