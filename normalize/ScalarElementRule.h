// ScalarElementRule: a name, a visibility or another scalar written as a child element.
//
// The reader looks for attributes, and takes the text of a child for few fields of few classes only.
#pragma once

#include "normalize/DocumentRule.h"

class ScalarElementRule final : public DocumentRule {
 public:
  void apply(NormalizedDocument& document) override;

 private:
  static bool isScalar(NormalizedDocument& document, Node node);
  static bool isPlainText(const XmlDocumentEditor& editor, Node node);
  static bool hasAttribute(const XmlDocumentEditor& editor, Node node, std::string_view name);
};
