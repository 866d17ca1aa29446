// LocalHrefRule: a reference into the file itself, written as one into another file.
#pragma once

#include "normalize/DocumentRule.h"

class LocalHrefRule final : public DocumentRule {
 public:
  void apply(NormalizedDocument& document) override;

 private:
  static bool isCandidate(const NormalizedDocument& document, Node node);
};
