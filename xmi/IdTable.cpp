// What intern, enter and empty do to the entries and their slots.
#include "xmi/IdTable.h"

#include "foundation/ShownText.h"

namespace {
constexpr std::size_t firstSlots = 1024;
}

IdTable::IdTable() : slots_(firstSlots) { addBlock(); }

void IdTable::addBlock() { blocks_.push_back(std::make_unique<Entry[]>(blockSize)); }

IdTable::Number IdTable::intern(const KYRString& id, std::uint32_t hash) {
  if (id.isEmpty()) return emptyId;
  Slot& place = slots_.seek(hash, [this, &id](const Slot& slot) {
    const KYRString& known = getText(slot.number);
    return known.getCharacters() == id.getCharacters() || known == id;
  });
  if (!place.isFree()) return place.number;
  if (count_ / blockSize == blocks_.size()) addBlock();
  entry(count_).text = shownText(id);
  slots_.claim(place, hash) = {hash, count_};
  return count_++;
}

void IdTable::empty() { *this = IdTable(); }

void IdTable::enter(Number id, const Bearer& bearer) noexcept {
  Entry& known = entry(id);
  if (id == emptyId || known.object != nullptr) return;
  known.object = bearer.object;
  known.kindAndMarks |= static_cast<std::uint64_t>(bearer.kind) << markCount;
}
