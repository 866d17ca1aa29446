// One walk in the order of reading, with the elements that are open on a stack.
#include "normalize/IdRule.h"

#include "uml/UMLClasses.h"

void IdRule::apply(NormalizedDocument& document) {
  const XmlDocumentEditor& editor = document.editor;
  IdIndex& ids = document.getIds();
  isOpen_.assign(editor.getNodeCount(), false);
  for (Node node = 0; node != noNode; node = editor.getFollowing(node)) {
    if (!editor.isElement(node)) continue;
    enter(document, node);
    if (!document.isObject(node)) continue;
    const KYRString& id = document.attribute(node, document.xmiId);
    if (id.isEmpty()) {
      // What stands for an element of another file is none of this one.
      if (document.isEmpty(node, document.href)) giveId(document, node);
      continue;
    }
    const Node first = ids.find(id.view());
    if (first == node || !isAnother(document, node, first)) continue;
    const std::string fresh = document.makeId(node, ids);
    document.editor.setAttribute(node, document.xmiId, fresh);
    ids.enter(document.attribute(node, document.xmiId).view(), node);
    document.report.note(NormalizeRule::ids);
  }
}

void IdRule::enter(NormalizedDocument& document, Node node) {
  const Node parent = document.editor.getParent(node);
  while (!open_.empty() && open_.back() != parent) {
    isOpen_[open_.back()] = false;
    open_.pop_back();
  }
  open_.push_back(node);
  isOpen_[node] = true;
}

// The reader itself takes the name of a model for its id.
void IdRule::giveId(NormalizedDocument& document, Node node) {
  IdIndex& ids = document.getIds();
  const KYRString& name = document.attribute(node, document.name);
  const bool isNamedModel = document.readingOf(node).kind == UMLModel::kind && !name.isEmpty() &&
                            ids.find(name.view()) == IdIndex::none;
  const std::string id = isNamedModel ? std::string(name.view()) : document.makeId(node, ids);
  document.editor.setAttribute(node, document.xmiId, id);
  ids.enter(document.attribute(node, document.xmiId).view(), node);
  document.report.note(NormalizeRule::ids, !isNamedModel);
}

KYRString IdRule::nameOf(const NormalizedDocument& document, Node node) {
  const XmlDocumentEditor& editor = document.editor;
  if (const KYRString* const written = editor.findAttribute(node, document.name)) return *written;
  for (Node child = editor.getFirst(node); child != noNode; child = editor.getNext(child)) {
    if (editor.isElement(child) && editor.getName(child) == document.name) return editor.getContent(child);
  }
  return {};
}

bool IdRule::isAnother(NormalizedDocument& document, Node node, Node first) const {
  return isOpen_[first] || document.readingOf(node).kind != document.readingOf(first).kind ||
         nameOf(document, node) != nameOf(document, first);
}
