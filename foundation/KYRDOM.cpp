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

// A subtree of so few nodes is walked at each question: lists of its children would cost more.
constexpr XmlDocument::Node fewNodes = 32;

bool isSmall(const XmlDocument& document, XmlDocument::Node node) noexcept {
  return document.getEnd(node) - node <= fewNodes;
}

// Visits the child elements, of that name only unless it is textName, until `visit` says true.
template <class Visit>
void walkChildren(const XmlDocument& document, XmlDocument::Node parent, XmlDocument::Name name,
                  Visit visit) {
  for (XmlDocument::Node node = document.getFirstChild(parent); node != XmlDocument::noNode;
       node = document.getNextSibling(node)) {
    if ((name == XmlDocument::textName || document.getName(node) == name) && visit(node)) return;
  }
}

int countChildren(const XmlDocument& document, XmlDocument::Node parent, XmlDocument::Name name) {
  int count = 0;
  walkChildren(document, parent, name, [&](XmlDocument::Node) {
    ++count;
    return false;
  });
  return count;
}

// noNode out of range.
XmlDocument::Node findChild(const XmlDocument& document, XmlDocument::Node parent, XmlDocument::Name name,
                            int index) {
  XmlDocument::Node found = XmlDocument::noNode;
  walkChildren(document, parent, name, [&](XmlDocument::Node node) {
    if (index-- != 0) return false;
    found = node;
    return true;
  });
  return found;
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
  if (!children_) children_ = tree_->listChildren(node_);
  return children_.get();
}

const XmlChildren* KYRDOMElement::getChildrenByName() const {
  getChildren();
  if (children_->byName.empty()) tree_->listByName(*children_);
  return children_.get();
}

int KYRDOMElement::getElementCount() const {
  const XmlDocument& document = tree_->getDocument();
  if (isSmall(document, node_)) return countChildren(document, node_, XmlDocument::textName);
  return static_cast<int>(getChildren()->nodes.size());
}

KYRDOMElement* KYRDOMElement::getElement(int index) const {
  const XmlDocument& document = tree_->getDocument();
  if (isSmall(document, node_)) {
    return tree_->getElement(findChild(document, node_, XmlDocument::textName, index));
  }
  if (index < 0 || index >= getElementCount()) return nullptr;
  return tree_->getElement(children_->nodes[static_cast<std::size_t>(index)]);
}

int KYRDOMElement::getElementCount(const KYRString& tag) const {
  const XmlDocument& document = tree_->getDocument();
  const XmlDocument::Name name = document.findName(tag);
  if (name == XmlDocument::textName) return 0;
  if (isSmall(document, node_)) return countChildren(document, node_, name);
  const ByName found = findByName(*getChildrenByName(), name);
  return static_cast<int>(found.second - found.first);
}

KYRDOMElement* KYRDOMElement::getElement(const KYRString& tag, int index) const {
  const XmlDocument& document = tree_->getDocument();
  const XmlDocument::Name name = document.findName(tag);
  if (name == XmlDocument::textName || index < 0) return nullptr;
  if (isSmall(document, node_)) return tree_->getElement(findChild(document, node_, name, index));
  const ByName found = findByName(*getChildrenByName(), name);
  if (index >= found.second - found.first) return nullptr;
  return tree_->getElement(static_cast<XmlDocument::Node>(found.first[index] & 0xFFFFFFFFU));
}

KYRDOMElement* KYRDOMElement::getFirstElement(const KYRString& tag) const { return getElement(tag, 0); }

KYRString KYRDOMElement::getPosition() const {
  const XmlDocument& document = tree_->getDocument();
  return KYRStdMessages::XML_POSITION.toString(toText(document.getLine(node_)),
                                               toText(document.getColumn(node_)));
}
