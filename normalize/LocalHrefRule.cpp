// What the id belongs to must be an element of the model: one that occurs in the data of a tool alone names
// no object.
#include "normalize/LocalHrefRule.h"

#include "normalize/TypedReferenceRule.h"

bool LocalHrefRule::isCandidate(const NormalizedDocument& document, Node node) {
  const KYRString& target = document.attribute(node, document.href);
  return target.getLength() > 1 && target.view().front() == '#' &&
         document.isEmpty(node, document.xmiIdref) && TypedReferenceRule::canRefer(document, node);
}

void LocalHrefRule::apply(NormalizedDocument& document) {
  XmlDocumentEditor& editor = document.editor;
  std::vector<Node> candidates;
  for (const Node node : document.getModelElements()) {
    if (isCandidate(document, node)) candidates.push_back(node);
  }
  if (candidates.empty()) return;
  const IdIndex ids = document.indexModel();
  for (const Node node : candidates) {
    const std::string_view id = document.attribute(node, document.href).view().substr(1);
    if (ids.find(id) == IdIndex::none) continue;
    editor.setAttribute(node, document.xmiIdref, id);
    editor.removeAttribute(node, document.href);
    editor.removeAttribute(node, document.xmiType);  // or it would be taken for an element of its own
    document.report.note(NormalizeRule::localHref);
  }
}
