// Chains: a walk by depth needs a queue, and the scratch field of the objects is that queue.
#include "repository/model/KYRLinks.h"

#include "repository/KYRRepositoryMessages.h"

void KYRLinks::raiseNoObject() { KYRRepositoryMessages::NO_OBJECT.throwException(); }

void KYRLinks::leaveOwner(KYRObject& entry) noexcept {
  if (entry.home_ == nullptr) return;
  entry.leavingOwner();
  entry.home_->remove(&entry);
  entry.home_ = nullptr;
}

KYRObject* KYRLinks::nextInChain(const KYRObject& object) noexcept {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): one field serves chains and numbers, never at a time
  return reinterpret_cast<KYRObject*>(object.scratch_);
}

void KYRLinks::setNext(const KYRObject& object, const KYRObject* next) noexcept {
  object.scratch_ = reinterpret_cast<std::uintptr_t>(next);
}

KYRObject* KYRLinks::chain(KYRObject& root, bool (*isWanted)(const KYRObject&)) noexcept {
  KYRObject* last = &root;
  setNext(root, nullptr);
  for (KYRObject* object = &root; object != nullptr; object = nextInChain(*object)) {
    KYROwnedLists lists;
    object->listOwned(lists);
    for (KYRSdkCollection* list : lists) {
      for (unsigned int i = 0; KYRObject* entry = (*list)[i]; ++i) {
        if (!isWanted(*entry)) continue;
        setNext(*entry, nullptr);
        setNext(*last, entry);
        last = entry;
      }
    }
  }
  return &root;
}

KYRObject* KYRLinks::chainAndRelease(KYRObject& root) noexcept {
  KYRObject* last = &root;
  setNext(root, nullptr);
  for (KYRObject* object = &root; object != nullptr; object = nextInChain(*object)) {
    if (object != &root) object->unlink();
    KYROwnedLists lists;
    object->listOwned(lists);
    for (KYRSdkCollection* list : lists) {
      for (KYRObject* entry : list->list_) {
        if (entry == nullptr) continue;
        entry->home_ = nullptr;
        setNext(*entry, nullptr);
        setNext(*last, entry);
        last = entry;
      }
      list->clear();
    }
  }
  return nextInChain(root);
}
