// KYRDataStoreVersion: which data store a model is for, in which version.
#pragma once

#include "foundation/Export.h"
#include "foundation/KYRString.h"

class KYRStoreModel;

/// A data store and three version numbers. A plain value; tables of stores derive from it.
class KYR_EXPORT KYRDataStoreVersion {
 public:
  /// `dataStore` is a `DATASTORE_` constant of KYRDataTypeConstants, or empty for no store at all. What is
  /// moved in stays borrowed, so that rows of tables can be made without memory.
  KYRDataStoreVersion(KYRString dataStore, int majorVersion, int minorVersion, int releaseVersion);

  const KYRString& getDataStore() const noexcept { return dataStore_; }
  int getMajorVersion() const noexcept { return majorVersion_; }
  int getMinorVersion() const noexcept { return minorVersion_; }
  int getReleaseVersion() const noexcept { return releaseVersion_; }
  /// The three numbers with dots between them: "12.0.0".
  KYRString getVersionText() const;

 private:
  KYRString dataStore_;
  int majorVersion_;
  int minorVersion_;
  int releaseVersion_;
};

/// Writes the data store and the text of its version into the model, in the place of what stood there.
KYR_EXPORT void setDataStore(KYRStoreModel& model, const KYRDataStoreVersion& version);
