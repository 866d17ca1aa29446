// Walks over the node array: a subtree is a range, so a sibling is where the range ends.
#include "foundation/xml/XmlDocument.h"

XmlDocument::XmlDocument() : arena_(std::make_shared<XmlTextArena>()) {}

XmlDocument::~XmlDocument() = default;

XmlDocument::Name XmlDocument::findName(const KYRString& text) const noexcept {
  static_assert(XmlNameTable::none == textName);
  return names_.find(text.view());
}

XmlDocument::Node XmlDocument::getFirstChild(Node node) const noexcept {
  const Node end = getEnd(node);
  Node child = node + 1;
  while (child < end && !isElement(child)) child = getEnd(child);
  return child < end ? child : noNode;
}

XmlDocument::Node XmlDocument::getNextSibling(Node node) const noexcept {
  const Node parent = getParent(node);
  if (parent == noNode) return noNode;
  const Node end = getEnd(parent);
  Node sibling = getEnd(node);
  while (sibling < end && !isElement(sibling)) sibling = getEnd(sibling);
  return sibling < end ? sibling : noNode;
}

const KYRString* XmlDocument::findAttribute(Node node, Name name) const noexcept {
  const std::uint32_t end = nodes_[node + 1].firstAttribute;
  for (std::uint32_t index = nodes_[node].firstAttribute; index < end; ++index) {
    if (attributes_[index].name == name) return &texts_[attributes_[index].value];
  }
  return nullptr;
}

std::size_t XmlDocument::getMemorySize() const noexcept {
  std::size_t size = 0;
  for (const XmlDocument* each = this; each != nullptr; each = each->source_.get()) {
    size += sizeof *each + each->nodes_.getMemorySize() + each->attributes_.getMemorySize() +
            each->texts_.getMemorySize() + each->names_.getMemorySize() + each->arena_->getMemorySize();
  }
  return size;
}
