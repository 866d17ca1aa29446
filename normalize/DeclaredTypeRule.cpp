// It matters where a mere reference follows under the same row of the reader.
#include "normalize/DeclaredTypeRule.h"

#include <unordered_set>

#include "xmi/TagHandler.h"

namespace {

const TagHandler* rowOf(NormalizedDocument& document, DocumentRule::Node node) {
  const DocumentRule::Node around = document.readingOf(node).object;
  return ReaderVocabulary::findRow(document.wordOfTag(node), document.readingOf(around).kind);
}

bool isUntyped(NormalizedDocument& document, DocumentRule::Node node) {
  return document.readingOf(node).object != DocumentRule::noNode &&
         document.isEmpty(node, document.xmiType) && document.editor.getName(node) != document.umlModel;
}

void giveType(NormalizedDocument& document, DocumentRule::Node node) {
  document.setType(node, ReaderVocabulary::typeOfKind(document.readingOf(node).kind));
  document.report.note(NormalizeRule::declaredType, false);
}

}  // namespace

void DeclaredTypeRule::apply(NormalizedDocument& document) {
  std::unordered_set<const TagHandler*> rows;  // that the reader would have made an object by
  for (const Node node : document.getModelElements()) {
    if (!document.editor.isElement(node)) continue;
    const Role role = document.readingOf(node).role;
    if (role == Role::reference && !rows.empty() && rows.count(rowOf(document, node)) != 0) {
      document.report.matter(NormalizeRule::declaredType);
    }
    if (role != Role::object || !isUntyped(document, node)) continue;
    rows.insert(rowOf(document, node));
    giveType(document, node);
  }
  // The rows of the reader serve what stands beside the model too.
  for (const Node node : document.getForeignObjects()) {
    if (isUntyped(document, node)) giveType(document, node);
  }
}
