// NestedClassifierRule: classifiers that a class holds, which the conversion passes over on purpose.
#pragma once

#include "normalize/DocumentRule.h"

class NestedClassifierRule final : public DocumentRule {
 public:
  void apply(NormalizedDocument& document) override;
};
