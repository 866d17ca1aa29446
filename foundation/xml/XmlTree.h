// XmlTree: the state behind the elements of a tree reading.
//
// The document itself knows nothing of KYRDOMElement; the tree makes one for each node that is asked
// for, at the first time, and gives out the same one ever after. What an element knows of its children
// is listed at the first question about them, so each further answer takes no walk, in whatever order
// a caller asks.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

#include "foundation/KYRDOM.h"
#include "foundation/xml/XmlDocument.h"

/// The child elements of one element.
struct XmlChildren {
  std::vector<XmlDocument::Node> nodes;  // in document order
  /// The same by name: number of the name in the upper half, the node in the lower one, ascending.
  /// Filled at the first question about a tag.
  std::vector<std::uint64_t> byName;
};

class KYR_EXPORT XmlTree {
 public:
  using Node = XmlDocument::Node;

  /// The root element, whose owner owns the tree. The document must not be empty.
  static KYRDOMElement* makeRoot(std::shared_ptr<const XmlDocument> document);
  XmlTree(const XmlTree&) = delete;
  XmlTree& operator=(const XmlTree&) = delete;
  ~XmlTree();

  /// The tree that an element belongs to.
  static XmlTree& of(const KYRDOMElement& element) noexcept { return *element.tree_; }
  const XmlDocument& getDocument() const noexcept { return *document_; }
  KYRDOMElement* getElement(Node node);
  /// Lists the child elements of `parent`.
  std::unique_ptr<XmlChildren> listChildren(Node parent);
  void listByName(XmlChildren& children);
  /// Nodes visited so far to list children; tests see by it that the cost stays linear.
  std::uint64_t getStepCount() const noexcept { return steps_; }

 private:
  // Lets the deque make what only the tree may make.
  struct Holder {
    Holder(XmlTree* tree, Node node) noexcept : element(tree, node) {}
    KYRDOMElement element;
  };
  static constexpr unsigned int pageShift = 10;
  using Page = std::array<KYRDOMElement*, std::size_t{1} << pageShift>;

  explicit XmlTree(std::shared_ptr<const XmlDocument> document);
  KYRDOMElement*& findSlot(Node node);

  std::shared_ptr<const XmlDocument> document_;
  std::vector<std::unique_ptr<Page>> pages_;  // the elements by node; made where they are needed
  std::deque<Holder> elements_;               // all but the root, which owns the tree
  std::uint64_t steps_ = 0;
};
