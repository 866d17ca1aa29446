// Only types of UML: another xsi:type is no business of the reader.
#include "normalize/TypeAttributeRule.h"

void TypeAttributeRule::apply(NormalizedDocument& document) {
  XmlDocumentEditor& editor = document.editor;
  const Name schemaType = editor.intern("xsi:type");
  for (const Node node : document.getModelElements()) {
    if (!document.attribute(node, schemaType).view().starts_with("uml:")) continue;
    if (!document.isEmpty(node, document.xmiType)) continue;
    editor.removeAttribute(node, document.xmiType);
    for (std::uint32_t index = 0; index < editor.getAttributeCount(node); ++index) {
      if (editor.getAttributeName(node, index) == schemaType) {
        editor.renameAttribute(node, index, document.xmiType);
      }
    }
    document.report.note(NormalizeRule::typeAttribute);
  }
}
