// ElementIndex: the elements of a file by composite key.
//
// An xmi:id alone does not identify an element here; its key is its id followed by the ids of
// everything above it, up to the model. An object of the reader has a key too, its id followed by
// those of its owners, and finds the element whose key is the same text.
#pragma once

#include <cstdint>
#include <unordered_set>
#include <utility>
#include <vector>

#include "extension/CompositeKey.h"
#include "extension/DocumentElement.h"
#include "uml/UMLForward.h"

class ElementIndex {
 public:
  /// Indexes all elements with a non-empty xmi:id; the first of a key stays. `objectCount` is the number
  /// of objects that the reader made.
  ElementIndex(const XmlDocument& document, std::size_t objectCount);
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
    enum class State : std::uint8_t { unseen, open, complete } state = State::unseen;
  };

  // A place in a key: the text behind its first characters.
  struct Place {
    std::uint64_t key;  // the number of a record, of an element without one, or of an object without one
    std::size_t skipped;
    bool operator==(const Place& other) const noexcept = default;
  };
  using Places = std::pair<Place, Place>;
  struct PlacesHash {
    std::size_t operator()(const Places& places) const noexcept;
  };
  class ElementChain;
  class ObjectChain;

  const KYRString& idOf(XmlDocument::Node node) const noexcept;
  bool endsChain(XmlDocument::Node node) const noexcept;
  const KYRString& pieceOf(XmlDocument::Node node) const;
  Number add(XmlDocument::Node node, Number parent, const CompositeKey& key);
  template <class IsSame>
  Number* findSlot(const CompositeKey& key, IsSame isSame);
  void makeRoom();
  Number findRecord(const CompositeKey& key, const UMLElement& object, Number ownerRecord);
  Known& knownOf(const UMLElement& object) noexcept;
  const Known& knownOf(const UMLElement& object) const noexcept;
  const Known& know(const UMLElement& object);
  template <class Chain>
  bool sameText(XmlDocument::Node node, Chain other);

  const XmlDocument& document_;
  XmlDocument::Name idName_;
  std::vector<char> isModelTag_;  // by name: the tag ends a chain
  std::vector<Record> records_;
  std::vector<Number> slots_;             // open addressing over the records; none marks a free slot
  std::vector<Known> objects_;            // by reading number
  std::vector<Number> recordOf_;          // by node: the record of its key; none without an id
  std::vector<const UMLElement*> chain_;  // room for `know`
  // Places from which two chains have been found to go on alike, and those of the walk under way.
  std::unordered_set<Places, PlacesHash> alike_;
  std::vector<Places> walk_;
  std::uint64_t comparisons_ = 0;
};
