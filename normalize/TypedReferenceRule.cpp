// Without an id of its own an element that has an xmi:idref can only be a reference.
#include "normalize/TypedReferenceRule.h"

bool TypedReferenceRule::canRefer(const NormalizedDocument& document, Node node) {
  const std::string_view tag = document.editor.getTag(node).view();
  return !tag.starts_with("uml:") && !tag.starts_with("xmi:") && document.isEmpty(node, document.xmiId);
}

void TypedReferenceRule::apply(NormalizedDocument& document) {
  XmlDocumentEditor& editor = document.editor;
  for (const Node node : document.getModelElements()) {
    if (document.isEmpty(node, document.xmiIdref)) continue;
    if (editor.findAttribute(node, document.xmiType) == nullptr || !canRefer(document, node)) continue;
    editor.removeAttribute(node, document.xmiType);
    document.report.note(NormalizeRule::typedReference);
  }
}
