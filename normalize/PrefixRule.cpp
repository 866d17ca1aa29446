// The scopes, as a stack of declarations, and the names as they are called inside them.
#include "normalize/PrefixRule.h"

#include <algorithm>

#include "xmi/XMINames.h"

namespace {

constexpr std::string_view declaration = "xmlns:";
constexpr std::string_view uml = "uml";
constexpr std::string_view xmi = "xmi";
constexpr std::string_view schemaType = "xsi:type";
constexpr std::uint32_t unmapped = 0xFFFFFFFFU;

constexpr std::string_view umlStarts[] = {"http://www.omg.org/spec/UML/", "http://schema.omg.org/spec/UML/"};
constexpr std::string_view xmiStarts[] = {"http://www.omg.org/spec/XMI/", "http://schema.omg.org/spec/XMI/"};
constexpr std::string_view eclipseStart = "http://www.eclipse.org/uml2/";
constexpr std::string_view eclipseEnd = "/UML";
constexpr std::string_view xmiWithoutVersion = "http://www.omg.org/XMI";

bool isVersion(std::string_view text) noexcept {
  return !text.empty() && text.find_first_not_of("0123456789.") == std::string_view::npos;
}

template <class Starts>
bool isVersionBehind(const Starts& starts, std::string_view uri) noexcept {
  return std::any_of(std::begin(starts), std::end(starts), [uri](std::string_view start) {
    return uri.starts_with(start) && isVersion(uri.substr(start.size()));
  });
}

}  // namespace

bool PrefixRule::isUmlNamespace(std::string_view uri) noexcept {
  if (isVersionBehind(umlStarts, uri)) return true;
  if (!uri.starts_with(eclipseStart) || !uri.ends_with(eclipseEnd)) return false;
  if (uri.size() < eclipseStart.size() + eclipseEnd.size()) return false;
  uri.remove_prefix(eclipseStart.size());
  uri.remove_suffix(eclipseEnd.size());
  return isVersion(uri);
}

bool PrefixRule::isXmiNamespace(std::string_view uri) noexcept {
  return uri == xmiWithoutVersion || isVersionBehind(xmiStarts, uri);
}

PrefixRule::Meaning PrefixRule::meaningOf(std::string_view uri) noexcept {
  return isUmlNamespace(uri) ? Meaning::uml : isXmiNamespace(uri) ? Meaning::xmi : Meaning::other;
}

void PrefixRule::apply(NormalizedDocument& document) {
  if (!isNeeded(document)) return;
  XmlDocumentEditor& editor = document.editor;
  for (Node node = 0; node < editor.getNodeCount(); ++node) {  // nothing was moved so far
    leaveScopes(node);
    if (!editor.isElement(node)) continue;
    enterScope(document, node);
    if (change(document, node)) document.report.note(NormalizeRule::prefixes);
  }
}

bool PrefixRule::isNeeded(const NormalizedDocument& document) const {
  const XmlDocumentEditor& editor = document.editor;
  std::vector<bool> isOtherPrefix(editor.getNameCount());
  for (Name name = 0; name < editor.getNameCount(); ++name) {
    const std::string_view text = editor.getNameText(name).view();
    isOtherPrefix[name] = text.starts_with(declaration) && text.substr(declaration.size()) != uml &&
                          text.substr(declaration.size()) != xmi;
  }
  if (std::find(isOtherPrefix.begin(), isOtherPrefix.end(), true) == isOtherPrefix.end()) return false;
  for (Node node = 0; node < editor.getNodeCount(); ++node) {
    for (std::uint32_t index = 0; index < editor.getAttributeCount(node); ++index) {
      if (isOtherPrefix[editor.getAttributeName(node, index)] &&
          meaningOf(editor.getAttributeValue(node, index).view()) != Meaning::other) {
        return true;
      }
    }
  }
  return false;
}

void PrefixRule::leaveScopes(Node node) {
  while (!scopes_.empty() && scopes_.back().behind == node) {
    bindings_.resize(scopes_.back().bindings);
    scopes_.pop_back();
    mapped_.clear();
  }
}

void PrefixRule::enterScope(NormalizedDocument& document, Node node) {
  const XmlDocumentEditor& editor = document.editor;
  const std::size_t before = bindings_.size();
  for (std::uint32_t index = 0; index < editor.getAttributeCount(node); ++index) {
    const std::string_view name = editor.getNameText(editor.getAttributeName(node, index)).view();
    if (!name.starts_with(declaration)) continue;
    bindings_.push_back(
        {name.substr(declaration.size()), meaningOf(editor.getAttributeValue(node, index).view())});
  }
  if (bindings_.size() == before) return;
  scopes_.push_back({editor.getBehind(node), before});
  mapped_.clear();
  addUsualDeclarations(document, node);
}

// The prefix that names are brought to has to be declared where they stand. The other declaration stays,
// for whatever else may refer to it.
void PrefixRule::addUsualDeclarations(NormalizedDocument& document, Node node) {
  for (const auto& [prefix, meaning] : {std::pair{uml, Meaning::uml}, std::pair{xmi, Meaning::xmi}}) {
    const auto isUsual = [prefix = prefix](const Binding& binding) { return binding.prefix == prefix; };
    if (std::any_of(bindings_.begin(), bindings_.end(), isUsual)) continue;
    XmlDocumentEditor& editor = document.editor;
    for (std::uint32_t index = 0; index < editor.getAttributeCount(node); ++index) {
      const std::string_view name = editor.getNameText(editor.getAttributeName(node, index)).view();
      const KYRString& uri = editor.getAttributeValue(node, index);
      if (!name.starts_with(declaration) || meaningOf(uri.view()) != meaning) continue;
      editor.setAttribute(node, editor.intern(std::string(declaration) + std::string(prefix)), uri.view(),
                          index + 1);
      bindings_.push_back({prefix, meaning});
      break;
    }
  }
}

// Whether the prefix may be taken for the meaning here.
bool PrefixRule::isFree(std::string_view prefix, Meaning meaning) const noexcept {
  const auto found = std::find_if(bindings_.rbegin(), bindings_.rend(),
                                  [prefix](const Binding& binding) { return binding.prefix == prefix; });
  return found != bindings_.rend() && found->meaning == meaning;
}

// The name under the usual prefix; the name itself when its prefix stands for nothing of that kind.
std::string PrefixRule::mapName(std::string_view name) const {
  const std::size_t colon = name.find(':');
  if (colon == std::string_view::npos || name.starts_with(declaration)) return std::string(name);
  const std::string_view prefix = name.substr(0, colon);
  if (prefix == uml || prefix == xmi) return std::string(name);
  for (const auto& [usual, meaning] : {std::pair{uml, Meaning::uml}, std::pair{xmi, Meaning::xmi}}) {
    if (isFree(prefix, meaning) && isFree(usual, meaning)) {
      return std::string(usual) + std::string(name.substr(colon));
    }
  }
  return std::string(name);
}

PrefixRule::Name PrefixRule::mapped(NormalizedDocument& document, Name name) {
  if (name >= mapped_.size()) mapped_.resize(document.editor.getNameCount(), unmapped);
  if (mapped_[name] == unmapped) {
    const std::string result = mapName(document.editor.getNameText(name).view());
    const Name number = document.editor.intern(result);
    mapped_[name] = number;
  }
  return mapped_[name];
}

bool PrefixRule::change(NormalizedDocument& document, Node node) {
  if (bindings_.empty()) return false;
  XmlDocumentEditor& editor = document.editor;
  bool isChanged = false;
  const Name tag = mapped(document, editor.getName(node));
  if (tag != editor.getName(node)) {
    editor.setName(node, tag);
    isChanged = true;
  }
  for (std::uint32_t index = 0; index < editor.getAttributeCount(node); ++index) {
    const Name before = editor.getAttributeName(node, index);
    const Name name = mapped(document, before);
    if (name != before && editor.findAttribute(node, name) == nullptr) {
      editor.renameAttribute(node, index, name);
      isChanged = true;
    }
    const std::string_view text = editor.getNameText(editor.getAttributeName(node, index)).view();
    if (text != XMINames::type && text != schemaType) continue;
    const KYRString& value = editor.getAttributeValue(node, index);
    const std::string type = mapName(value.view());
    if (type == value.view()) continue;
    editor.setAttribute(node, editor.getAttributeName(node, index), type);
    isChanged = true;
  }
  return isChanged;
}
