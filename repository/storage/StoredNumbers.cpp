// Numbers are given on a walk of their own, since references also point forward.
#include "repository/storage/StoredNumbers.h"

#include "repository/storage/StoredWalk.h"

struct StoredNumbers::Numbering {
  std::vector<const KYRObject*>& objects;
  void enter(const KYRObject& object, const StoredClass&) {
    objects.push_back(&object);
    object.scratch_ = objects.size();
  }
  void leave() {}
  void beginList(const StoredField&) {}
  void endList() {}
};

StoredNumbers::StoredNumbers(const KYRStoreModel& model) {
  Numbering numbering{objects_};
  walkStored(model, numbering);
}

unsigned int StoredNumbers::get(const KYRObject* object) const noexcept {
  if (object == nullptr) return 0;
  const std::uintptr_t number = object->scratch_;
  return number != 0 && number <= objects_.size() && objects_[number - 1] == object
             ? static_cast<unsigned int>(number)
             : 0;
}
