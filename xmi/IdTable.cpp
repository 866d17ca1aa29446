// What intern, enter and empty do to the entries and their slots.
#include "xmi/IdTable.h"

#include "foundation/ShownText.h"

namespace {
constexpr std::size_t firstSlots = 1024;
}

IdTable::IdTable() : entries_(1), slots_(firstSlots) {}

IdTable::Number IdTable::intern(const KYRString& id, std::uint32_t hash) {
  if (id.isEmpty()) return emptyId;
  Slot& place = slots_.seek(hash, [this, &id](const Slot& slot) {
    const KYRString& known = entries_[slot.number].text;
    return known.getCharacters() == id.getCharacters() || known == id;
  });
  if (!place.isFree()) return place.number;
  entries_.emplace_back().text = shownText(id);
  const auto number = static_cast<Number>(entries_.size() - 1);
  slots_.claim(place, hash) = {hash, number};
  return number;
}

void IdTable::empty() {
  std::vector<Entry>(1).swap(entries_);
  slots_ = TextSlots<Slot>(firstSlots);
}

void IdTable::enter(Number id, const Bearer& bearer) noexcept {
  Entry& entry = entries_[id];
  if (id == emptyId || entry.object != nullptr) return;
  entry.object = bearer.object;
  entry.kindAndMarks |= static_cast<std::uint64_t>(bearer.kind) << markCount;
}
