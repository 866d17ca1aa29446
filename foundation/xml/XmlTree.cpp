// Elements are found over pages of pointers by node number; pages are made where they are needed.
#include "foundation/xml/XmlTree.h"

#include <algorithm>
#include <utility>

XmlTree::XmlTree(std::shared_ptr<const XmlDocument> document)
    : document_(std::move(document)), pages_((document_->getNodeCount() >> pageShift) + 1) {}

XmlTree::~XmlTree() = default;

KYRDOMElement* XmlTree::makeRoot(std::shared_ptr<const XmlDocument> document) {
  std::unique_ptr<XmlTree> tree(new XmlTree(std::move(document)));
  KYRDOMElement*& slot = tree->findSlot(0);
  slot = new KYRDOMElement(tree.get(), 0);
  tree.release();  // ownership: ~KYRDOMElement of the root
  return slot;
}

KYRDOMElement*& XmlTree::findSlot(Node node) {
  std::unique_ptr<Page>& page = pages_[node >> pageShift];
  if (!page) page = std::make_unique<Page>();
  return (*page)[node & (Page().size() - 1)];
}

KYRDOMElement* XmlTree::getElement(Node node) {
  if (node == XmlDocument::noNode) return nullptr;
  KYRDOMElement*& slot = findSlot(node);
  if (slot == nullptr) slot = &elements_.emplace_back(this, node).element;
  return slot;
}

std::unique_ptr<XmlChildren> XmlTree::listChildren(Node parent) {
  auto children = std::make_unique<XmlChildren>();
  for (Node node = parent + 1; node < document_->getEnd(parent); node = document_->getEnd(node)) {
    ++steps_;
    if (document_->isElement(node)) children->nodes.push_back(node);
  }
  return children;
}

void XmlTree::listByName(XmlChildren& children) {
  children.byName.reserve(children.nodes.size());
  for (const Node node : children.nodes) {
    ++steps_;
    children.byName.push_back((std::uint64_t{document_->getName(node)} << 32) | node);
  }
  // Mostly all children bear one name, which leaves nothing to sort.
  if (!std::is_sorted(children.byName.begin(), children.byName.end())) {
    std::sort(children.byName.begin(), children.byName.end());
  }
}
