// KYRDesignLevelType: whether a model is made for a data store.
#pragma once

#include "repository/model/KYREnumeration.h"

class KYRDesignLevelType : public KYREnumeration<KYRDesignLevelType, 1> {
 public:
  using KYREnumeration::KYREnumeration;
  static constexpr const char* enumerationName = "KYRDesignLevelType";
  static constexpr int physical = 0;  // with a target data store
  static constexpr int logical = 1;   // without
};
