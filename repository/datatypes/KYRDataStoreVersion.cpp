// The version as text, and the step that marks a model with its data store.
#include "repository/datatypes/KYRDataStoreVersion.h"

#include <utility>

#include "repository/model/KYRStoreModel.h"

KYRDataStoreVersion::KYRDataStoreVersion(KYRString dataStore, int majorVersion, int minorVersion,
                                         int releaseVersion)
    : dataStore_(std::move(dataStore)),
      majorVersion_(majorVersion),
      minorVersion_(minorVersion),
      releaseVersion_(releaseVersion) {}

KYRString KYRDataStoreVersion::getVersionText() const {
  KYRString text(majorVersion_);
  for (const int number : {minorVersion_, releaseVersion_}) {
    text += KYRString('.');
    text += KYRString(number);
  }
  return text;
}

void setDataStore(KYRStoreModel& model, const KYRDataStoreVersion& version) {
  model.dataStore = version.getDataStore();
  model.dataStoreVersion = version.getVersionText();
}
