// The converter only picks the table; KYRDataTypeTable does the work.
#include "repository/datatypes/KYRDataTypeConverter.h"

#include "repository/datatypes/KYRDataStores.h"

namespace {

const KYRDataTypeTable* findTable(const KYRString& dataStore) {
  const KYRKnownDataStore* store = findKnownDataStore(dataStore);
  return store == nullptr ? nullptr : &store->getTable();
}

}  // namespace

KYRDataTypeConverter::KYRDataTypeConverter(KYRLog& /*log*/, const KYRDataStoreVersion& version,
                                           const KYRString& tool)
    : version_(version), tool_(tool), table_(findTable(version.getDataStore())) {}

const KYRString& KYRDataTypeConverter::getImportTypeName(const KYRString& typeName) const {
  if (table_ == nullptr) return getUndefinedDataType();
  const auto code = table_->find(typeName.view());
  return code ? getDataTypeText(*code) : getUndefinedDataType();
}

bool KYRDataTypeConverter::isUndefined(const KYRString& dataType) { return ::isUndefined(dataType); }
