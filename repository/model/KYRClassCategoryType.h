// KYRClassCategoryType: what sort of class a class is.
#pragma once

#include "repository/model/KYREnumeration.h"

class KYRClassCategoryType : public KYREnumeration<KYRClassCategoryType, 9> {
 public:
  using KYREnumeration::KYREnumeration;
  static constexpr const char* enumerationName = "KYRClassCategoryType";
  static constexpr int notSet = 0;
  static constexpr int interface_ = 9;
};
