// A list becomes child elements, the form in which the reader takes several references of one kind.
#include "normalize/IdListRule.h"

#include "uml/UMLClasses.h"

namespace {

constexpr std::string_view blanks = " \t\r\n";
constexpr std::string_view memberEnd = "memberEnd";

void split(std::string_view value, std::vector<std::string_view>& tokens) {
  tokens.clear();
  for (std::size_t at = value.find_first_not_of(blanks); at < value.size();) {
    const std::size_t end = std::min(value.find_first_of(blanks, at), value.size());
    tokens.push_back(value.substr(at, end - at));
    at = value.find_first_not_of(blanks, end);
  }
}

}  // namespace

void IdListRule::apply(NormalizedDocument& document) {
  const ReaderVocabulary& vocabulary = ReaderVocabulary::get();
  XmlDocumentEditor& editor = document.editor;
  std::vector<Name> lists;
  for (const Node node : document.getObjects()) {
    const int kind = document.readingOf(node).kind;
    lists.clear();
    for (std::uint32_t index = 0; index < editor.getAttributeCount(node); ++index) {
      const Name name = editor.getAttributeName(node, index);
      if (!vocabulary.hasReference(kind, document.wordOf(name).readerName)) continue;
      const std::string_view value = editor.getAttributeValue(node, index).view();
      if (value.find_first_of(blanks) == std::string_view::npos || !isList(document, value)) continue;
      const bool isEnds = editor.getNameText(name).view() == memberEnd;
      if (!isEnds || !doEndsPointBack(document, node)) lists.push_back(name);
    }
    const Node before = lists.empty() ? noNode : editor.getFirst(node);
    for (const Name name : lists) expand(document, node, name, before);
  }
}

bool IdListRule::isList(NormalizedDocument& document, std::string_view value) {
  if (isKnown(document, value)) return false;  // some tools have ids with blanks in them
  split(value, tokens_);
  for (const std::string_view token : tokens_) {
    if (!isKnown(document, token)) return false;
  }
  return !tokens_.empty();
}

bool IdListRule::isKnown(NormalizedDocument& document, std::string_view id) {
  if (document.getIds().find(id) != IdIndex::none) return true;
  if (!allIds_) {
    const XmlDocumentEditor& editor = document.editor;
    allIds_.emplace(editor.getNodeCount() / 4);
    for (Node node = 0; node < editor.getNodeCount(); ++node) {
      if (!editor.isElement(node)) continue;
      const KYRString& each = document.attribute(node, document.xmiId);
      if (!each.isEmpty()) allIds_->enter(each.view(), node);
    }
  }
  return allIds_->find(id) != IdIndex::none;
}

// Ends that name their association make it known to it, and their order in the file decides.
bool IdListRule::doEndsPointBack(NormalizedDocument& document, Node association) const {
  XmlDocumentEditor& editor = document.editor;
  const Name back = editor.intern("association");
  const std::string_view id = document.attribute(association, document.xmiId).view();
  const auto pointsBack = [&](std::string_view endId) {
    const Node end = document.getIds().find(endId);
    if (end == noNode) return false;
    if (document.attribute(end, back).view() == id) return true;
    for (Node child = editor.getFirst(end); child != noNode; child = editor.getNext(child)) {
      if (editor.isElement(child) && editor.getName(child) == back &&
          document.attribute(child, document.xmiIdref).view() == id) {
        return true;
      }
    }
    return false;
  };
  for (const std::string_view token : tokens_) {
    if (!pointsBack(token)) return false;
  }
  return true;
}

void IdListRule::expand(NormalizedDocument& document, Node node, Name attributeName, Node before) {
  XmlDocumentEditor& editor = document.editor;
  split(document.attribute(node, attributeName).view(), tokens_);
  for (const std::string_view token : tokens_) {
    const Node reference = document.addElement(attributeName, node);
    editor.setAttribute(reference, document.xmiIdref, token);
    if (before == noNode) {
      editor.append(node, reference);
    } else {
      editor.insertBefore(before, reference);
    }
    document.setReading(reference, {Role::reference, NormalizedDocument::noKind, node});
  }
  editor.removeAttribute(node, attributeName);
  document.report.note(NormalizeRule::idList);
}
