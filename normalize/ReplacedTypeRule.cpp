// A table of types, and one of the tags that go with them.
#include "normalize/ReplacedTypeRule.h"

#include <algorithm>

namespace {
constexpr std::string_view property = "uml:Property";
constexpr std::string_view package = "uml:Package";
constexpr std::string_view class_ = "uml:Class";
}  // namespace

ReplacedTypeRule ReplacedTypeRule::forProperties() {
  return {NormalizeRule::replacedType,
          {{"uml:Port", property}, {"uml:ExtensionEnd", property}, {"uml:AssociationEnd", property}},
          {{"ownedPort", "ownedAttribute"}}};
}

ReplacedTypeRule ReplacedTypeRule::forProfiles() {
  return {NormalizeRule::profilePackage,
          {{"uml:Profile", package}},
          {{"uml:Profile", "packagedElement", package}}};
}

ReplacedTypeRule ReplacedTypeRule::forComponents() {
  return {NormalizeRule::componentClass,
          {{"uml:Component", class_},
           {"uml:Node", class_},
           {"uml:Device", class_},
           {"uml:ExecutionEnvironment", class_}},
          {}};
}

const ReplacedTypeRule::Replacement* ReplacedTypeRule::find(const std::vector<Replacement>& replacements,
                                                            std::string_view text) {
  const auto found = std::find_if(replacements.begin(), replacements.end(),
                                  [text](const Replacement& each) { return each.written == text; });
  return found == replacements.end() ? nullptr : &*found;
}

void ReplacedTypeRule::apply(NormalizedDocument& document) {
  XmlDocumentEditor& editor = document.editor;
  for (const Node node : document.getModelElements()) {
    const KYRString& type = document.attribute(node, document.xmiType);
    const bool isKnown = type.isEmpty() || document.kindOfType(type) != NormalizedDocument::noKind;
    const Replacement* const newType = isKnown ? nullptr : find(types_, type.view());
    const Replacement* const newTag = find(tags_, editor.getTag(node).view());
    if (newType != nullptr) document.setType(node, newType->by);
    if (newTag != nullptr) {
      editor.setName(node, editor.intern(newTag->by));
      if (!newTag->type.empty() && document.isEmpty(node, document.xmiType))
        document.setType(node, newTag->type);
    }
    if (newType != nullptr || newTag != nullptr) document.report.note(rule_);
  }
}
