// Open addressing under a seed that differs from run to run, so that no file can be made to slow it down;
// nothing walks the slots.
#include "normalize/IdIndex.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <random>

#include "foundation/TextHash.h"

namespace {

constexpr std::size_t fewestSlots = 256;

std::uint64_t makeSeed() {
  std::random_device source;
  return (std::uint64_t{source()} << 32) | source();
}

}  // namespace

IdIndex::IdIndex(std::size_t expected)
    : slots_(std::bit_ceil(std::max(fewestSlots, expected + expected / 2 + 1))), seed_(makeSeed()) {}

std::uint32_t IdIndex::hashOf(std::string_view id) const noexcept {
  return static_cast<std::uint32_t>(TextHash::of(id, seed_));
}

bool IdIndex::isOf(const Slot& slot, std::string_view id, std::uint32_t hash) noexcept {
  return slot.hash == hash && std::strncmp(slot.id, id.data(), id.size()) == 0 && slot.id[id.size()] == '\0';
}

std::size_t IdIndex::slotOf(std::string_view id, std::uint32_t hash) const noexcept {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = hash & mask;
  while (slots_[at].bearer != none && !isOf(slots_[at], id, hash)) at = (at + 1) & mask;
  return at;
}

std::uint32_t IdIndex::find(std::string_view id) const noexcept {
  return slots_[slotOf(id, hashOf(id))].bearer;
}

std::uint32_t IdIndex::enter(std::string_view id, std::uint32_t bearer) {
  const std::uint32_t hash = hashOf(id);
  std::size_t at = slotOf(id, hash);
  if (slots_[at].bearer != none) return slots_[at].bearer;
  if (3 * (count_ + 1) > 2 * slots_.size()) {
    grow();
    at = slotOf(id, hash);
  }
  slots_[at] = {id.data(), hash, bearer};
  ++count_;
  return none;
}

void IdIndex::grow() {
  std::vector<Slot> old(2 * slots_.size());
  old.swap(slots_);
  for (const Slot& slot : old) {
    if (slot.bearer == none) continue;
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = slot.hash & mask;
    while (slots_[at].bearer != none) at = (at + 1) & mask;
    slots_[at] = slot;
  }
}
