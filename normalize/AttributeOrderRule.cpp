// An attribute has at most one that must stand before it, so an order is found by walking up from each.
#include "normalize/AttributeOrderRule.h"

#include <algorithm>

#include "xmi/ReaderNames.h"

namespace {
constexpr int unknown = -2;  // not looked up so far
enum State : char { waiting, underWay, placed };
}  // namespace

void AttributeOrderRule::apply(NormalizedDocument& document) {
  XmlDocumentEditor& editor = document.editor;
  places_.assign(static_cast<std::size_t>(ReaderNames::get().getCount()), none);
  for (const Node node : document.getModelElements()) {
    if (!editor.isElement(node) || document.readingOf(node).role == Role::skipped) continue;
    if (!findPredecessors(editor, node)) continue;
    if (findOrder()) {
      editor.orderAttributes(node, order_);
      document.report.note(NormalizeRule::attributeOrder);
    } else {
      ++document.report.attributeRings;
    }
  }
}

int AttributeOrderRule::askedFor(const XmlDocumentEditor& editor, Name name) {
  if (name >= askedFor_.size()) askedFor_.resize(editor.getNameCount(), unknown);
  int& known = askedFor_[name];
  if (known == unknown) known = ReaderVocabulary::findAskedFor(editor.getNameText(name).view());
  return known;
}

// Whether some attribute stands before one that it would hide.
bool AttributeOrderRule::findPredecessors(const XmlDocumentEditor& editor, Node node) {
  const std::uint32_t count = editor.getAttributeCount(node);
  const auto nameAskedFor = [&](std::uint32_t at) {
    return askedFor(editor, editor.getAttributeName(node, at));
  };
  bool isAny = false;
  for (std::uint32_t at = 0; at < count && !isAny; ++at) {
    isAny =
        ReaderVocabulary::findAskedFor(editor.getAttributeValue(node, at).view()) != ReaderVocabulary::none;
  }
  if (!isAny) return false;
  for (std::uint32_t at = count; at-- > 0;) {
    if (const int name = nameAskedFor(at); name != ReaderVocabulary::none)
      places_[static_cast<std::size_t>(name)] = at;
  }
  bool isHiding = false;
  predecessors_.assign(count, none);
  for (std::uint32_t at = 0; at < count; ++at) {
    const int asked = ReaderVocabulary::findAskedFor(editor.getAttributeValue(node, at).view());
    if (asked == ReaderVocabulary::none) continue;
    const std::uint32_t place = places_[static_cast<std::size_t>(asked)];
    if (place == none || place == at) continue;
    predecessors_[at] = place;
    isHiding = isHiding || place > at;
  }
  for (std::uint32_t at = 0; at < count; ++at) {
    if (const int name = nameAskedFor(at); name != ReaderVocabulary::none)
      places_[static_cast<std::size_t>(name)] = none;
  }
  return isHiding;
}

// False for a ring: each attribute of it would have to stand before the next.
bool AttributeOrderRule::findOrder() {
  order_.clear();
  states_.assign(predecessors_.size(), waiting);
  for (std::uint32_t at = 0; at < predecessors_.size(); ++at) {
    const std::size_t from = order_.size();
    for (std::uint32_t each = at; each != none && states_[each] != placed; each = predecessors_[each]) {
      if (states_[each] == underWay) return false;
      states_[each] = underWay;
      order_.push_back(each);
    }
    std::reverse(order_.begin() + static_cast<std::ptrdiff_t>(from), order_.end());
    for (std::size_t i = from; i < order_.size(); ++i) states_[order_[i]] = placed;
  }
  return true;
}
