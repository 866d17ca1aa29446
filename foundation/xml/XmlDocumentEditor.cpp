// The tree over the nodes of the source, and the copy of it into a document of its own.
#include "foundation/xml/XmlDocumentEditor.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

// Numbers of 32 bits tell nodes, attributes and texts; the last two are taken.
constexpr std::size_t mostItems = 0xFFFFFFFDU;

// With some room for added nodes, so that the first of them does not move all others.
std::size_t withRoom(std::size_t count) { return count + count / 8; }

void requireRoom(std::size_t count) {
  if (count >= mostItems) throw std::length_error("XmlDocumentEditor");
}

}  // namespace

XmlDocumentEditor::XmlDocumentEditor(std::shared_ptr<const XmlDocument> source)
    : source_(std::move(source)),
      result_(new XmlDocument()),
      sourceAttributes_(static_cast<std::uint32_t>(source_->attributes_.size())) {
  for (Name name = 0; name < source_->getNameCount(); ++name) intern(source_->getNameText(name).view());
  for (std::uint32_t number = 0; number < sourceAttributes_; ++number) {
    noteAttributeName(source_->attributes_[number].name);
  }
  result_->texts_.shareBlocks(source_->texts_);
  result_->source_ = source_;
  result_->arena_->keep(source_->arena_);
}

XmlDocumentEditor::~XmlDocumentEditor() = default;

void XmlDocumentEditor::change() {
  if (isChanged()) return;
  std::vector<Head> heads;
  heads.reserve(withRoom(source_->getNodeCount()));
  for (Node node = 0; node < source_->getNodeCount(); ++node) heads.push_back(headOf(node));
  heads_ = std::move(heads);
}

void XmlDocumentEditor::link() {
  change();
  if (!links_.empty()) return;
  const Node count = source_->getNodeCount();
  links_.reserve(withRoom(count));
  for (Node node = 0; node < count; ++node) {
    Link linked = {source_->getParent(node), noNode, noNode, noNode, noNode};
    if (linked.parent != noNode) {
      Link& parent = links_[linked.parent];
      linked.previous = parent.last;
      (parent.last == noNode ? parent.first : links_[parent.last].next) = node;
      parent.last = node;
    }
    links_.push_back(linked);
  }
}

XmlDocumentEditor::Name XmlDocumentEditor::intern(std::string_view name) {
  return result_->names_.intern(name, *result_->arena_);
}

XmlDocumentEditor::Node XmlDocumentEditor::getFirst(Node node) const noexcept {
  if (!links_.empty()) return links_[node].first;
  return source_->getEnd(node) > node + 1 ? node + 1 : noNode;
}

XmlDocumentEditor::Node XmlDocumentEditor::getNext(Node node) const noexcept {
  if (!links_.empty()) return links_[node].next;
  const Node parent = source_->getParent(node);
  const Node end = source_->getEnd(node);
  return parent != noNode && end < source_->getEnd(parent) ? end : noNode;
}

XmlDocumentEditor::Node XmlDocumentEditor::getFollowing(Node node) const noexcept {
  if (links_.empty()) return node + 1 < source_->getNodeCount() ? node + 1 : noNode;
  return links_[node].first != noNode ? links_[node].first : getBehind(node);
}

XmlDocumentEditor::Node XmlDocumentEditor::getBehind(Node node) const noexcept {
  if (links_.empty()) {
    const Node end = source_->getEnd(node);
    return end < source_->getNodeCount() ? end : noNode;
  }
  while (node != noNode && links_[node].next == noNode) node = links_[node].parent;
  return node == noNode ? noNode : links_[node].next;
}

KYRString XmlDocumentEditor::getContent(Node node) const {
  KYRString content;
  for (Node child = getFirst(node); child != noNode; child = getNext(child)) {
    if (!isElement(child)) content += source_->getText(child);
  }
  return content;
}

const XmlDocumentEditor::AttributeRecord& XmlDocumentEditor::attributeAt(Node node,
                                                                         std::uint32_t index) const noexcept {
  return attributeOf(headOf(node).firstAttribute + index);
}

void XmlDocumentEditor::noteAttributeName(Name name) {
  if (name >= isAttributeName_.size()) isAttributeName_.resize(std::size_t{name} + 1);
  isAttributeName_[name] = true;
}

const KYRString* XmlDocumentEditor::seekAttribute(Node node, Name name) const noexcept {
  const Head head = headOf(node);
  for (std::uint32_t index = 0; index < head.attributeCount; ++index) {
    const AttributeRecord& attribute = attributeOf(head.firstAttribute + index);
    if (attribute.name == name) return &result_->texts_[attribute.value];
  }
  return nullptr;
}

// The attributes of the node in the editor's own array, with room for so many more behind them.
XmlDocumentEditor::AttributeRecord* XmlDocumentEditor::ownAttributes(Node node, std::uint32_t room) {
  change();
  Head& record = heads_[node];
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
  result_->texts_.appendMade([&] { return KYRString::borrowed(result_->arena_->store(text)); });
  return static_cast<std::uint32_t>(number);
}

void XmlDocumentEditor::setName(Node node, Name name) {
  if (getName(node) == name) return;
  change();
  heads_[node].name = name;
}

void XmlDocumentEditor::setAttribute(Node node, Name name, std::string_view value, std::uint32_t index) {
  const std::uint32_t count = getAttributeCount(node);
  for (std::uint32_t at = 0; at < count; ++at) {
    if (getAttributeName(node, at) != name) continue;
    if (getAttributeValue(node, at).view() != value) ownAttributes(node, 0)[at].value = addText(value);
    return;
  }
  noteAttributeName(name);
  const std::uint32_t text = addText(value);
  AttributeRecord* const attributes = ownAttributes(node, 1);
  const std::uint32_t place = std::min(index, count);
  std::copy_backward(attributes + place, attributes + count, attributes + count + 1);
  attributes[place] = {name, text};
  ++heads_[node].attributeCount;
}

void XmlDocumentEditor::renameAttribute(Node node, std::uint32_t index, Name name) {
  noteAttributeName(name);
  ownAttributes(node, 0)[index].name = name;
}

void XmlDocumentEditor::removeAttribute(Node node, Name name) {
  const std::uint32_t count = getAttributeCount(node);
  for (std::uint32_t at = 0; at < count; ++at) {
    if (getAttributeName(node, at) != name) continue;
    AttributeRecord* const attributes = ownAttributes(node, 0);
    std::copy(attributes + at + 1, attributes + count, attributes + at);
    --heads_[node].attributeCount;
    return;
  }
}

void XmlDocumentEditor::orderAttributes(Node node, const std::vector<std::uint32_t>& positions) {
  AttributeRecord* const attributes = ownAttributes(node, 0);
  const std::vector<AttributeRecord> before(attributes, attributes + getAttributeCount(node));
  for (std::size_t at = 0; at < positions.size(); ++at) attributes[at] = before[positions[at]];
}

XmlDocumentEditor::Node XmlDocumentEditor::addElement(Name name, Node origin) {
  requireRoom(getNodeCount());
  link();
  origins_.push_back(originOf(origin));
  links_.push_back({noNode, noNode, noNode, noNode, noNode});
  heads_.push_back({name, 0, 0});
  return getNodeCount() - 1;
}

void XmlDocumentEditor::detach(Node node) {
  link();
  Link& linked = links_[node];
  if (linked.parent != noNode) {
    Link& parent = links_[linked.parent];
    (linked.previous == noNode ? parent.first : links_[linked.previous].next) = linked.next;
    (linked.next == noNode ? parent.last : links_[linked.next].previous) = linked.previous;
  }
  linked.parent = linked.next = linked.previous = noNode;
}

void XmlDocumentEditor::append(Node parent, Node node) {
  detach(node);
  Link& linked = links_[node];
  linked.parent = parent;
  linked.previous = links_[parent].last;
  (linked.previous == noNode ? links_[parent].first : links_[linked.previous].next) = node;
  links_[parent].last = node;
}

void XmlDocumentEditor::insertBefore(Node sibling, Node node) {
  detach(node);
  Link& linked = links_[node];
  linked.parent = links_[sibling].parent;
  linked.next = sibling;
  linked.previous = links_[sibling].previous;
  (linked.previous == noNode ? links_[linked.parent].first : links_[linked.previous].next) = node;
  links_[sibling].previous = node;
}

void XmlDocumentEditor::remove(Node node) {
  detach(node);
  for (Node each = node; each != noNode; each = getFollowing(each)) heads_[each].name = removedName;
}

std::shared_ptr<const XmlDocument> XmlDocumentEditor::build() {
  if (!isChanged()) return source_;
  if (links_.empty()) {
    buildAlike();
  } else {
    buildAnew();
  }
  XmlDocument::NodeRecord& sentinel = result_->nodes_.emplaceBack();
  sentinel.firstAttribute = static_cast<std::uint32_t>(result_->attributes_.size());
  return result_;
}

void XmlDocumentEditor::buildAlike() {
  for (Node node = 0; node < getNodeCount(); ++node) {
    copyNode(node, source_->getParent(node), source_->getEnd(node));
  }
}

void XmlDocumentEditor::buildAnew() {
  BlockArray<XmlDocument::NodeRecord>& made = result_->nodes_;
  Node open = noNode;  // in the result
  for (Node node = 0; node != noNode;) {
    const Node copy = static_cast<Node>(made.size());
    copyNode(node, open, copy + 1);
    if (links_[node].first != noNode) {
      open = copy;
      node = links_[node].first;
      continue;
    }
    while (node != noNode && links_[node].next == noNode) {
      node = links_[node].parent;
      if (open == noNode) continue;
      made[open].end = static_cast<Node>(made.size());
      open = made[open].parent;
    }
    if (node != noNode) node = links_[node].next;
  }
}

void XmlDocumentEditor::copyNode(Node node, Node parent, Node end) {
  const Head head = headOf(node);
  const XmlDocument::NodeRecord& origin = source_->nodes_[originOf(node)];
  BlockArray<AttributeRecord>& attributes = result_->attributes_;
  result_->nodes_.emplaceBack(head.name, parent, end, static_cast<std::uint32_t>(attributes.size()),
                              origin.lineOrText, origin.column);
  if (head.firstAttribute < sourceAttributes_) {
    attributes.appendFrom(source_->attributes_, head.firstAttribute, head.attributeCount);
  } else {
    for (std::uint32_t index = 0; index < head.attributeCount; ++index) {
      attributes.emplaceBack(attributeAt(node, index));
    }
  }
}
