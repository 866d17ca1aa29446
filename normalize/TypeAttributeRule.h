// TypeAttributeRule: the type of an element written as xsi:type.
#pragma once

#include "normalize/DocumentRule.h"

class TypeAttributeRule final : public DocumentRule {
 public:
  void apply(NormalizedDocument& document) override;
};
