// The names of a collection: an index of who bears which name, and the numbers of the names that had
// to be made unique. Both are for speed only: where memory runs out they are dropped and made again.
#include "repository/model/KYRObjectCollection.h"

#include <new>
#include <string>

#include "repository/model/KYRNameIndex.h"
#include "repository/model/KYRObject.h"
#include "repository/model/KYRUniqueNumbers.h"

struct KYRObjectCollection::Names {
  std::unique_ptr<KYRNameIndex> index;
  KYRUniqueNumbers numbers;
};

static_assert(sizeof(void*) != 8 || sizeof(KYRObjectCollection) == 64);

KYRObjectCollection::KYRObjectCollection(KYRObject* owner, bool isTold) noexcept
    : isTold_(isTold), owner_(owner) {}

KYRObjectCollection::~KYRObjectCollection() = default;

KYRObject* KYRObjectCollection::get(const KYRString& name) const { return find(name.view(), nullptr, 0); }

KYRObject* KYRObjectCollection::find(std::string_view name, Condition condition, int argument) const {
  if (isIndexed()) {
    const KYRNameIndex& index = *names_->index;
    return condition == nullptr ? index.find(name) : index.find(name, condition, argument);
  }
  for (KYRObject* object : list_) {
    list_.countComparison();
    if (object != nullptr && object->getName().view() == name &&
        (condition == nullptr || condition(*object, argument))) {
      return object;
    }
  }
  return nullptr;
}

// Whether the names are in the index, which is made here when it pays.
bool KYRObjectCollection::isIndexed() const {
  if (names_ && names_->index) return true;
  if (!isTold_ || getCount() < KYRObjectList::indexThreshold) return false;
  auto index = std::make_unique<KYRNameIndex>();
  for (KYRObject* object : list_) {
    list_.countComparison();
    if (object != nullptr) index->add(object);
  }
  if (!names_) names_ = std::make_unique<Names>();
  names_->index = std::move(index);
  return true;
}

void KYRObjectCollection::add(KYRObject* object) {
  list_.add(object);
  if (!names_ || !names_->index) return;
  try {
    names_->index->add(object);
  } catch (const std::bad_alloc&) {
    names_->index.reset();
  }
}

void KYRObjectCollection::remove(const KYRObject* object) noexcept {
  if (list_.remove(object)) leaveNames(*object);
}

void KYRObjectCollection::clear() noexcept {
  list_.clear();
  names_.reset();
}

bool KYRObjectCollection::isTaken(const KYRString& name) const {
  return !name.isEmpty() && find(name.view(), nullptr, 0) != nullptr;
}

KYRString KYRObjectCollection::makeUniqueName(const KYRString& name, char separator) const {
  if (!names_) names_ = std::make_unique<Names>();
  return names_->numbers.makeName(
      name, separator, [this](std::string_view candidate) { return find(candidate, nullptr, 0) != nullptr; });
}

void KYRObjectCollection::leaveNames(const KYRObject& object) noexcept {
  if (!names_) return;
  if (names_->index) names_->index->remove(&object);
  names_->numbers.release(object.getName().view());
}

void KYRObjectCollection::joinNames(KYRObject& object) noexcept {
  if (!names_ || !names_->index) return;
  try {
    // Among objects of one name the first in order of adding counts, and where a renamed one stands
    // among them the index cannot tell: it is made anew at the next question.
    if (names_->index->find(object.getName().view()) == nullptr) {
      names_->index->add(&object);
      return;
    }
  } catch (const std::bad_alloc&) {
  }
  names_->index.reset();
}

std::uint32_t KYRObjectCollection::getComparisonCount() const noexcept {
  return list_.getComparisonCount() +
         (names_ && names_->index ? static_cast<std::uint32_t>(names_->index->getProbeCount()) : 0);
}
