// Open addressing with linear probing over the hashes of names; erasing leaves no marks behind.
#include "repository/model/KYRNameIndex.h"

#include <functional>
#include <utility>

#include "repository/model/KYRObject.h"
#include "repository/model/KYRObjectList.h"

namespace {

constexpr std::size_t smallestSlotCount = 32;

std::uint32_t hashOf(std::string_view name) noexcept {
  const std::uint64_t hash = std::hash<std::string_view>()(name);
  return static_cast<std::uint32_t>(hash ^ (hash >> 32U));
}

std::string_view nameOf(const KYRObject& object) noexcept { return object.getName().view(); }

}  // namespace

KYRNameIndex::KYRNameIndex() noexcept = default;

KYRNameIndex::~KYRNameIndex() {
  for (const Slot& slot : slots_) delete slot.group;
}

std::size_t KYRNameIndex::seek(std::string_view name, std::uint32_t hash) const noexcept {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = hash & mask;
  ++probes_;
  while (slots_[at].first != nullptr && (slots_[at].hash != hash || nameOf(*slots_[at].first) != name)) {
    ++probes_;
    at = (at + 1) & mask;
  }
  return at;
}

KYRObject* KYRNameIndex::find(std::string_view name) const noexcept {
  return slots_.empty() ? nullptr : slots_[seek(name, hashOf(name))].first;
}

KYRObject* KYRNameIndex::find(std::string_view name, Condition condition, int argument) const {
  if (slots_.empty()) return nullptr;
  const Slot& slot = slots_[seek(name, hashOf(name))];
  if (slot.group == nullptr) {
    return slot.first != nullptr && condition(*slot.first, argument) ? slot.first : nullptr;
  }
  for (KYRObject* object : *slot.group) {
    ++probes_;
    if (object != nullptr && condition(*object, argument)) return object;
  }
  return nullptr;
}

void KYRNameIndex::add(KYRObject* object) {
  if (slots_.size() * 2 < (count_ + 1) * 3) {
    rehash(slots_.empty() ? smallestSlotCount : slots_.size() * 2);
  }
  const std::string_view name = nameOf(*object);
  const std::uint32_t hash = hashOf(name);
  Slot& slot = slots_[seek(name, hash)];
  if (slot.first == nullptr) {
    slot.hash = hash;
    slot.first = object;
    ++count_;
    return;
  }
  if (slot.group == nullptr) {
    auto group = std::make_unique<KYRObjectList>();
    group->add(slot.first);
    slot.group = group.release();
  }
  slot.group->add(object);
}

void KYRNameIndex::remove(const KYRObject* object) noexcept {
  if (slots_.empty()) return;
  const std::string_view name = nameOf(*object);
  const std::size_t at = seek(name, hashOf(name));
  Slot& slot = slots_[at];
  if (slot.group != nullptr) {
    slot.group->remove(object);
    if (slot.group->getCount() != 0) {
      slot.first = slot.group->getAt(0);
      return;
    }
    delete std::exchange(slot.group, nullptr);
    free(at);
  } else if (slot.first == object) {
    free(at);
  }
}

void KYRNameIndex::free(std::size_t hole) noexcept {
  const std::size_t mask = slots_.size() - 1;
  --count_;
  // Names behind the hole that were pushed past it move up, so that every chain stays unbroken.
  for (std::size_t at = (hole + 1) & mask; slots_[at].first != nullptr; at = (at + 1) & mask) {
    const std::size_t wanted = slots_[at].hash & mask;
    if (((at - wanted) & mask) >= ((at - hole) & mask)) {
      slots_[hole] = slots_[at];
      hole = at;
    }
  }
  slots_[hole] = Slot();
}

void KYRNameIndex::rehash(std::size_t slotCount) {
  std::vector<Slot> old(slotCount);
  std::swap(old, slots_);
  const std::size_t mask = slots_.size() - 1;
  for (const Slot& slot : old) {
    if (slot.first == nullptr) continue;
    std::size_t at = slot.hash & mask;
    while (slots_[at].first != nullptr) at = (at + 1) & mask;
    slots_[at] = slot;
  }
}
