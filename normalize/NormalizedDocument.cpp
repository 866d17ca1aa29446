// Regions and readings: two walks in document order that follow what the reader itself would do.
#include "normalize/NormalizedDocument.h"

#include "uml/UMLClasses.h"
#include "uml/read/ClassPlan.h"
#include "xmi/TagHandler.h"
#include "xmi/XMINames.h"

namespace {

constexpr std::size_t typeSlotCount = 1024;

// Data of tools, and what tells of the tool: passed on as it stands.
constexpr const char* shieldedTags[] = {"xmi:Extension", "eAnnotations", "xmi:Documentation"};

constexpr const char* xmiRoot = "xmi:XMI";
constexpr const char* umlProfile = "uml:Profile";

// With some room for added elements, so that the first of them does not move all others.
std::size_t withRoom(std::size_t count) { return count + count / 8; }

}  // namespace

NormalizedDocument::NormalizedDocument(std::shared_ptr<const XmlDocument> source, std::string nameOfFile,
                                       NormalizeReport& normalizeReport)
    : editor(std::move(source)),
      report(normalizeReport),
      fileName(std::move(nameOfFile)),
      xmiId(editor.intern(XMINames::id)),
      xmiType(editor.intern(XMINames::type)),
      xmiIdref(editor.intern(XMINames::idref)),
      href(editor.intern("href")),
      name(editor.intern(XMINames::name)),
      umlModel(editor.intern(XMINames::umlModel)),
      packagedElement(editor.intern("packagedElement")),
      vocabulary_(ReaderVocabulary::get()),
      types_(typeSlotCount) {}

const NormalizedDocument::Word& NormalizedDocument::wordOf(Name asked) {
  if (asked >= words_.size()) words_.resize(editor.getNameCount());
  const Word*& word = words_[asked];
  if (word == nullptr) word = &vocabulary_.find(editor.getNameText(asked).view());
  return *word;
}

// A text that repeats is mostly kept once, so its address tells it.
int NormalizedDocument::kindOfType(const KYRString& type) {
  const char* const characters = type.getCharacters();
  TypeSlot& slot = types_[(reinterpret_cast<std::uintptr_t>(characters) >> 2U) % typeSlotCount];
  if (slot.characters != characters) slot = {characters, vocabulary_.kindOfType(type.view())};
  return slot.kind;
}

const KYRString& NormalizedDocument::attribute(Node node, Name attributeName) const {
  const KYRString* const value = editor.findAttribute(node, attributeName);
  return value == nullptr ? KYRString::getEmptyString() : *value;
}

bool NormalizedDocument::isRoot(Node node) {
  if (editor.getName(node) == packagedElement || editor.getTag(node).view() == umlProfile) return true;
  const int kind = wordOfTag(node).kindOfTag;
  return kind != noKind && UMLLineage::isKindOf(kind, UMLPackageableElement::kind);
}

void NormalizedDocument::findRegions() {
  std::vector<bool> isShielded(editor.getNameCount());
  for (const char* tag : shieldedTags) {
    const Name shielded = editor.intern(tag);
    isShielded.resize(editor.getNameCount());
    isShielded[shielded] = true;
  }
  regions_.reserve(withRoom(editor.getNodeCount()));
  regions_.assign(editor.getNodeCount(), Region::foreign);
  roots_.clear();
  isXmiRoot_ = editor.getTag(0).view() == xmiRoot;
  for (Node node = 0; node < editor.getNodeCount(); ++node) {
    if (!editor.isElement(node)) continue;
    ++steps_;
    const Node parent = editor.getParent(node);
    Region& region = regions_[node];
    if (parent != noNode) region = regions_[parent];
    if (isShielded[editor.getName(node)]) region = Region::shielded;
    const bool maybeRoot = parent == noNode ? !isXmiRoot_ : parent == 0 && isXmiRoot_;
    if (region == Region::foreign && maybeRoot && isRoot(node)) {
      region = Region::model;
      roots_.push_back(node);
    }
    if (region == Region::model) modelElements_.push_back(node);
  }
}

NormalizedDocument::Node NormalizedDocument::addElement(Name tag, Node origin) {
  const Node node = editor.addElement(tag, origin);
  regions_.push_back(Region::model);
  modelElements_.push_back(node);
  if (!readings_.empty()) readings_.emplace_back();
  return node;
}

void NormalizedDocument::computeReadings() {
  readings_.reserve(withRoom(editor.getNodeCount()));
  readings_.assign(editor.getNodeCount(), Reading());
  objects_.clear();
  foreignObjects_.clear();
  for (Node node = 0; node != noNode;) {
    if (!editor.isElement(node)) {
      node = editor.getFollowing(node);
      continue;
    }
    ++steps_;
    if (regions_[node] != Region::shielded) {
      const Node parent = editor.getParent(node);
      readings_[node] = read(node, parent == noNode ? Reading() : readings_[parent], parent);
      if (readings_[node].role == Role::object) {
        (regions_[node] == Region::model ? objects_ : foreignObjects_).push_back(node);
      }
    }
    node = readings_[node].role == Role::skipped ? editor.getBehind(node) : editor.getFollowing(node);
  }
}

// The choice that the reader makes at a start tag (XMIParser::startTag).
NormalizedDocument::Reading NormalizedDocument::read(Node node, const Reading& parent, Node parentNode) {
  Reading reading;
  reading.object = parent.role == Role::object ? parentNode : parent.object;
  const auto makes = [&reading](int kind) {
    reading.role = Role::object;
    reading.kind = static_cast<std::int16_t>(kind);
    return reading;
  };
  const Name tag = editor.getName(node);
  const KYRString& type = attribute(node, xmiType);
  if (tag == umlModel) return makes(UMLModel::kind);
  if (!type.isEmpty() && type.view() != XMINames::umlModel) {
    const int kind = kindOfType(type);
    if (kind == noKind) return reading;
    const bool isLiteral = kind == UMLLiteralInteger::kind || kind == UMLLiteralBoolean::kind;
    return makes(isLiteral && editor.getTag(node).view() == XMINames::defaultValue ? UMLLiteralString::kind
                                                                                   : kind);
  }
  const Word& word = wordOf(tag);
  const TagHandler* const row =
      reading.object == noNode ? nullptr : ReaderVocabulary::findRow(word, readings_[reading.object].kind);
  if (row == nullptr) {
    reading.role = word.isSkipped ? Role::skipped : Role::passed;
  } else if (row->field != nullptr) {
    reading.role = Role::text;
  } else if (!isEmpty(node, xmiIdref)) {
    reading.role = Role::reference;
  } else {
    return makes(row->plan->kind);
  }
  return reading;
}

IdIndex NormalizedDocument::indexModel() const {
  IdIndex ids(modelElements_.size() / 4);
  for (const Node node : modelElements_) {
    const KYRString& id = attribute(node, xmiId);
    if (!id.isEmpty()) ids.enter(id.view(), node);
  }
  return ids;
}

std::string NormalizedDocument::makeId(Node node, const IdIndex& ids) const {
  std::string id =
      "kyr_" + std::to_string(editor.getLine(node)) + '_' + std::to_string(editor.getColumn(node));
  if (ids.find(id) == IdIndex::none) return id;
  for (unsigned int number = 2;; ++number) {
    std::string numbered = id + '_' + std::to_string(number);
    if (ids.find(numbered) == IdIndex::none) return numbered;
  }
}
