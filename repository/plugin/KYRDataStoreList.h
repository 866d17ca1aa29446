// KYRDataStoreList: the data stores that a bridge works for.
#pragma once

#include <vector>

#include "foundation/KYRString.h"

class KYR_EXPORT KYRDataStoreList {
 public:
  struct Row {
    KYRString name;       // what the row stands for, "all" when it is the whole store
    KYRString dataStore;  // a DATASTORE_ constant of KYRDataTypeConstants
    int majorVersion;
    int minorVersion;
    int releaseVersion;
  };

  void add(const KYRString& name, const KYRString& dataStore, int majorVersion, int minorVersion,
           int releaseVersion);
  unsigned int getCount() const noexcept { return static_cast<unsigned int>(rows_.size()); }
  /// The row at a position from 0, in order of adding; null beyond the end.
  const Row* getAt(unsigned int index) const noexcept;

 private:
  std::vector<Row> rows_;
};
