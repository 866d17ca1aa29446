// XmlDocumentEditor: a document that can be changed, and the new document that comes of it.
//
// It stands over a finished document, whose nodes keep their numbers here, and shows it as it is until
// something is changed. Nodes that are not touched still show the texts and attributes of that document, and
// as long as no node was added, moved or removed its array is the tree too; the first such change links the
// nodes. Each node of the result has the line and column of the node that it comes from, so messages name
// places in the file as it was written.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "foundation/xml/XmlDocument.h"

class KYR_EXPORT XmlDocumentEditor {
 public:
  using Node = XmlDocument::Node;
  using Name = XmlDocument::Name;
  static constexpr Node noNode = XmlDocument::noNode;

  /// The document must not be empty.
  explicit XmlDocumentEditor(std::shared_ptr<const XmlDocument> source);
  XmlDocumentEditor(const XmlDocumentEditor&) = delete;
  XmlDocumentEditor& operator=(const XmlDocumentEditor&) = delete;
  ~XmlDocumentEditor();

  // Names. Those of the source keep their numbers.
  Name intern(std::string_view name);
  const KYRString& getNameText(Name name) const noexcept { return result_->getNameText(name); }
  Name getNameCount() const noexcept { return result_->getNameCount(); }

  // Nodes. Node 0 is the root element; numbers stay when nodes are moved.
  Node getNodeCount() const noexcept {
    return heads_.empty() ? source_->getNodeCount() : static_cast<Node>(heads_.size());
  }
  /// False for character data and for what was removed.
  bool isElement(Node node) const noexcept { return getName(node) < removedName; }
  Name getName(Node node) const noexcept {
    return heads_.empty() ? source_->getName(node) : heads_[node].name;
  }
  const KYRString& getTag(Node node) const noexcept { return getNameText(getName(node)); }
  Node getParent(Node node) const noexcept {
    return links_.empty() ? source_->getParent(node) : links_[node].parent;
  }
  /// First child and next sibling, character data included; noNode when there is none.
  Node getFirst(Node node) const noexcept;
  Node getNext(Node node) const noexcept;
  /// The node that follows in document order, or noNode; `getBehind` passes over the node's children.
  Node getFollowing(Node node) const noexcept;
  Node getBehind(Node node) const noexcept;
  /// The characters directly inside an element, concatenated.
  KYRString getContent(Node node) const;
  std::uint32_t getLine(Node node) const noexcept { return source_->getLine(originOf(node)); }
  std::uint32_t getColumn(Node node) const noexcept { return source_->getColumn(originOf(node)); }

  // Attributes, by position.
  std::uint32_t getAttributeCount(Node node) const noexcept { return headOf(node).attributeCount; }
  Name getAttributeName(Node node, std::uint32_t index) const noexcept {
    return attributeAt(node, index).name;
  }
  const KYRString& getAttributeValue(Node node, std::uint32_t index) const noexcept {
    return result_->texts_[attributeAt(node, index).value];
  }
  /// The value of the attribute of exactly that name, or null.
  const KYRString* findAttribute(Node node, Name name) const noexcept {
    return name < isAttributeName_.size() && isAttributeName_[name] ? seekAttribute(node, name) : nullptr;
  }

  // Changes.
  void setName(Node node, Name name);
  /// Gives the attribute that value. A new one is put at position `index`, or last.
  void setAttribute(Node node, Name name, std::string_view value, std::uint32_t index = last);
  void renameAttribute(Node node, std::uint32_t index, Name name);
  /// Does nothing when there is none.
  void removeAttribute(Node node, Name name);
  /// Puts the attributes in the order of the positions given, which must name each one once.
  void orderAttributes(Node node, const std::vector<std::uint32_t>& positions);
  /// A new element that stands nowhere yet, at the place in the file of `origin`.
  Node addElement(Name name, Node origin);
  /// Moves a node, with all below it, to the end of `parent`, which must not lie below it.
  void append(Node parent, Node node);
  /// Moves a node before `sibling`.
  void insertBefore(Node sibling, Node node);
  /// Removes a node with all below it.
  void remove(Node node);

  bool isChanged() const noexcept { return !heads_.empty(); }
  /// The document as it stands now: the source itself when nothing was changed. The editor is of no use
  /// behind it. The result keeps the source alive.
  std::shared_ptr<const XmlDocument> build();

  static constexpr std::uint32_t last = 0xFFFFFFFFU;

 private:
  using AttributeRecord = XmlDocument::AttributeRecord;
  static constexpr Name removedName = XmlDocument::textName - 1;

  struct Head {
    Name name;
    std::uint32_t firstAttribute;  // in the source's attributes, or behind those in `attributes_`
    std::uint32_t attributeCount;
  };
  struct Link {
    Node parent;
    Node first;
    Node last;
    Node next;
    Node previous;
  };

  Head headOf(Node node) const noexcept {
    return heads_.empty() ? Head{source_->getName(node), source_->nodes_[node].firstAttribute,
                                 source_->getAttributeCount(node)}
                          : heads_[node];
  }
  const AttributeRecord& attributeOf(std::uint32_t number) const noexcept {
    return number < sourceAttributes_ ? source_->attributes_[number]
                                      : attributes_[number - sourceAttributes_];
  }
  const AttributeRecord& attributeAt(Node node, std::uint32_t index) const noexcept;
  const KYRString* seekAttribute(Node node, Name name) const noexcept;
  void noteAttributeName(Name name);
  AttributeRecord* ownAttributes(Node node, std::uint32_t room);
  std::uint32_t addText(std::string_view text);
  Node originOf(Node node) const noexcept {
    return node < source_->getNodeCount() ? node : origins_[node - source_->getNodeCount()];
  }
  void change();
  void link();
  void detach(Node node);
  void buildAlike();
  void buildAnew();
  void copyNode(Node node, Node parent, Node end);

  std::shared_ptr<const XmlDocument> source_;
  std::shared_ptr<XmlDocument> result_;      // from the start it holds all names and texts
  std::vector<Head> heads_;                  // empty as long as nothing was changed
  std::vector<Link> links_;                  // empty as long as the tree is that of the source
  std::vector<Node> origins_;                // of added nodes
  std::vector<AttributeRecord> attributes_;  // of the elements whose attributes were changed
  std::uint32_t sourceAttributes_;
  std::vector<bool> isAttributeName_;  // whether some attribute bears the name, or did
};
