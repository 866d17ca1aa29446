// KYRStoreType: what a model is stored for.
#pragma once

#include "repository/model/KYREnumeration.h"

class KYRStoreType : public KYREnumeration<KYRStoreType, 3> {
 public:
  using KYREnumeration::KYREnumeration;
  static constexpr const char* enumerationName = "KYRStoreType";
  static constexpr int dataStore = 0;  // with a target data store
  static constexpr int design = 3;     // without
};
