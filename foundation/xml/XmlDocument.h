// XmlDocument: an XML file as an immutable arena.
//
// The nodes stand in document order in one array; a node is an element or a run of character data.
// The subtree of a node is the range [node, getEnd(node)), so every walk is a loop and nothing here
// is recursive. Names are interned: equal names have equal numbers and share their characters.
// Attributes stand in one array, in order of their elements. All texts are KYRString views into
// blocks of the arena, each ending in a zero; texts that repeat within some distance, such as
// indentation, "false" or "uml:Property", are kept once. Everything is freed at once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "foundation/BlockArray.h"
#include "foundation/Export.h"
#include "foundation/KYRString.h"
#include "foundation/xml/XmlNameTable.h"
#include "foundation/xml/XmlTextArena.h"

class KYR_EXPORT XmlDocument {
 public:
  using Node = std::uint32_t;
  using Name = std::uint32_t;
  static constexpr Node noNode = 0xFFFFFFFFU;
  static constexpr Name textName = 0xFFFFFFFFU;  // the "name" of character data

  ~XmlDocument();
  XmlDocument(const XmlDocument&) = delete;
  XmlDocument& operator=(const XmlDocument&) = delete;

  /// Number of nodes, character data included. Node 0 is the root element.
  Node getNodeCount() const noexcept { return static_cast<Node>(nodes_.size()) - 1; }
  bool isEmpty() const noexcept { return getNodeCount() == 0; }
  bool isElement(Node node) const noexcept { return nodes_[node].name != textName; }
  Name getName(Node node) const noexcept { return nodes_[node].name; }
  const KYRString& getNameText(Name name) const noexcept { return names_.getText(name); }
  Name getNameCount() const noexcept { return names_.getCount(); }
  /// The number of a name; textName when no tag or attribute of the document bears it.
  Name findName(const KYRString& text) const noexcept;
  const KYRString& getTag(Node node) const noexcept { return names_.getText(nodes_[node].name); }
  /// noNode at the root.
  Node getParent(Node node) const noexcept { return nodes_[node].parent; }
  /// The node behind the subtree.
  Node getEnd(Node node) const noexcept { return nodes_[node].end; }
  /// First child element, or noNode.
  Node getFirstChild(Node node) const noexcept;
  /// Next sibling element, or noNode.
  Node getNextSibling(Node node) const noexcept;
  std::uint32_t getAttributeCount(Node node) const noexcept {
    return nodes_[node + 1].firstAttribute - nodes_[node].firstAttribute;
  }
  Name getAttributeName(Node node, std::uint32_t index) const noexcept {
    return attributes_[nodes_[node].firstAttribute + index].name;
  }
  const KYRString& getAttributeValue(Node node, std::uint32_t index) const noexcept {
    return texts_[attributes_[nodes_[node].firstAttribute + index].value];
  }
  /// The value of the attribute of exactly that name, or null.
  const KYRString* findAttribute(Node node, Name name) const noexcept;
  /// The characters of a character data node.
  const KYRString& getText(Node node) const noexcept { return texts_[nodes_[node].lineOrText]; }
  /// Line of the element's "<", from 1.
  std::uint32_t getLine(Node node) const noexcept { return nodes_[node].lineOrText; }
  /// Column of the element's "<", from 1, in characters.
  std::uint32_t getColumn(Node node) const noexcept { return nodes_[node].column; }
  /// What the characters of all names and texts live in. It may be kept longer than the document.
  std::shared_ptr<const XmlTextArena> getTexts() const noexcept { return arena_; }
  /// Bytes that the document holds.
  std::size_t getMemorySize() const noexcept;

 private:
  friend class XmlDocumentBuilder;
  friend class XmlDocumentEditor;
  XmlDocument();

  struct NodeRecord {
    Name name;
    Node parent;
    Node end;
    std::uint32_t firstAttribute;
    std::uint32_t lineOrText;
    std::uint32_t column;
  };
  struct AttributeRecord {
    Name name;
    std::uint32_t value;  // number of the text
  };

  BlockArray<NodeRecord> nodes_;  // one more than nodes: the sentinel ends the last attribute range
  BlockArray<AttributeRecord> attributes_;
  BlockArray<KYRString> texts_;
  XmlNameTable names_;
  std::shared_ptr<XmlTextArena> arena_;
  std::shared_ptr<const XmlDocument> source_;  // a rewritten document shares the texts of this one
};
