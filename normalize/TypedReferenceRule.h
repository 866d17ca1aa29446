// TypedReferenceRule: a reference that also names the type of what it refers to.
//
// The reader takes an element with a type for an element of its own, and makes an empty object of it.
#pragma once

#include "normalize/DocumentRule.h"

class TypedReferenceRule final : public DocumentRule {
 public:
  void apply(NormalizedDocument& document) override;
  /// Whether an element can be a mere reference: it bears no id, and its tag is no class and nothing of XMI.
  static bool canRefer(const NormalizedDocument& document, Node node);
};
