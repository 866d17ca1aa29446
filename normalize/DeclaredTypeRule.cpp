// It matters where a mere reference follows under the same row of the reader.
#include "normalize/DeclaredTypeRule.h"

#include <unordered_set>

#include "xmi/TagHandler.h"

void DeclaredTypeRule::apply(NormalizedDocument& document) {
  XmlDocumentEditor& editor = document.editor;
  std::unordered_set<const TagHandler*> rows;  // that the reader would have made an object by
  const auto rowOf = [&document](Node node, const Reading& reading) {
    return ReaderVocabulary::findRow(document.wordOfTag(node), document.readingOf(reading.object).kind);
  };
  for (const Node node : document.getModelElements()) {
    if (!editor.isElement(node)) continue;
    const Reading reading = document.readingOf(node);
    if (reading.object == noNode) continue;
    if (reading.role == Role::reference && !rows.empty() && rows.count(rowOf(node, reading)) != 0) {
      document.report.matter(NormalizeRule::declaredType);
    }
    if (reading.role != Role::object || !document.isEmpty(node, document.xmiType)) continue;
    if (editor.getName(node) == document.umlModel) continue;
    rows.insert(rowOf(node, reading));
    document.setType(node, ReaderVocabulary::typeOfKind(reading.kind));
    document.report.note(NormalizeRule::declaredType, false);
  }
}
