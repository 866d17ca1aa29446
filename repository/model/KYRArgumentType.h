// KYRArgumentType: the way an argument travels.
#pragma once

#include "repository/model/KYREnumeration.h"

class KYRArgumentType : public KYREnumeration<KYRArgumentType, 4> {
 public:
  using KYREnumeration::KYREnumeration;
  static constexpr const char* enumerationName = "KYRArgumentType";
  static constexpr int notSet = 0;
  static constexpr int in = 1;
  static constexpr int out = 2;
  static constexpr int inOut = 3;
  static constexpr int return_ = 4;
};
