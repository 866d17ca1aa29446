// Behaviours are classifiers too, but belong to what they describe.
#include "normalize/NestedClassifierRule.h"

#include "normalize/PackageMove.h"
#include "uml/UMLClasses.h"

void NestedClassifierRule::apply(NormalizedDocument& document) {
  const XmlDocumentEditor& editor = document.editor;
  PackageMove moves(document, NormalizeRule::nestedClassifier);
  for (const Node node : document.getObjects()) {
    const int kind = document.readingOf(node).kind;
    if (!UMLLineage::isKindOf(kind, UMLClassifier::kind) || UMLLineage::isKindOf(kind, UMLBehavior::kind))
      continue;
    const std::string_view tag = editor.getTag(node).view();
    const bool isHeld = tag == "nestedClassifier" || tag == "ownedMember" || tag == "packagedElement";
    if (isHeld && moves.isInClassifier(node)) moves.plan(node);
  }
  moves.perform();
}
