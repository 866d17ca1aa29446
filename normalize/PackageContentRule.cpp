// Models first, since they decide what is a package; then tags; then associations.
#include "normalize/PackageContentRule.h"

#include "normalize/PackageMove.h"
#include "uml/UMLClasses.h"
#include "xmi/XMINames.h"

void PackageContentRule::apply(NormalizedDocument& document) {
  turnModelsIntoPackages(document);
  renameContent(document);
  moveAssociations(document);
}

void PackageContentRule::turnModelsIntoPackages(NormalizedDocument& document) {
  XmlDocumentEditor& editor = document.editor;
  bool isChanged = false;
  for (const Node node : document.getModelElements()) {
    const Node parent = editor.getParent(node);
    if (parent == noNode || !document.isModel(parent)) continue;  // the home
    const bool isTag = editor.getName(node) == document.umlModel;
    if (!isTag && document.attribute(node, document.xmiType).view() != XMINames::umlModel) continue;
    if (isTag) editor.setName(node, document.packagedElement);
    document.setType(node, XMINames::umlPackage);
    document.report.note(NormalizeRule::packageContent, document.isEmpty(node, document.href));
    isChanged = true;
  }
  if (isChanged) document.forgetReadings();
}

void PackageContentRule::renameContent(NormalizedDocument& document) {
  XmlDocumentEditor& editor = document.editor;
  const Name ownedType = editor.intern("ownedType");
  const Name nestedPackage = editor.intern("nestedPackage");
  const Name ownedMember = editor.intern("ownedMember");
  std::vector<Node> packages;  // that have an ownedMember, each once for a run of them
  for (const Node node : document.getModelElements()) {
    const Name tag = editor.getName(node);
    if (tag != ownedType && tag != nestedPackage && tag != ownedMember) continue;
    if (!document.isObject(node)) continue;
    const Node parent = editor.getParent(node);
    if (document.readingOf(node).object != parent || !PackageMove::isPackage(document, parent)) continue;
    if (tag == ownedMember) {
      if (packages.empty() || packages.back() != parent) packages.push_back(parent);
      continue;
    }
    // Under the new tag the element would be made as something else.
    if (document.isEmpty(node, document.xmiType)) {
      document.setType(node, ReaderVocabulary::typeOfKind(document.readingOf(node).kind));
    }
    editor.setName(node, document.packagedElement);
    document.report.note(NormalizeRule::packageContent);
  }
  std::vector<bool> isDone(editor.getNodeCount());
  for (const Node package : packages) {
    if (!isDone[package]) PackageMove::renameMembers(document, package, NormalizeRule::packageContent);
    isDone[package] = true;
  }
}

void PackageContentRule::moveAssociations(NormalizedDocument& document) {
  PackageMove moves(document, NormalizeRule::packageContent);
  for (const Node node : document.getObjects()) {
    if (document.readingOf(node).kind != UMLAssociation::kind) continue;
    if (moves.isInClassifier(node)) moves.plan(node);
  }
  moves.perform();
}
