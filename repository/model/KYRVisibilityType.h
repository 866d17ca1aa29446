// KYRVisibilityType: who sees an element.
#pragma once

#include "repository/model/KYREnumeration.h"

class KYRVisibilityType : public KYREnumeration<KYRVisibilityType, 3> {
 public:
  using KYREnumeration::KYREnumeration;
  static constexpr const char* enumerationName = "KYRVisibilityType";
  static constexpr int public_ = 0;
  static constexpr int protected_ = 1;
  static constexpr int private_ = 2;
  static constexpr int package = 3;
};
