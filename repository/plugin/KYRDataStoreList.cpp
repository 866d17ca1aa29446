// The list of data stores.
#include "repository/plugin/KYRDataStoreList.h"

void KYRDataStoreList::add(const KYRString& name, const KYRString& dataStore, int majorVersion,
                           int minorVersion, int releaseVersion) {
  rows_.push_back({name, dataStore, majorVersion, minorVersion, releaseVersion});
}

const KYRDataStoreList::Row* KYRDataStoreList::getAt(unsigned int index) const noexcept {
  return index < rows_.size() ? &rows_[index] : nullptr;
}
