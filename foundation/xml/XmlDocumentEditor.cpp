// The tree over the nodes of the source, and the copy of it into a document of its own.
#include "foundation/xml/XmlDocumentEditor.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

// Numbers of 32 bits tell nodes, attributes and texts; the last two are taken.
constexpr std::size_t mostItems = 0xFFFFFFFDU;

void requireRoom(std::size_t count) {
  if (count >= mostItems) throw std::length_error("XmlDocumentEditor");
}

}  // namespace

XmlDocumentEditor::XmlDocumentEditor(std::shared_ptr<const XmlDocument> source)
    : source_(std::move(source)),
      result_(new XmlDocument()),
      sourceAttributes_(static_cast<std::uint32_t>(source_->attributes_.size())) {
  for (Name name = 0; name < source_->getNameCount(); ++name) intern(source_->getNameText(name).view());
  result_->texts_.shareBlocks(source_->texts_);
  result_->source_ = source_;
  link();
}

XmlDocumentEditor::~XmlDocumentEditor() = default;

void XmlDocumentEditor::link() {
  const Node count = source_->getNodeCount();
  nodes_.reserve(count);
  for (Node node = 0; node < count; ++node) {
    const XmlDocument::NodeRecord& from = source_->nodes_[node];
    Record record = {from.name, from.parent, noNode, noNode, noNode, noNode, from.firstAttribute, 0, node};
    record.attributeCount = source_->getAttributeCount(node);
    if (from.parent != noNode) {
      Record& parent = nodes_[from.parent];
      record.previous = parent.last;
      if (parent.last == noNode) {
        parent.first = node;
      } else {
        nodes_[parent.last].next = node;
      }
      parent.last = node;
    }
    nodes_.push_back(record);
  }
}

XmlDocumentEditor::Name XmlDocumentEditor::intern(std::string_view name) {
  return result_->names_.intern(name, result_->arena_);
}

XmlDocumentEditor::Node XmlDocumentEditor::getFollowing(Node node) const noexcept {
  return nodes_[node].first != noNode ? nodes_[node].first : getBehind(node);
}

XmlDocumentEditor::Node XmlDocumentEditor::getBehind(Node node) const noexcept {
  while (node != noNode && nodes_[node].next == noNode) node = nodes_[node].parent;
  return node == noNode ? noNode : nodes_[node].next;
}

KYRString XmlDocumentEditor::getContent(Node node) const {
  KYRString content;
  for (Node child = getFirst(node); child != noNode; child = getNext(child)) {
    if (!isElement(child)) content += getText(child);
  }
  return content;
}

const XmlDocumentEditor::AttributeRecord& XmlDocumentEditor::attributeAt(Node node,
                                                                         std::uint32_t index) const noexcept {
  const std::uint32_t number = nodes_[node].firstAttribute + index;
  return number < sourceAttributes_ ? source_->attributes_[number] : attributes_[number - sourceAttributes_];
}

const KYRString* XmlDocumentEditor::findAttribute(Node node, Name name) const noexcept {
  for (std::uint32_t index = 0; index < getAttributeCount(node); ++index) {
    const AttributeRecord& attribute = attributeAt(node, index);
    if (attribute.name == name) return &result_->texts_[attribute.value];
  }
  return nullptr;
}

// The attributes of the node in the editor's own array, with room for so many more behind them.
XmlDocumentEditor::AttributeRecord* XmlDocumentEditor::ownAttributes(Node node, std::uint32_t room) {
  isChanged_ = true;
  Record& record = nodes_[node];
  const std::size_t own = attributes_.size();
  const bool isLast = record.firstAttribute + std::size_t{record.attributeCount} == sourceAttributes_ + own;
  requireRoom(sourceAttributes_ + own + record.attributeCount + room);
  if (record.firstAttribute < sourceAttributes_ || (room != 0 && !isLast)) {
    for (std::uint32_t index = 0; index < record.attributeCount; ++index) {
      const AttributeRecord copy = attributeAt(node, index);
      attributes_.push_back(copy);
    }
    record.firstAttribute = static_cast<std::uint32_t>(sourceAttributes_ + own);
  }
  attributes_.resize(attributes_.size() + room);
  return attributes_.data() + (record.firstAttribute - sourceAttributes_);
}

std::uint32_t XmlDocumentEditor::addText(std::string_view text) {
  const std::size_t number = result_->texts_.size();
  requireRoom(number);
  result_->texts_.appendMade([&] { return KYRString::borrowed(result_->arena_.store(text)); });
  return static_cast<std::uint32_t>(number);
}

void XmlDocumentEditor::setName(Node node, Name name) {
  if (nodes_[node].name == name) return;
  isChanged_ = true;
  nodes_[node].name = name;
}

void XmlDocumentEditor::setAttribute(Node node, Name name, std::string_view value, std::uint32_t index) {
  const std::uint32_t count = getAttributeCount(node);
  for (std::uint32_t at = 0; at < count; ++at) {
    if (getAttributeName(node, at) != name) continue;
    if (getAttributeValue(node, at).view() != value) ownAttributes(node, 0)[at].value = addText(value);
    return;
  }
  const std::uint32_t text = addText(value);
  AttributeRecord* const attributes = ownAttributes(node, 1);
  const std::uint32_t place = std::min(index, count);
  std::copy_backward(attributes + place, attributes + count, attributes + count + 1);
  attributes[place] = {name, text};
  ++nodes_[node].attributeCount;
}

void XmlDocumentEditor::renameAttribute(Node node, std::uint32_t index, Name name) {
  ownAttributes(node, 0)[index].name = name;
}

void XmlDocumentEditor::removeAttribute(Node node, Name name) {
  const std::uint32_t count = getAttributeCount(node);
  for (std::uint32_t at = 0; at < count; ++at) {
    if (getAttributeName(node, at) != name) continue;
    AttributeRecord* const attributes = ownAttributes(node, 0);
    std::copy(attributes + at + 1, attributes + count, attributes + at);
    --nodes_[node].attributeCount;
    return;
  }
}

void XmlDocumentEditor::orderAttributes(Node node, const std::vector<std::uint32_t>& positions) {
  AttributeRecord* const attributes = ownAttributes(node, 0);
  const std::vector<AttributeRecord> before(attributes, attributes + getAttributeCount(node));
  for (std::size_t at = 0; at < positions.size(); ++at) attributes[at] = before[positions[at]];
}

XmlDocumentEditor::Node XmlDocumentEditor::addElement(Name name, Node origin) {
  requireRoom(nodes_.size());
  isChanged_ = true;
  nodes_.push_back({name, noNode, noNode, noNode, noNode, noNode, 0, 0, nodes_[origin].origin});
  return getNodeCount() - 1;
}

void XmlDocumentEditor::detach(Node node) {
  isChanged_ = true;
  Record& record = nodes_[node];
  if (record.parent != noNode) {
    Record& parent = nodes_[record.parent];
    (record.previous == noNode ? parent.first : nodes_[record.previous].next) = record.next;
    (record.next == noNode ? parent.last : nodes_[record.next].previous) = record.previous;
  }
  record.parent = record.next = record.previous = noNode;
}

void XmlDocumentEditor::append(Node parent, Node node) {
  detach(node);
  Record& record = nodes_[node];
  record.parent = parent;
  record.previous = nodes_[parent].last;
  (record.previous == noNode ? nodes_[parent].first : nodes_[record.previous].next) = node;
  nodes_[parent].last = node;
}

void XmlDocumentEditor::insertBefore(Node sibling, Node node) {
  detach(node);
  Record& record = nodes_[node];
  record.parent = nodes_[sibling].parent;
  record.next = sibling;
  record.previous = nodes_[sibling].previous;
  (record.previous == noNode ? nodes_[record.parent].first : nodes_[record.previous].next) = node;
  nodes_[sibling].previous = node;
}

void XmlDocumentEditor::remove(Node node) {
  detach(node);
  for (Node each = node; each != noNode; each = getFollowing(each)) nodes_[each].name = removedName;
}

std::shared_ptr<const XmlDocument> XmlDocumentEditor::build() {
  if (!isChanged_) return source_;
  XmlDocument& result = *result_;
  Node open = noNode;  // in the result
  for (Node node = 0; node != noNode;) {
    const Node copy = static_cast<Node>(result.nodes_.size());
    copyNode(node, open);
    if (nodes_[node].first != noNode) {
      open = copy;
      node = nodes_[node].first;
      continue;
    }
    result.nodes_[copy].end = copy + 1;
    while (node != noNode && nodes_[node].next == noNode) {
      node = nodes_[node].parent;
      if (open == noNode) continue;
      result.nodes_[open].end = static_cast<Node>(result.nodes_.size());
      open = result.nodes_[open].parent;
    }
    if (node != noNode) node = nodes_[node].next;
  }
  XmlDocument::NodeRecord& sentinel = result.nodes_.emplaceBack();
  sentinel.firstAttribute = static_cast<std::uint32_t>(result.attributes_.size());
  return result_;
}

void XmlDocumentEditor::copyNode(Node node, Node open) {
  const Record& from = nodes_[node];
  const XmlDocument::NodeRecord& origin = source_->nodes_[from.origin];
  result_->nodes_.emplaceBack(from.name, open, noNode,
                              static_cast<std::uint32_t>(result_->attributes_.size()), origin.lineOrText,
                              origin.column);
  for (std::uint32_t index = 0; index < from.attributeCount; ++index) {
    result_->attributes_.emplaceBack(attributeAt(node, index));
  }
}
