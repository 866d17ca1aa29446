// The last record of the node array is a sentinel; a new node fills it and puts another behind it.
#include "foundation/xml/XmlDocumentBuilder.h"

#include <algorithm>
#include <limits>

#include "foundation/TextHash.h"
#include "foundation/xml/XmlLimits.h"

namespace {

std::uint32_t saturate(std::uint64_t number) noexcept {
  return static_cast<std::uint32_t>(
      std::min<std::uint64_t>(number, std::numeric_limits<std::uint32_t>::max()));
}

}  // namespace

XmlDocumentBuilder::XmlDocumentBuilder(const XmlInput& input, XmlDocumentListener* listener)
    : input_(input), listener_(listener), maxItems_(XmlLimits::get().maxItems), document_(new XmlDocument()) {
  document_->nodes_.emplaceBack();
  addText({});  // number 0, which the unused places of recentTexts_ therefore name rightly
  if (listener_ != nullptr) listener_->startDocument(document_);
}

XmlDocumentBuilder::~XmlDocumentBuilder() = default;

void XmlDocumentBuilder::startElement(std::string_view tag, const Attribute* attributes,
                                      std::size_t attributeCount, const XmlPosition& position) {
  storePendingText();
  position_ = position;
  for (const Attribute* attribute = attributes; attribute != attributes + attributeCount; ++attribute) {
    requireRoom(document_->attributes_.size());
    document_->attributes_.emplaceBack(document_->names_.intern(attribute->name, *document_->arena_),
                                       storeText(attribute->value));
  }
  appendNode(document_->names_.intern(tag, *document_->arena_), saturate(position.line),
             saturate(position.column));
  open_ = document_->getNodeCount() - 1;
  if (listener_ != nullptr) listener_->startElement(open_);
}

void XmlDocumentBuilder::endElement() {
  storePendingText();
  const XmlDocument::Node ended = open_;
  document_->nodes_[ended].end = document_->getNodeCount();
  open_ = document_->getParent(ended);
  if (listener_ != nullptr) listener_->endElement(ended);
}

void XmlDocumentBuilder::characters(std::string_view text) { pendingText_ += text; }

void XmlDocumentBuilder::processingInstruction(std::string_view target, std::string_view data) {
  storePendingText();
  if (listener_ == nullptr) return;
  listener_->processingInstruction(KYRString(target), KYRString(data));
}

void XmlDocumentBuilder::storePendingText() {
  if (pendingText_.empty()) return;
  appendNode(XmlDocument::textName, storeText(pendingText_), 0);
  pendingText_.clear();
  const XmlDocument::Node node = document_->getNodeCount() - 1;
  document_->nodes_[node].end = node + 1;
  if (listener_ != nullptr) listener_->characters(node);
}

// Fills the sentinel and puts a new one behind it.
void XmlDocumentBuilder::appendNode(XmlDocument::Name name, std::uint32_t lineOrText, std::uint32_t column) {
  const XmlDocument::Node node = document_->getNodeCount();
  requireRoom(node);
  XmlDocument::NodeRecord& sentinel = document_->nodes_.emplaceBack();
  sentinel.firstAttribute = static_cast<std::uint32_t>(document_->attributes_.size());
  XmlDocument::NodeRecord& record = document_->nodes_[node];
  record.name = name;
  record.parent = open_;
  record.end = XmlDocument::noNode;
  record.lineOrText = lineOrText;
  record.column = column;
}

std::uint32_t XmlDocumentBuilder::storeText(std::string_view text) {
  if (text.size() > longestRecentText) return addText(text);
  const std::uint64_t hash = TextHash::of(text, 0);
  const auto check = static_cast<std::uint32_t>(hash >> 32);
  RecentText& recent = recentTexts_[hash % recentTextCount];
  if (recent.hash == check) {
    const KYRString& known = document_->texts_[recent.number];
    if (known.getLength() == text.size() &&
        TextHash::areEqual(known.getCharacters(), text.data(), text.size())) {
      return recent.number;
    }
  }
  recent = {check, addText(text)};
  return recent.number;
}

std::uint32_t XmlDocumentBuilder::addText(std::string_view text) {
  const std::size_t number = document_->texts_.size();
  requireRoom(number);
  document_->texts_.appendMade([&] { return KYRString::borrowed(document_->arena_->store(text)); });
  return static_cast<std::uint32_t>(number);
}

void XmlDocumentBuilder::requireRoom(std::size_t count) const {
  if (count < maxItems_) return;
  raiseXmlError(KYRStdMessages::XML_TOO_LARGE, input_.getName(), position_, toText(maxItems_));
}
