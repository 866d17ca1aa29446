// StoredOrigin: the members of an origin in a saved model. Origins stand in its head and are no objects.
#pragma once

#include <string_view>

#include "repository/model/KYRMetadataOrigin.h"

/// A member, which is either a text or a number.
struct StoredOriginField {
  std::string_view name;
  KYRString KYRMetadataOrigin::*text;
  int KYRMetadataOrigin::*number;
};

inline constexpr StoredOriginField storedOriginFields[] = {
    {"fileEncoding", &KYRMetadataOrigin::fileEncoding, nullptr},
    {"formatName", &KYRMetadataOrigin::formatName, nullptr},
    {"formatVersion", &KYRMetadataOrigin::formatVersion, nullptr},
    {"originCode", nullptr, &KYRMetadataOrigin::originCode},
    {"filePath", &KYRMetadataOrigin::filePath, nullptr},
    {"toolName", &KYRMetadataOrigin::toolName, nullptr},
    {"toolVersion", &KYRMetadataOrigin::toolVersion, nullptr},
    {"toolDetail", &KYRMetadataOrigin::toolDetail, nullptr},
    {"bridgeName", &KYRMetadataOrigin::bridgeName, nullptr},
    {"originId", &KYRMetadataOrigin::originId, nullptr},
    {"buildVersion", &KYRMetadataOrigin::buildVersion, nullptr},
};
