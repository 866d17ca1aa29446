// Resolution goes in the order of the document, which is therefore the order of the lists that the
// other side of a reference keeps.
#include "repository/storage/StoredReferences.h"

#include <string>

#include "repository/KYRRepositoryMessages.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYRPropertyType.h"

namespace {

KYRString text(std::uint64_t number) {
  const std::string digits = std::to_string(number);
  return KYRString(std::string_view(digits));
}

}  // namespace

void StoredReferences::define(std::uint32_t id, KYRObject* object, std::uint64_t offset) {
  if (id == dense_.size() + 1 && others_.count(id) == 0) {
    dense_.push_back(object);
  } else if (id <= dense_.size() || !others_.emplace(id, object).second) {
    KYRRepositoryMessages::ID_TWICE.throwException(path_, text(offset), text(id));
  }
}

void StoredReferences::refer(KYRObject* holder, const StoredField* field, std::uint32_t id,
                             std::uint64_t offset) {
  references_.push_back({holder, field, id, offset});
}

void StoredReferences::addPropertyValue(KYRElement* element, std::uint32_t propertyType, KYRString value,
                                        std::uint64_t offset) {
  propertyValues_.push_back({element, propertyType, std::move(value), offset});
}

void StoredReferences::resolve(const KYRModel& model) {
  for (const Reference& reference : references_) {
    KYRObject& target = get(reference.id, reference.offset);
    if (!target.isInstanceOf(reference.field->elementType) ||
        !reference.field->add(*reference.holder, target)) {
      refuse(reference.id, reference.offset, reference.field->name);
    }
  }
  for (const PropertyValue& value : propertyValues_) {
    auto* const type = dynamic_cast<KYRPropertyType*>(&get(value.propertyType, value.offset));
    if (type == nullptr || value.element->getPropertyValue(type) != nullptr) {
      refuse(value.propertyType, value.offset, "propertyValues");
    }
    value.element->setPropertyValue(type, value.value);
  }
  refuseRings(model);
}

KYRObject& StoredReferences::get(std::uint32_t id, std::uint64_t offset) const {
  if (id != 0 && id <= dense_.size()) return *dense_[id - 1];
  const auto found = others_.find(id);
  if (found == others_.end()) {
    KYRRepositoryMessages::UNKNOWN_REFERENCE.throwException(path_, text(offset), text(id));
  }
  return *found->second;
}

void StoredReferences::refuse(std::uint32_t id, std::uint64_t offset, std::string_view member) const {
  KYRRepositoryMessages::WRONG_REFERENCE.throwException(path_, text(offset), text(id), KYRString(member));
}

// Each way down the bases ends at a type that an earlier way has passed, or it runs into itself.
void StoredReferences::refuseRings(const KYRModel& model) const {
  std::unordered_map<const KYRDerivedType*, unsigned int> passedBy;
  unsigned int way = 0;
  for (const KYRType* start : model.types) {
    ++way;
    const auto* type = dynamic_cast<const KYRDerivedType*>(start);
    while (type != nullptr) {
      const auto [passed, isNew] = passedBy.try_emplace(type, way);
      if (!isNew && passed->second != way) break;
      if (!isNew) KYRRepositoryMessages::TYPES_IN_RING.throwException(path_, type->getName());
      type = dynamic_cast<const KYRDerivedType*>(type->baseConcreteType);
    }
  }
}
