// The way up goes over the objects around an element, which depth limits.
#include "normalize/PackageMove.h"

#include "uml/UMLClasses.h"

bool PackageMove::isPackage(NormalizedDocument& document, Node node) {
  return document.isObject(node) && UMLLineage::isKindOf(document.readingOf(node).kind, UMLPackage::kind);
}

bool PackageMove::isInClassifier(Node node) const {
  const Node parent = document_.editor.getParent(node);
  if (parent == NormalizedDocument::noNode || document_.readingOf(node).object != parent) return false;
  return UMLLineage::isKindOf(document_.readingOf(parent).kind, UMLClassifier::kind) &&
         document_.isEmpty(node, document_.href);
}

void PackageMove::plan(Node node) {
  Node package = document_.readingOf(node).object;
  while (package != NormalizedDocument::noNode && !isPackage(document_, package)) {
    package = document_.readingOf(package).object;
  }
  if (package != NormalizedDocument::noNode) moves_.emplace_back(node, package);
}

void PackageMove::perform() {
  for (const auto& [node, package] : moves_) {
    document_.editor.setName(node, document_.packagedElement);
    document_.editor.append(package, node);
    document_.report.note(rule_);
  }
  if (!moves_.empty()) document_.forgetReadings();
}
