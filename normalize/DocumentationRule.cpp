// Looks at the children of the document's root alone.
#include "normalize/DocumentationRule.h"

namespace {

constexpr std::string_view usualTag = "xmi:Documentation";
constexpr std::string_view otherTags[] = {"documentation", "xmi:documentation", usualTag};

struct Part {
  std::string_view written;
  std::string_view usual;
};
constexpr Part parts[] = {{"xmi:Exporter", "xmi:exporter"}, {"xmi:ExporterVersion", "xmi:exporterVersion"}};

}  // namespace

void DocumentationRule::apply(NormalizedDocument& document) {
  const XmlDocumentEditor& editor = document.editor;
  for (Node node = editor.getFirst(0); node != noNode; node = editor.getNext(node)) {
    if (!editor.isElement(node)) continue;
    const bool isElementChanged = changeElement(document, node);
    if (editor.getTag(node).view() != usualTag) continue;
    const bool arePartsChanged = changeParts(document, node);
    if (isElementChanged || arePartsChanged) document.report.note(NormalizeRule::documentation);
  }
}

// With its type the reader would pass over the element, since the type is none of UML.
bool DocumentationRule::changeElement(NormalizedDocument& document, Node node) {
  XmlDocumentEditor& editor = document.editor;
  for (const std::string_view tag : otherTags) {
    if (editor.getTag(node).view() != tag) continue;
    if (document.attribute(node, document.xmiType).view() != usualTag) return false;
    editor.setName(node, editor.intern(usualTag));
    editor.removeAttribute(node, document.xmiType);
    return true;
  }
  return false;
}

bool DocumentationRule::changeParts(NormalizedDocument& document, Node node) {
  XmlDocumentEditor& editor = document.editor;
  bool isChanged = false;
  for (Node child = editor.getFirst(node); child != noNode; child = editor.getNext(child)) {
    if (!editor.isElement(child)) continue;
    for (const Part& part : parts) {
      if (editor.getTag(child).view() != part.written) continue;
      editor.setName(child, editor.intern(part.usual));
      isChanged = true;
    }
  }
  return isChanged;
}
