// Open addressing with linear probing over the hashes of names; erasing leaves no marks behind.
#include "repository/model/KYRNameIndex.h"

#include <functional>
#include <utility>

#include "repository/model/KYRObject.h"
#include "repository/model/KYRObjectList.h"

namespace {

constexpr std::size_t smallestSlotCount = 32;
constexpr std::uintptr_t groupMark = 1;
static_assert(alignof(KYRObject) > groupMark && alignof(KYRObjectList) > groupMark);

std::uint32_t hashOf(std::string_view name) noexcept {
  const std::uint64_t hash = std::hash<std::string_view>()(name);
  return static_cast<std::uint32_t>(hash ^ (hash >> 32U));
}

std::string_view nameOf(const KYRObject& object) noexcept { return object.getName().view(); }

}  // namespace

// NOLINTBEGIN(performance-no-int-to-ptr): a marked pointer is a number, that is the idea
KYRObjectList* KYRNameIndex::Slot::getGroup() const noexcept {
  return (holder & groupMark) == 0 ? nullptr : reinterpret_cast<KYRObjectList*>(holder & ~groupMark);
}

KYRObject* KYRNameIndex::Slot::getFirst() const noexcept {
  const KYRObjectList* const group = getGroup();
  return group != nullptr ? group->getAt(0) : reinterpret_cast<KYRObject*>(holder);
}
// NOLINTEND(performance-no-int-to-ptr)

void KYRNameIndex::Slot::set(KYRObject* only) noexcept { holder = reinterpret_cast<std::uintptr_t>(only); }

void KYRNameIndex::Slot::set(KYRObjectList* group) noexcept {
  holder = reinterpret_cast<std::uintptr_t>(group) | groupMark;
}

KYRNameIndex::KYRNameIndex() noexcept = default;

KYRNameIndex::~KYRNameIndex() {
  for (const Slot& slot : slots_) delete slot.getGroup();
}

std::size_t KYRNameIndex::seek(std::string_view name, std::uint32_t hash) const noexcept {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = hash & mask;
  ++probes_;
  while (!slots_[at].isFree() && (slots_[at].hash != hash || nameOf(*slots_[at].getFirst()) != name)) {
    ++probes_;
    at = (at + 1) & mask;
  }
  return at;
}

KYRObject* KYRNameIndex::find(std::string_view name) const noexcept {
  return slots_.empty() ? nullptr : slots_[seek(name, hashOf(name))].getFirst();
}

KYRObject* KYRNameIndex::find(std::string_view name, Condition condition, int argument) const {
  if (slots_.empty()) return nullptr;
  const Slot& slot = slots_[seek(name, hashOf(name))];
  if (slot.isFree()) return nullptr;
  const KYRObjectList* const group = slot.getGroup();
  if (group == nullptr) return condition(*slot.getFirst(), argument) ? slot.getFirst() : nullptr;
  for (KYRObject* object : *group) {
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
  if (slot.isFree()) {
    slot.hash = hash;
    slot.set(object);
    ++count_;
    return;
  }
  if (slot.getGroup() == nullptr) {
    auto group = std::make_unique<KYRObjectList>();
    group->add(slot.getFirst());
    slot.set(group.release());
  }
  slot.getGroup()->add(object);
}

void KYRNameIndex::remove(const KYRObject* object) noexcept {
  if (slots_.empty()) return;
  const std::string_view name = nameOf(*object);
  const std::size_t at = seek(name, hashOf(name));
  KYRObjectList* const group = slots_[at].getGroup();
  if (group != nullptr) {
    group->remove(object);
    if (group->getCount() != 0) return;
    free(at);
    delete group;
  } else if (slots_[at].getFirst() == object) {
    free(at);
  }
}

void KYRNameIndex::free(std::size_t hole) noexcept {
  const std::size_t mask = slots_.size() - 1;
  --count_;
  // Names behind the hole that were pushed past it move up, so that every chain stays unbroken.
  for (std::size_t at = (hole + 1) & mask; !slots_[at].isFree(); at = (at + 1) & mask) {
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
    if (slot.isFree()) continue;
    std::size_t at = slot.hash & mask;
    while (!slots_[at].isFree()) at = (at + 1) & mask;
    slots_[at] = slot;
  }
}
