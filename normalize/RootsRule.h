// RootsRule: several models, packages or classes side by side below the document's root.
//
// The reader has one model, the last one that it meets, and what stands beside it belongs to nobody. The
// first model becomes the home of all others.
#pragma once

#include <string_view>
#include <vector>

#include "normalize/DocumentRule.h"

class RootsRule final : public DocumentRule {
 public:
  void apply(NormalizedDocument& document) override;

 private:
  static bool isPackage(const NormalizedDocument& document, Node node);
  static void becomeModel(NormalizedDocument& document, Node node);
  static Node makeHome(NormalizedDocument& document, Node first);
  static void moveIn(NormalizedDocument& document, Node home, Node root);
};
