// IdRule: elements without an id of their own, or with that of another one.
//
// What has no id can be referred to by nothing, not even by the element that it stands in. References to an
// id that several bear go to the first, so another one loses its place too.
#pragma once

#include <vector>

#include "normalize/DocumentRule.h"

class IdRule final : public DocumentRule {
 public:
  void apply(NormalizedDocument& document) override;

 private:
  void enter(NormalizedDocument& document, Node node);
  static void giveId(NormalizedDocument& document, Node node);
  static void setId(NormalizedDocument& document, Node node, const std::string& id);
  static KYRString nameOf(const NormalizedDocument& document, Node node);
  bool isAnother(NormalizedDocument& document, Node node, Node first) const;

  std::vector<Node> open_;  // the objects around the one at hand
  std::vector<bool> isOpen_;
};
