// DocumentationRule: the element that names the tool, in another spelling.
//
// The name of the tool decides which of its private data are read, so this rule can change more than it
// touches.
#pragma once

#include "normalize/DocumentRule.h"

class DocumentationRule final : public DocumentRule {
 public:
  void apply(NormalizedDocument& document) override;

 private:
  static bool changeElement(NormalizedDocument& document, Node node);
  static bool changeParts(NormalizedDocument& document, Node node);
};
