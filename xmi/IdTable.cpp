// Open addressing over the interned ids.
#include "xmi/IdTable.h"

#include <utility>

namespace {
constexpr std::size_t firstSlots = 16384;
}

IdTable::IdTable() : entries_(1), slots_(firstSlots, emptyId) {}

IdTable::Number IdTable::intern(const KYRString& id) {
  if (id.isEmpty()) return emptyId;
  const std::uint32_t hash = id.hashCode();
  std::size_t slot = hash & (slots_.size() - 1);
  while (slots_[slot] != emptyId) {
    const Entry& entry = entries_[slots_[slot]];
    if (entry.hash == hash && entry.text == id) return slots_[slot];
    slot = (slot + 1) & (slots_.size() - 1);
  }
  if (entries_.size() * 2 > slots_.size()) {
    grow();
    slot = hash & (slots_.size() - 1);
    while (slots_[slot] != emptyId) slot = (slot + 1) & (slots_.size() - 1);
  }
  Entry& entry = entries_.emplace_back();
  if (id.isBorrowed()) {
    entry.text.borrow(id);
  } else {
    entry.text = id;
  }
  entry.hash = hash;
  slots_[slot] = static_cast<Number>(entries_.size() - 1);
  return slots_[slot];
}

void IdTable::enter(Number id, UMLElement* object) noexcept {
  if (id != emptyId && entries_[id].object == nullptr) entries_[id].object = object;
}

void IdTable::grow() {
  std::vector<Number> slots(slots_.size() * 2, emptyId);
  for (std::size_t i = 1; i < entries_.size(); ++i) {
    std::size_t slot = entries_[i].hash & (slots.size() - 1);
    while (slots[slot] != emptyId) slot = (slot + 1) & (slots.size() - 1);
    slots[slot] = static_cast<Number>(i);
  }
  slots_ = std::move(slots);
}
