// The way of an id through the stages.
#include "xmi/ComingIds.h"

void ComingIds::expect(const KYRString& id) noexcept {
  if (id.isEmpty()) return;
  constexpr std::size_t stage = 3;  // ids from one question to memory to the next
  const std::uint32_t hash = ids_.hashOf(id);
  known_[placeOf(id.getCharacters())] = {id.getCharacters(), hash};
  expected_[count_++ % size] = hash;
  const auto before = [this](std::size_t stages) { return expected_[(count_ - 1 - stages * stage) % size]; };
  ids_.prefetchSlot(hash);
  ids_.prefetchEntry(before(1));
  ids_.prefetchText(before(2));
  ids_.prefetchBearer(before(3));
}

std::uint32_t ComingIds::hashOf(const KYRString& id) noexcept {
  const Known& known = known_[placeOf(id.getCharacters())];
  if (known.characters == id.getCharacters()) return known.hash;
  ++computed_;
  return ids_.hashOf(id);
}
