// IdListRule: an attribute that lists several ids, which the reader takes for one id that nobody bears.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "normalize/DocumentRule.h"

class IdListRule final : public DocumentRule {
 public:
  void apply(NormalizedDocument& document) override;

 private:
  bool isList(NormalizedDocument& document, std::string_view value);
  bool isKnown(NormalizedDocument& document, std::string_view id);
  bool doEndsPointBack(NormalizedDocument& document, Node association) const;
  void expand(NormalizedDocument& document, Node node, Name attributeName, Node before);

  std::vector<std::string_view> tokens_;  // of the list at hand
  std::optional<IdIndex> allIds_;         // of the whole file, when those of the objects do not do
};
