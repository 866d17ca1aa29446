// Counting by element type, on the walk that saving takes.
#include "host/SavedModelCounts.h"

#include "repository/model/KYRClass.h"
#include "repository/model/KYRStoreModel.h"
#include "repository/storage/StoredWalk.h"

namespace {

struct Counting {
  SavedModelCounts counts;

  void enter(const KYRObject& object, const StoredClass& stored) {
    switch (stored.elementType) {
      case KYRElementType::designPackage:
        ++counts.packages;
        break;
      case KYRElementType::class_:
        ++(isInterface(object) ? counts.interfaces : counts.classes);
        break;
      case KYRElementType::attribute:
        ++counts.attributes;
        break;
      case KYRElementType::operation:
        ++counts.operations;
        break;
      case KYRElementType::argument:
        ++counts.arguments;
        break;
      case KYRElementType::association:
        ++counts.associations;
        break;
      case KYRElementType::classDiagram:
        ++counts.diagrams;
        break;
      default:
        break;
    }
  }
  static bool isInterface(const KYRObject& object) {
    const auto* const found = dynamic_cast<const KYRClass*>(&object);
    return found != nullptr && found->classCategory == KYRClassCategoryType::interface_;
  }
  void leave() {}
  void beginList(const StoredField&) {}
  void endList() {}
};

}  // namespace

SavedModelCounts SavedModelCounts::of(const KYRStoreModel& model) {
  Counting counting;
  walkStored(model, counting);
  return counting.counts;
}

SavedModelCounts& SavedModelCounts::operator+=(const SavedModelCounts& other) noexcept {
  packages += other.packages;
  classes += other.classes;
  interfaces += other.interfaces;
  attributes += other.attributes;
  operations += other.operations;
  arguments += other.arguments;
  return *this;
}
