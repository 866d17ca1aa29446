// DeclaredTypeRule: elements without a type, which the reader makes as what the reference that they stand
// under declares.
//
// Once it has done so it ends every later element under that reference as an object too, mere references
// included, which makes an element stack run empty. With its type written the element is made all the same
// and nothing else changes.
#pragma once

#include "normalize/DocumentRule.h"

class DeclaredTypeRule final : public DocumentRule {
 public:
  void apply(NormalizedDocument& document) override;
};
