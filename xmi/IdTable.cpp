// Open addressing over the interned ids.
#include "xmi/IdTable.h"

#include <utility>

#include "foundation/ShownText.h"

namespace {
constexpr std::size_t firstSlots = 1024;
}

IdTable::IdTable() : entries_(1), slots_(firstSlots) {}

IdTable::Number IdTable::intern(const KYRString& id, std::uint32_t hash) {
  if (id.isEmpty()) return emptyId;
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = hash & mask;
  for (; slots_[at].number != emptyId; at = (at + 1) & mask) {
    if (slots_[at].hash != hash) continue;
    const KYRString& known = entries_[slots_[at].number].text;
    if (known.getCharacters() == id.getCharacters() || known == id) return slots_[at].number;
  }
  Slot* free = &slots_[at];
  if (entries_.size() * 3 > slots_.size() * 2) {
    grow();
    free = &findFree(hash);
  }
  entries_.emplace_back().text = shownText(id);
  *free = {hash, static_cast<Number>(entries_.size() - 1)};
  return free->number;
}

void IdTable::empty() {
  std::vector<Entry>(1).swap(entries_);
  std::vector<Slot>(firstSlots).swap(slots_);
}

void IdTable::enter(Number id, UMLElement* object) noexcept {
  if (id != emptyId && entries_[id].object == nullptr) entries_[id].object = object;
}

IdTable::Slot& IdTable::findFree(std::uint32_t hash) noexcept {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = hash & mask;
  while (slots_[at].number != emptyId) at = (at + 1) & mask;
  return slots_[at];
}

void IdTable::grow() {
  std::vector<Slot> old(slots_.size() * 2);
  old.swap(slots_);
  for (const Slot& slot : old) {
    if (slot.number != emptyId) findFree(slot.hash) = slot;
  }
}
