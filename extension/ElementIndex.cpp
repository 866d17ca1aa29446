// Two keys with equal hash and length are nearly always the same chain: then the ids are equal and so
// are the records above, which takes one comparison. Only keys that spell the same text with other
// pieces are compared piece by piece, and no further than to where both are known to go on alike: a file
// made of such keys would cost its depth for each element otherwise.
#include "extension/ElementIndex.h"

#include <algorithm>
#include <bit>

#include "uml/UMLElement.h"

namespace {

// Most elements with an id are objects of the reader, so their number tells how many records there will be.
std::size_t slotsFor(std::size_t objectCount) noexcept {
  constexpr std::size_t fewest = 1024;
  return std::bit_ceil(std::max(fewest, objectCount * 2));
}

const KYRString& blank() {
  static const KYRString text(" ");
  return text;
}

// Walks no longer than this are not remembered, so that ordinary files pay nothing.
constexpr std::size_t longWalk = 32;

// Added to the numbers of keys that have no record.
constexpr std::uint64_t ofElement = std::uint64_t{1} << 32;
constexpr std::uint64_t ofObject = std::uint64_t{2} << 32;

}  // namespace

// The pieces of an object's key, from the object up.
class ElementIndex::ObjectChain {
 public:
  ObjectChain(const ElementIndex& index, const UMLElement* object) noexcept
      : index_(index), object_(object) {}
  bool atEnd() const noexcept { return object_ == nullptr; }
  std::string_view piece() const noexcept {
    return object_->id.isEmpty() ? blank().view() : object_->id.view();
  }
  // The same for all keys that are known to be one text, however it is cut.
  std::uint64_t key() const noexcept {
    const Number record = index_.knownOf(*object_).record;
    return record != none ? record : ofObject + object_->readingNumber;
  }
  void next() noexcept { object_ = object_->owner; }

 private:
  const ElementIndex& index_;
  const UMLElement* object_;
};

// The pieces of an element's key, from the element up.
class ElementIndex::ElementChain {
 public:
  ElementChain(const ElementIndex& index, XmlDocument::Node node) noexcept : index_(index), node_(node) {}
  bool atEnd() const noexcept { return node_ == XmlDocument::noNode; }
  std::string_view piece() const { return index_.pieceOf(node_).view(); }
  std::uint64_t key() const noexcept {
    const Number record = index_.recordOf_[node_];
    return record != none ? record : ofElement + node_;
  }
  void next() noexcept {
    node_ = index_.endsChain(node_) ? XmlDocument::noNode : index_.document_.getParent(node_);
  }

 private:
  const ElementIndex& index_;
  XmlDocument::Node node_;
};

std::size_t ElementIndex::PlacesHash::operator()(const Places& places) const noexcept {
  constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;
  std::uint64_t hash = 0;
  for (const std::uint64_t part : {places.first.key, std::uint64_t{places.first.skipped}, places.second.key,
                                   std::uint64_t{places.second.skipped}}) {
    hash = (hash ^ part) * factor;
    hash ^= hash >> 32U;
  }
  return static_cast<std::size_t>(hash);
}

ElementIndex::ElementIndex(const XmlDocument& document, std::size_t objectCount)
    : document_(document),
      idName_(document.findName("xmi:id")),
      isModelTag_(document.getNameCount()),
      slots_(slotsFor(objectCount), none),
      objects_(objectCount),
      recordOf_(document.getNodeCount(), none) {
  records_.reserve(objectCount);
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
    if (!idOf(node).isEmpty()) recordOf_[node] = add(node, parent, key);
    open.push_back({node, key, recordOf_[node]});
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

template <class Chain>
bool ElementIndex::sameText(XmlDocument::Node node, Chain other) {
  // What is left of a piece, and where in a key that is.
  struct Rest {
    std::string_view text;
    Place place = {};
    void skip(std::size_t count) noexcept {
      text.remove_prefix(count);
      place.skipped += count;
    }
  };
  ElementChain own(*this, node);
  Rest ownRest;
  Rest otherRest;
  const auto fill = [](auto& chain, Rest& rest) {
    while (rest.text.empty() && !chain.atEnd()) {
      rest = {chain.piece(), {chain.key(), 0}};
      chain.next();
    }
    return !rest.text.empty();
  };
  walk_.clear();
  while (true) {
    const bool hasOwn = fill(own, ownRest);
    const bool hasOther = fill(other, otherRest);
    if (!hasOwn || !hasOther) {
      if (hasOwn != hasOther) return false;
      break;
    }
    const Places places(ownRest.place, otherRest.place);
    if (places.first == places.second || alike_.count(places) != 0) break;
    walk_.push_back(places);
    ++comparisons_;
    const std::size_t count = std::min(ownRest.text.size(), otherRest.text.size());
    if (ownRest.text.substr(0, count) != otherRest.text.substr(0, count)) return false;
    ownRest.skip(count);
    otherRest.skip(count);
  }
  if (walk_.size() > longWalk) alike_.insert(walk_.begin(), walk_.end());
  return true;
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
  Number* const slot = findSlot(key, [&](const Record& record) {
    if (parent != none && record.parent == parent && pieceOf(record.node) == pieceOf(node)) return true;
    return sameText(record.node, ElementChain(*this, node));
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
    const ObjectChain chain(*this, &object);
    if (sameChain && pieceOf(record.node).view() == chain.piece()) return true;
    return sameText(record.node, chain);
  });
}

ElementIndex::Known& ElementIndex::knownOf(const UMLElement& object) noexcept {
  return objects_[object.readingNumber];
}

const ElementIndex::Known& ElementIndex::knownOf(const UMLElement& object) const noexcept {
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
    known.key = CompositeKey(ObjectChain(*this, &element).piece());
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
