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
  if (moves_.empty()) return;
  for (const auto& [node, package] : moves_) {
    document_.editor.setName(node, document_.packagedElement);
    document_.editor.append(package, node);
    document_.report.note(rule_);
  }
  document_.forgetReadings();
  std::vector<bool> isDone(document_.editor.getNodeCount());
  for (const auto& [node, package] : moves_) {
    if (!isDone[package]) renameMembers(document_, package, rule_);
    isDone[package] = true;
  }
}

void PackageMove::renameMembers(NormalizedDocument& document, Node package, NormalizeRule rule) {
  XmlDocumentEditor& editor = document.editor;
  const NormalizedDocument::Name ownedMember = editor.intern("ownedMember");
  const auto next = [&](Node child) {
    while (child != NormalizedDocument::noNode && !editor.isElement(child)) child = editor.getNext(child);
    return child;
  };
  bool hasPackaged = false;
  for (Node child = next(editor.getFirst(package)); child != NormalizedDocument::noNode && !hasPackaged;
       child = next(editor.getNext(child))) {
    hasPackaged = editor.getName(child) == document.packagedElement;
  }
  if (!hasPackaged) return;
  for (Node child = next(editor.getFirst(package)); child != NormalizedDocument::noNode;
       child = next(editor.getNext(child))) {
    if (editor.getName(child) != ownedMember || !document.isObject(child)) continue;
    if (!UMLLineage::isKindOf(document.readingOf(child).kind, UMLPackageableElement::kind)) continue;
    editor.setName(child, document.packagedElement);
    document.report.note(rule);
  }
}
