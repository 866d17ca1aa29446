// KYRDataTypeConverter: turns the type names of one data store into data types of the repository.
#pragma once

#include "foundation/Export.h"
#include "foundation/KYRLog.h"
#include "foundation/KYRString.h"
#include "repository/datatypes/KYRDataStoreVersion.h"
#include "repository/datatypes/KYRDataTypeTable.h"

/// A converter for one data store. It keeps a copy of the version; the tables it reads are shared by
/// the process. A database store knows the names of its own dialect only, never those of UML.
class KYR_EXPORT KYRDataTypeConverter {
 public:
  /// `tool` is a `TOOL_` constant of KYRDataTypeConstants. The version's numbers do not change what
  /// names mean, nor does the tool. A data store without a table is no error: it knows no names.
  /// Nothing of it is logged; an unknown name is a result, not an event.
  KYRDataTypeConverter(KYRLog& log, const KYRDataStoreVersion& version, const KYRString& tool);

  /// The data type of a type name, such as "SQL_VARCHAR" for "varchar(30)", or "undefined". See
  /// KYRDataTypeTable::find for the forms a name may take. The text lives as long as the process.
  const KYRString& getImportTypeName(const KYRString& typeName) const;
  /// The data store and version that the converter was made for.
  const KYRDataStoreVersion& getTargetDataStore() const noexcept { return version_; }
  const KYRString& getTool() const noexcept { return tool_; }
  /// The same as the free `isUndefined`.
  static bool isUndefined(const KYRString& dataType);

 private:
  KYRDataStoreVersion version_;
  KYRString tool_;
  const KYRDataTypeTable* table_;  // null: a store without a table
};
