// Two keys with equal hash and length are nearly always the same chain: then the ids are equal and so
// are the records above, which takes one comparison. Only keys that spell the same text with other
// pieces are compared piece by piece.
#include "extension/ElementIndex.h"

#include <algorithm>

#include "uml/UMLElement.h"

namespace {

constexpr std::size_t firstSlots = 1024;

const KYRString& blank() {
  static const KYRString text(" ");
  return text;
}

// The pieces of an object's key, from the object up.
class ObjectChain {
 public:
  explicit ObjectChain(const UMLElement* object) noexcept : object_(object) {}
  bool atEnd() const noexcept { return object_ == nullptr; }
  std::string_view piece() const noexcept {
    return object_->id.isEmpty() ? blank().view() : object_->id.view();
  }
  void next() noexcept { object_ = object_->owner; }

 private:
  const UMLElement* object_;
};

}  // namespace

ElementIndex::ElementIndex(const XmlDocument& document, std::size_t objectCount)
    : document_(document),
      idName_(document.findName("xmi:id")),
      isModelTag_(document.getNameCount()),
      slots_(firstSlots, none),
      objects_(objectCount) {
  for (XmlDocument::Name name = 0; name < document.getNameCount(); ++name) {
    isModelTag_[name] = equalsIgnoringCase(document.getNameText(name).view(), "uml:Model") ? 1 : 0;
  }
  struct Open {
    XmlDocument::Node node;
    CompositeKey key;
    Number record;
  };
  std::vector<Open> open;
  for (XmlDocument::Node node = 0; node < document.getNodeCount(); ++node) {
    if (!document.isElement(node)) continue;
    while (!open.empty() && document.getEnd(open.back().node) <= node) open.pop_back();
    CompositeKey key(pieceOf(node).view());
    Number parent = top;
    if (!endsChain(node)) {
      parent = open.back().record;
      key = key.followedBy(open.back().key);
    }
    const Number record = idOf(node).isEmpty() ? none : add(node, parent, key);
    open.push_back({node, key, record});
  }
}

const KYRString& ElementIndex::idOf(XmlDocument::Node node) const noexcept {
  const KYRString* const id = document_.findAttribute(node, idName_);
  return id == nullptr ? KYRString::getEmptyString() : *id;
}

bool ElementIndex::endsChain(XmlDocument::Node node) const noexcept {
  return document_.getParent(node) == XmlDocument::noNode || isModelTag_[document_.getName(node)] != 0;
}

const KYRString& ElementIndex::pieceOf(XmlDocument::Node node) const {
  const KYRString& id = idOf(node);
  const bool isBlank = id.isEmpty() || id == blank();
  if (!isBlank) return id;
  if (!endsChain(node)) return blank();
  return DocumentElement(document_, node).attribute("name");
}

namespace {

// The pieces of an element's key, from the element up.
template <class Piece, class Ends>
class ElementChain {
 public:
  ElementChain(const XmlDocument& document, XmlDocument::Node node, Piece piece, Ends ends)
      : document_(document), node_(node), piece_(piece), ends_(ends) {}
  bool atEnd() const noexcept { return node_ == XmlDocument::noNode; }
  std::string_view piece() const { return piece_(node_); }
  void next() noexcept { node_ = ends_(node_) ? XmlDocument::noNode : document_.getParent(node_); }

 private:
  const XmlDocument& document_;
  XmlDocument::Node node_;
  Piece piece_;
  Ends ends_;
};

}  // namespace

template <class Chain>
bool ElementIndex::sameText(XmlDocument::Node node, Chain other) {
  const auto piece = [this](XmlDocument::Node at) { return pieceOf(at).view(); };
  const auto ends = [this](XmlDocument::Node at) { return endsChain(at); };
  ElementChain<decltype(piece), decltype(ends)> own(document_, node, piece, ends);
  std::string_view ownRest;
  std::string_view otherRest;
  const auto fill = [](auto& chain, std::string_view& rest) {
    while (rest.empty() && !chain.atEnd()) {
      rest = chain.piece();
      chain.next();
    }
    return !rest.empty();
  };
  while (true) {
    const bool hasOwn = fill(own, ownRest);
    const bool hasOther = fill(other, otherRest);
    if (!hasOwn || !hasOther) return hasOwn == hasOther;
    ++comparisons_;
    const std::size_t count = std::min(ownRest.size(), otherRest.size());
    if (ownRest.substr(0, count) != otherRest.substr(0, count)) return false;
    ownRest.remove_prefix(count);
    otherRest.remove_prefix(count);
  }
}

// The slot of the record with that key, or the free one where it belongs.
template <class IsSame>
ElementIndex::Number* ElementIndex::findSlot(const CompositeKey& key, IsSame isSame) {
  std::size_t slot = key.hash() & (slots_.size() - 1);
  while (slots_[slot] != none) {
    const Record& record = records_[slots_[slot]];
    if (record.key == key) {
      ++comparisons_;
      if (isSame(record)) break;
    }
    slot = (slot + 1) & (slots_.size() - 1);
  }
  return &slots_[slot];
}

void ElementIndex::makeRoom() {
  if (records_.size() * 2 < slots_.size()) return;
  slots_.assign(slots_.size() * 2, none);
  for (std::size_t number = 0; number < records_.size(); ++number) {
    std::size_t slot = records_[number].key.hash() & (slots_.size() - 1);
    while (slots_[slot] != none) slot = (slot + 1) & (slots_.size() - 1);
    slots_[slot] = static_cast<Number>(number);
  }
}

ElementIndex::Number ElementIndex::add(XmlDocument::Node node, Number parent, const CompositeKey& key) {
  makeRoom();
  const auto piece = [this](XmlDocument::Node element) { return pieceOf(element).view(); };
  const auto ends = [this](XmlDocument::Node element) { return endsChain(element); };
  Number* const slot = findSlot(key, [&](const Record& record) {
    if (parent != none && record.parent == parent && pieceOf(record.node) == pieceOf(node)) return true;
    return sameText(record.node, ElementChain<decltype(piece), decltype(ends)>(document_, node, piece, ends));
  });
  if (*slot == none) {
    *slot = static_cast<Number>(records_.size());
    records_.push_back({node, parent, key});
  }
  return *slot;
}

ElementIndex::Number ElementIndex::findRecord(const CompositeKey& key, const UMLElement& object,
                                              Number ownerRecord) {
  return *findSlot(key, [&](const Record& record) {
    const bool sameChain = ownerRecord != none && record.parent == ownerRecord;
    if (sameChain && pieceOf(record.node).view() == ObjectChain(&object).piece()) return true;
    return sameText(record.node, ObjectChain(&object));
  });
}

ElementIndex::Known& ElementIndex::knownOf(const UMLElement& object) noexcept {
  return objects_[object.readingNumber];
}

// Owners are known before what they own. A chain that comes back to itself has no end, hence no key:
// its objects stay open.
const ElementIndex::Known& ElementIndex::know(const UMLElement& object) {
  std::vector<const UMLElement*>& chain = chain_;
  chain.clear();
  const UMLElement* at = &object;
  while (at != nullptr && knownOf(*at).state == Known::State::unseen) {
    knownOf(*at).state = Known::State::open;
    chain.push_back(at);
    at = at->owner;
  }
  if (at != nullptr && knownOf(*at).state == Known::State::open) return knownOf(object);
  while (!chain.empty()) {
    const UMLElement& element = *chain.back();
    chain.pop_back();
    Known& known = knownOf(element);
    known.key = CompositeKey(ObjectChain(&element).piece());
    Number ownerRecord = top;
    if (element.owner != nullptr) {
      const Known& owner = knownOf(*element.owner);
      known.key = known.key.followedBy(owner.key);
      ownerRecord = owner.record;
    }
    known.record = findRecord(known.key, element, ownerRecord);
    known.state = Known::State::complete;
  }
  return knownOf(object);
}

DocumentElement ElementIndex::find(const UMLElement& object) {
  const Known& known = know(object);
  if (known.state != Known::State::complete || known.record == none) return {};
  return {document_, records_[known.record].node};
}
