// Open addressing behind a small direct-mapped cache of the names met last.
#include "foundation/xml/XmlNameTable.h"

#include "foundation/TextHash.h"

namespace {

constexpr std::size_t firstSlots = 512;

bool isName(const char* characters, std::size_t length, std::string_view name) noexcept {
  return length == name.size() && TextHash::areEqual(characters, name.data(), length);
}

}  // namespace

XmlNameTable::XmlNameTable() : slots_(firstSlots), seed_(TextHash::seed()) {}

std::uint32_t XmlNameTable::hashOf(std::string_view name) const noexcept {
  return static_cast<std::uint32_t>(TextHash::of(name, seed_));
}

const XmlNameTable::Slot& XmlNameTable::findSlot(std::string_view name, std::uint32_t hash) const noexcept {
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
    const Slot& slot = slots_[at];
    if (slot.number == none || (slot.hash == hash && isName(slot.characters, slot.length, name))) return slot;
  }
}

std::uint32_t XmlNameTable::find(std::string_view name) const noexcept {
  return findSlot(name, hashOf(name)).number;
}

std::uint32_t XmlNameTable::intern(std::string_view name, XmlTextArena& arena) {
  const auto byte = [name](std::size_t index) -> std::size_t {
    return static_cast<unsigned char>(name[index]);
  };
  const std::size_t key =
      name.empty() ? 0 : name.size() + 3 * byte(0) + 5 * byte(name.size() / 2) + 7 * byte(name.size() - 1);
  Slot& recent = recent_[key % recentCount];
  if (recent.number == none || !isName(recent.characters, recent.length, name)) {
    recent = findOrEnter(name, arena);
  }
  return recent.number;
}

const XmlNameTable::Slot& XmlNameTable::findOrEnter(std::string_view name, XmlTextArena& arena) {
  const std::uint32_t hash = hashOf(name);
  const Slot& found = findSlot(name, hash);
  if (found.number != none) return found;
  if (2 * (names_.size() + 1) > slots_.size()) {
    std::vector<Slot> old(2 * slots_.size());
    old.swap(slots_);
    for (const Slot& slot : old) {
      if (slot.number != none) put(slot);
    }
  }
  const std::uint32_t number = getCount();
  const KYRString& stored = names_.appendMade([&] { return KYRString::borrowed(arena.store(name)); });
  return put({stored.getCharacters(), stored.getLength(), hash, number});
}

XmlNameTable::Slot& XmlNameTable::put(const Slot& slot) noexcept {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = slot.hash & mask;
  while (slots_[at].number != none) at = (at + 1) & mask;
  return slots_[at] = slot;
}
