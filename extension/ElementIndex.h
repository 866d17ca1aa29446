// ElementIndex: the elements of a file by composite key.
//
// An xmi:id alone does not identify an element here; its key is its id followed by the ids of
// everything above it, up to the model. An object of the reader has a key too, its id followed by
// those of its owners, and finds the element whose key is the same text.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "extension/CompositeKey.h"
#include "extension/DocumentElement.h"
#include "uml/UMLForward.h"

class ElementIndex {
 public:
  /// Indexes all elements with a non-empty xmi:id; the first of a key stays.
  explicit ElementIndex(const XmlDocument& document);
  /// The element for an object; none when no key is equal, or when the object's owners run in a
  /// circle, since it has no key then. Owners must not change between calls.
  DocumentElement find(const UMLElement& object);
  /// Pieces of keys compared so far; tests see by it that the cost stays linear.
  std::uint64_t getComparisonCount() const noexcept { return comparisons_; }

 private:
  using Number = std::uint32_t;
  static constexpr Number none = 0xFFFFFFFFU;
  static constexpr Number top = none - 1;  // stands above the end of every chain

  struct Record {
    XmlDocument::Node node;
    Number parent;  // record of the element above, `top` at a chain's end, or none without one
    CompositeKey key;
  };
  // What is known of an object: its key and the record it found.
  struct Known {
    CompositeKey key;
    Number record = none;
    bool hasKey = true;
  };

  const KYRString& idOf(XmlDocument::Node node) const noexcept;
  bool endsChain(XmlDocument::Node node) const noexcept;
  const KYRString& pieceOf(XmlDocument::Node node) const;
  Number add(XmlDocument::Node node, Number parent, const CompositeKey& key);
  Number findRecord(const CompositeKey& key, const UMLElement& object, Number ownerRecord);
  const Known& know(const UMLElement& object);
  template <class Chain>
  bool sameText(XmlDocument::Node node, Chain other);

  const XmlDocument& document_;
  XmlDocument::Name idName_;
  std::vector<char> isModelTag_;  // by name: the tag ends a chain
  std::vector<Record> records_;
  std::unordered_multimap<std::uint64_t, Number> recordsByHash_;
  std::unordered_map<const UMLElement*, Known> objects_;
  std::uint64_t comparisons_ = 0;
};
