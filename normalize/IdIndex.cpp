// The seed differs from run to run, so that no file can be made to slow it down; nothing walks the slots.
#include "normalize/IdIndex.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <random>

namespace {

constexpr std::size_t fewestSlots = 256;

std::uint64_t makeSeed() {
  std::random_device source;
  return (std::uint64_t{source()} << 32) | source();
}

}  // namespace

IdIndex::IdIndex(std::size_t expected)
    : slots_(std::bit_ceil(std::max(fewestSlots, expected + expected / 2 + 1))), seed_(makeSeed()) {}

bool IdIndex::Slot::isOf(std::string_view text) const noexcept {
  return std::strncmp(id, text.data(), text.size()) == 0 && id[text.size()] == '\0';
}

std::uint32_t IdIndex::find(std::string_view id) const noexcept {
  return slots_.seek(hashOf(id), [id](const Slot& slot) { return slot.isOf(id); }).bearer;
}

std::uint32_t IdIndex::enter(std::string_view id, std::uint32_t bearer, std::uint32_t hash) {
  Slot& place = slots_.seek(hash, [id](const Slot& slot) { return slot.isOf(id); });
  if (!place.isFree()) return place.bearer;
  slots_.claim(place, hash) = {id.data(), hash, bearer};
  return none;
}
