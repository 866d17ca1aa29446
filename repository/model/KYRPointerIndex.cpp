// Open addressing over pointers. A slot is found by the upper bits of a product, since the lower bits
// of pointers hardly differ.
#include "repository/model/KYRPointerIndex.h"

#include <utility>

namespace {

constexpr std::size_t smallestSlotCount = 32;

std::size_t scatter(const void* key) noexcept {
  constexpr std::uint64_t golden = 0x9E3779B97F4A7C15U;
  const auto bits = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(key)) * golden;
  return static_cast<std::size_t>(bits ^ (bits >> 32U));
}

std::size_t slotCountFor(std::size_t count) noexcept {
  std::size_t slotCount = smallestSlotCount;
  while (slotCount * 2 < count * 3) slotCount *= 2;
  return slotCount;
}

}  // namespace

std::size_t KYRPointerIndex::seek(const void* key) const noexcept {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = scatter(key) & mask;
  ++probes_;
  while (slots_[at].key != nullptr && slots_[at].key != key) {
    ++probes_;
    at = (at + 1) & mask;
  }
  return at;
}

std::uint32_t KYRPointerIndex::find(const void* key) const noexcept {
  return slots_.empty() ? none : slots_[seek(key)].place;
}

void KYRPointerIndex::set(const void* key, std::uint32_t place) {
  if (slots_.size() * 2 < (count_ + 1) * 3) rehash(slotCountFor(count_ + 1));
  Slot& slot = slots_[seek(key)];
  if (slot.key == nullptr) ++count_;
  slot = {key, place};
}

void KYRPointerIndex::replace(const void* key, std::uint32_t place) noexcept {
  if (slots_.empty()) return;
  Slot& slot = slots_[seek(key)];
  if (slot.key != nullptr) slot.place = place;
}

void KYRPointerIndex::erase(const void* key) noexcept {
  if (slots_.empty()) return;
  const std::size_t mask = slots_.size() - 1;
  std::size_t hole = seek(key);
  if (slots_[hole].key == nullptr) return;
  --count_;
  // Keys behind the hole that were pushed past it move up, so that every chain stays unbroken.
  for (std::size_t at = (hole + 1) & mask; slots_[at].key != nullptr; at = (at + 1) & mask) {
    const std::size_t wanted = scatter(slots_[at].key) & mask;
    if (((at - wanted) & mask) >= ((at - hole) & mask)) {
      slots_[hole] = slots_[at];
      hole = at;
    }
  }
  slots_[hole] = Slot();
}

void KYRPointerIndex::reserve(std::size_t count) {
  const std::size_t wanted = slotCountFor(count);
  if (wanted > slots_.size()) rehash(wanted);
}

void KYRPointerIndex::rehash(std::size_t slotCount) {
  std::vector<Slot> old(slotCount);
  std::swap(old, slots_);
  for (const Slot& slot : old) {
    if (slot.key != nullptr) slots_[seek(slot.key)] = slot;
  }
}
