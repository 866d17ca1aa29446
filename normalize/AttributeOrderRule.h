// AttributeOrderRule: an attribute whose value is the name of another attribute.
//
// The reader looks for a name among names and values alike, so name="visibility" hides a visibility that is
// written behind it.
#pragma once

#include <cstdint>
#include <vector>

#include "normalize/DocumentRule.h"

class AttributeOrderRule final : public DocumentRule {
 public:
  void apply(NormalizedDocument& document) override;

 private:
  static constexpr std::uint32_t none = 0xFFFFFFFFU;

  int askedFor(const XmlDocumentEditor& editor, Name name);
  bool findPredecessors(const XmlDocumentEditor& editor, Node node);
  bool findOrder();

  std::vector<int> askedFor_;                // by name: its number among the names that readers ask for
  std::vector<std::uint32_t> places_;        // by that number: the first attribute of the name
  std::vector<std::uint32_t> predecessors_;  // by attribute: the one that must stand before it
  std::vector<std::uint32_t> order_;
  std::vector<char> states_;
};
