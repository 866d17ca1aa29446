// Slots of names.
#include "repository/model/KYRNameIndex.h"

#include <memory>

#include "repository/model/KYRObject.h"
#include "repository/model/KYRObjectList.h"

namespace {

constexpr std::size_t smallestSlotCount = 32;
constexpr std::uintptr_t groupMark = 1;
constexpr std::uintptr_t gone = 2;  // no object lies there
static_assert(alignof(KYRObject) > groupMark && alignof(KYRObjectList) > groupMark);

std::string_view nameOf(const KYRObject& object) noexcept { return object.getName().view(); }

}  // namespace

bool KYRNameIndex::Slot::isGone() const noexcept { return holder == gone; }

// NOLINTBEGIN(performance-no-int-to-ptr): a marked pointer is a number, that is the idea
KYRObjectList* KYRNameIndex::Slot::getGroup() const noexcept {
  return (holder & groupMark) == 0 ? nullptr : reinterpret_cast<KYRObjectList*>(holder & ~groupMark);
}

KYRObject* KYRNameIndex::Slot::getFirst() const noexcept {
  if (isGone()) return nullptr;
  const KYRObjectList* const group = getGroup();
  return group != nullptr ? group->getAt(0) : reinterpret_cast<KYRObject*>(holder);
}
// NOLINTEND(performance-no-int-to-ptr)

void KYRNameIndex::Slot::set(KYRObject* only) noexcept { holder = reinterpret_cast<std::uintptr_t>(only); }

void KYRNameIndex::Slot::set(KYRObjectList* group) noexcept {
  holder = reinterpret_cast<std::uintptr_t>(group) | groupMark;
}

KYRNameIndex::KYRNameIndex() : slots_(smallestSlotCount) {}

KYRNameIndex::~KYRNameIndex() {
  slots_.forEach([](const Slot& slot) { delete slot.getGroup(); });
}

KYRNameIndex::Slot& KYRNameIndex::seek(std::string_view name, std::uint32_t hash) noexcept {
  return slots_.seek(hash, [name](const Slot& slot) { return nameOf(*slot.getFirst()) == name; });
}

const KYRNameIndex::Slot& KYRNameIndex::seek(std::string_view name) const noexcept {
  return const_cast<KYRNameIndex*>(this)->seek(name, slots_.hashOf(name, TextHash::seed()));
}

KYRObject* KYRNameIndex::find(std::string_view name) const noexcept { return seek(name).getFirst(); }

KYRObject* KYRNameIndex::find(std::string_view name, Condition condition, int argument) const {
  const Slot& slot = seek(name);
  const KYRObjectList* const group = slot.getGroup();
  if (group == nullptr) {
    KYRObject* const only = slot.getFirst();
    return only != nullptr && condition(*only, argument) ? only : nullptr;
  }
  for (KYRObject* object : *group) {
    ++probes_;
    if (object != nullptr && condition(*object, argument)) return object;
  }
  return nullptr;
}

void KYRNameIndex::add(KYRObject* object) {
  const std::string_view name = nameOf(*object);
  const std::uint32_t hash = slots_.hashOf(name, TextHash::seed());
  Slot& slot = seek(name, hash);
  if (slot.getFirst() == nullptr) {
    Slot& claimed = slots_.claim(slot, hash);
    claimed.hash = hash;
    claimed.set(object);
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
  const std::string_view name = nameOf(*object);
  Slot& slot = seek(name, slots_.hashOf(name, TextHash::seed()));
  KYRObjectList* const group = slot.getGroup();
  if (group != nullptr) {
    group->remove(object);
    if (group->getCount() != 0) return;
    delete group;
    slot.holder = gone;
  } else if (slot.getFirst() == object) {
    slot.holder = gone;
  }
}
