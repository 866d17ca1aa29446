// What is neither model nor package nor element of one stays below the document's root, in its order:
// stereotype applications, data of tools, diagrams, documentation.
#include "normalize/RootsRule.h"

#include <algorithm>

#include "xmi/XMINames.h"

namespace {
constexpr std::string_view profileType = "uml:Profile";
}

void RootsRule::apply(NormalizedDocument& document) {
  const std::vector<Node>& roots = document.getRoots();
  if (roots.empty()) return;
  const auto isModelTag = [&](Node node) { return document.editor.getName(node) == document.umlModel; };
  const auto model = std::find_if(roots.begin(), roots.end(), isModelTag);
  if (model == roots.end() && roots.size() == 1 && isPackage(document, roots.front())) {
    becomeModel(document, roots.front());
    return;
  }
  if (!document.isXmiRoot()) return;
  const Node home = model != roots.end() ? *model : makeHome(document, roots.front());
  for (const Node root : roots) {
    if (root != home) moveIn(document, home, root);
  }
}

bool RootsRule::isPackage(const NormalizedDocument& document, Node node) {
  const std::string_view tag = document.editor.getTag(node).view();
  const std::string_view type = document.attribute(node, document.xmiType).view();
  const std::string_view shown = type.empty() ? tag : type;
  return shown == XMINames::umlModel || shown == XMINames::umlPackage || shown == profileType;
}

void RootsRule::becomeModel(NormalizedDocument& document, Node node) {
  document.editor.setName(node, document.umlModel);
  if (!document.isEmpty(node, document.xmiType)) document.setType(node, XMINames::umlModel);
  // The reader takes a package for the model by itself; keys, schemas and diagrams are found by the tag.
  document.report.note(NormalizeRule::roots, false);
}

RootsRule::Node RootsRule::makeHome(NormalizedDocument& document, Node first) {
  const Node home = document.addElement(document.umlModel, first);
  document.setType(home, XMINames::umlModel);
  document.editor.setAttribute(home, document.xmiId, document.makeId(first, document.indexModel()));
  document.editor.setAttribute(home, document.name, document.fileName);
  document.editor.insertBefore(first, home);
  return home;
}

void RootsRule::moveIn(NormalizedDocument& document, Node home, Node root) {
  XmlDocumentEditor& editor = document.editor;
  const std::string_view tag = editor.getTag(root).view();
  const std::string_view written = document.attribute(root, document.xmiType).view();
  std::string_view type = written.empty() && editor.getName(root) != document.packagedElement ? tag : written;
  if (type == XMINames::umlModel || type == profileType) type = XMINames::umlPackage;
  if (!type.empty()) document.setType(root, type);
  editor.setName(root, document.packagedElement);
  editor.append(home, root);
  document.report.note(NormalizeRule::roots);
}
