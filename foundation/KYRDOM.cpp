// KYRDOM, KYRDOMElement: a face of the immutable document; see foundation/xml/XmlTree.h.
#include "foundation/KYRDOM.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "foundation/xml/XmlDocumentReader.h"
#include "foundation/xml/XmlPosition.h"
#include "foundation/xml/XmlTree.h"

KYRDOM::KYRDOM(KYRLog*) {}

KYRDOM::~KYRDOM() = default;

namespace {

KYRDOMElement* makeRoot(std::shared_ptr<const XmlDocument> document) {
  return document->isEmpty() ? nullptr : XmlTree::makeRoot(std::move(document));
}

}  // namespace

KYRDOMElement* KYRDOM::parseFile(const KYRFile& file) { return makeRoot(readXmlFile(file, nullptr, false)); }

KYRDOMElement* KYRDOM::parseFileAsWritten(const KYRFile& file) {
  return makeRoot(readXmlFile(file, nullptr, false, XmlReading::asWritten));
}

namespace {

// The children of one name as a range of XmlChildren::byName.
using ByName =
    std::pair<std::vector<std::uint64_t>::const_iterator, std::vector<std::uint64_t>::const_iterator>;

ByName findByName(const XmlChildren& children, XmlDocument::Name name) {
  const std::uint64_t first = std::uint64_t{name} << 32;
  const auto begin = std::lower_bound(children.byName.begin(), children.byName.end(), first);
  return {begin, std::upper_bound(begin, children.byName.end(), first | 0xFFFFFFFFU)};
}

}  // namespace

KYRDOMElement::KYRDOMElement(XmlTree* tree, unsigned int node) noexcept : tree_(tree), node_(node) {}

KYRDOMElement::~KYRDOMElement() {
  const bool isRoot = node_ == 0;
  if (isRoot) delete tree_;
}

const KYRString& KYRDOMElement::getTagName() const noexcept { return tree_->getDocument().getTag(node_); }

const KYRString& KYRDOMElement::getValue() const {
  if (isValueKnown_) return value_;
  const XmlDocument& document = tree_->getDocument();
  for (XmlDocument::Node node = node_ + 1; node < document.getEnd(node_); node = document.getEnd(node)) {
    if (document.isElement(node)) continue;
    if (value_.isEmpty()) {
      value_.borrow(document.getText(node));
    } else {
      value_ += document.getText(node);
    }
  }
  isValueKnown_ = true;
  return value_;
}

const KYRString& KYRDOMElement::getAttribute(const KYRString& name) const noexcept {
  const XmlDocument& document = tree_->getDocument();
  const KYRString* const value = document.findAttribute(node_, document.findName(name));
  return value == nullptr ? KYRString::getEmptyString() : *value;
}

bool KYRDOMElement::hasAttribute(const KYRString& name) const noexcept {
  const XmlDocument& document = tree_->getDocument();
  return document.findAttribute(node_, document.findName(name)) != nullptr;
}

KYRDOMElement* KYRDOMElement::getParent() const {
  return tree_->getElement(tree_->getDocument().getParent(node_));
}

const XmlChildren* KYRDOMElement::getChildren() const {
  const bool isLeaf = tree_->getDocument().getEnd(node_) == node_ + 1;
  if (!children_ && !isLeaf) children_ = tree_->listChildren(node_);
  return children_.get();
}

const XmlChildren* KYRDOMElement::getChildrenByName() const {
  getChildren();
  if (children_ && children_->byName.empty()) tree_->listByName(*children_);
  return children_.get();
}

int KYRDOMElement::getElementCount() const {
  const XmlChildren* const children = getChildren();
  return children == nullptr ? 0 : static_cast<int>(children->nodes.size());
}

KYRDOMElement* KYRDOMElement::getElement(int index) const {
  if (index < 0 || index >= getElementCount()) return nullptr;
  return tree_->getElement(children_->nodes[static_cast<std::size_t>(index)]);
}

int KYRDOMElement::getElementCount(const KYRString& tag) const {
  const XmlChildren* const children = getChildrenByName();
  if (children == nullptr) return 0;
  const ByName found = findByName(*children, tree_->getDocument().findName(tag));
  return static_cast<int>(found.second - found.first);
}

KYRDOMElement* KYRDOMElement::getElement(const KYRString& tag, int index) const {
  const XmlChildren* const children = getChildrenByName();
  if (children == nullptr || index < 0) return nullptr;
  const ByName found = findByName(*children, tree_->getDocument().findName(tag));
  if (index >= found.second - found.first) return nullptr;
  return tree_->getElement(static_cast<XmlDocument::Node>(found.first[index] & 0xFFFFFFFFU));
}

KYRDOMElement* KYRDOMElement::getFirstElement(const KYRString& tag) const { return getElement(tag, 0); }

KYRString KYRDOMElement::getPosition() const {
  const XmlDocument& document = tree_->getDocument();
  return KYRStdMessages::XML_POSITION.toString(toText(document.getLine(node_)),
                                               toText(document.getColumn(node_)));
}
