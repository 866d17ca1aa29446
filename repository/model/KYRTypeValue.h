// KYRTypeValue: one of the values that a type lists.
#pragma once

#include "repository/model/KYRModelObject.h"
#include "repository/model/KYRPosition.h"

class KYR_EXPORT KYRTypeValue : public KYRModelObject {
 public:
  KYRPosition position;
  /// Written through `setValue`.
  KYRString value;

  KYRTypeValue() = default;
  ~KYRTypeValue() override;
  int getElementType() const override { return KYRElementType::typeValue; }
  void setValue(const KYRString& newValue) { value = newValue; }
};
