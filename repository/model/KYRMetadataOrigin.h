// KYRMetadataOrigin: where a model comes from.
#pragma once

#include "foundation/KYRString.h"
#include "repository/model/KYR_Object.h"

class KYR_EXPORT KYRMetadataOrigin : public KYR_Object {
 public:
  KYRString fileEncoding;
  KYRString formatName;
  KYRString formatVersion;
  int originCode = 0;
  KYRString filePath;
  KYRString toolName;
  KYRString toolVersion;
  KYRString toolDetail;
  /// The name of the bridge that made the model.
  KYRString bridgeName;
  /// What the host calls this origin.
  KYRString originId;
  /// The build version of the bridge.
  KYRString buildVersion;
  KYRMetadataOrigin() = default;
  ~KYRMetadataOrigin() override;
};
