// The children of the root, and the ids of the whole document.
#include "trace/AppliedStereotypes.h"

#include <set>
#include <string>

#include "bridge/state/KYROmgUml2XmiImportBridge.h"

namespace {
constexpr std::string_view baseAttribute = "base_";
}

AppliedStereotypes::AppliedStereotypes(const KYROmgUml2XmiImportBridge& bridge) : dom_(bridge.log) {
  reading_.parse(dom_, bridge.file);
}

std::vector<AppliedStereotypes::Application> AppliedStereotypes::collect() const {
  std::vector<Application> applications;
  const XmlDocument& document = reading_.document();
  for (XmlDocument::Node node = document.getFirstChild(0); node != XmlDocument::noNode;
       node = document.getNextSibling(node)) {
    for (std::uint32_t i = 0; i < document.getAttributeCount(node); ++i) {
      const KYRString& name = document.getNameText(document.getAttributeName(node, i));
      const KYRString& id = document.getAttributeValue(node, i);
      if (!name.view().starts_with(baseAttribute) || id.isEmpty()) continue;
      applications.push_back({document.getTag(node), id, document.getLine(node)});
    }
  }
  return applications;
}

std::vector<AppliedStereotypes::Application> AppliedStereotypes::findThoseOfNothing() const {
  if (!reading_) return {};
  std::vector<Application> applications = collect();
  if (applications.empty()) return applications;
  std::set<std::string, std::less<>> ids;  // a tree: the ids come from the file
  const XmlDocument& document = reading_.document();
  const XmlDocument::Name idName = document.findName("xmi:id");
  for (XmlDocument::Node node = 0; node < document.getNodeCount(); ++node) {
    const KYRString* const id = document.isElement(node) ? document.findAttribute(node, idName) : nullptr;
    if (id != nullptr) ids.emplace(id->view());
  }
  std::erase_if(applications,
                [&ids](const Application& application) { return ids.count(application.id.view()) != 0; });
  return applications;
}
