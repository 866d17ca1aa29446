// A text that the reader stores by itself stays where it is.
#include "normalize/ScalarElementRule.h"

#include "xmi/TagHandler.h"

void ScalarElementRule::apply(NormalizedDocument& document) {
  XmlDocumentEditor& editor = document.editor;
  for (const Node node : document.getModelElements()) {
    if (!isScalar(document, node)) continue;
    const KYRString text = editor.getContent(node);
    const Node parent = editor.getParent(node);
    if (text.isEmpty() || hasAttribute(editor, parent, editor.getTag(node).view())) continue;
    editor.setAttribute(parent, editor.getName(node), text.view());
    editor.remove(node);
    document.report.note(NormalizeRule::scalarElement);
  }
}

bool ScalarElementRule::isScalar(NormalizedDocument& document, Node node) {
  const Reading reading = document.readingOf(node);
  if (reading.role != Role::text && reading.role != Role::passed) return false;
  if (reading.object == noNode || reading.object != document.editor.getParent(node)) return false;
  const int kind = document.readingOf(reading.object).kind;
  const ReaderVocabulary::Word& word = document.wordOfTag(node);
  if (!ReaderVocabulary::get().hasScalar(kind, word.readerName)) return false;
  const TagHandler* const row = ReaderVocabulary::findRow(word, kind);
  const bool isServed = row != nullptr && row->field != nullptr && row->kind == kind;
  return !isServed && isPlainText(document.editor, node);
}

bool ScalarElementRule::isPlainText(const XmlDocumentEditor& editor, Node node) {
  if (editor.getAttributeCount(node) != 0) return false;
  for (Node child = editor.getFirst(node); child != noNode; child = editor.getNext(child)) {
    if (editor.isElement(child)) return false;
  }
  return true;
}

// The reader compares names of attributes without regard to case.
bool ScalarElementRule::hasAttribute(const XmlDocumentEditor& editor, Node node, std::string_view name) {
  for (std::uint32_t index = 0; index < editor.getAttributeCount(node); ++index) {
    if (equalsIgnoringCase(editor.getNameText(editor.getAttributeName(node, index)).view(), name))
      return true;
  }
  return false;
}
