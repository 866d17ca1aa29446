// A model as owner of origins, types and property definitions.
#include "repository/model/KYRModel.h"

#include <algorithm>

#include "repository/model/KYRLinks.h"
#include "repository/model/KYRMetadataOrigin.h"
#include "repository/model/KYRPropertyType.h"
#include "repository/model/KYRType.h"

KYRModel::KYRModel() = default;
KYRModel::~KYRModel() = default;

void KYRModel::addMetadataOrigin(KYRMetadataOrigin* origin) {
  KYRLinks::required(origin);
  const bool isKnown = std::any_of(origins_.begin(), origins_.end(),
                                   [origin](const auto& known) { return known.get() == origin; });
  if (!isKnown) {
    origins_.emplace_back(nullptr);  // the room first, so that a failure leaves the origin to the caller
    origins_.back().reset(origin);
  }
  metadataOrigin = origin;
}

unsigned int KYRModel::getMetadataOriginCount() const noexcept {
  return static_cast<unsigned int>(origins_.size());
}

KYRMetadataOrigin* KYRModel::getMetadataOrigin(unsigned int index) const noexcept {
  return index < origins_.size() ? origins_[index].get() : nullptr;
}

void KYRModel::addType(KYRType* type) { KYRLinks::own(types, this, KYRLinks::required(type)); }

KYRType* KYRModel::getType(const KYRString& name, int elementType) const {
  return KYRLinks::find(
      types, name, [](const KYRObject& type, int wanted) { return type.getElementType() == wanted; },
      elementType);
}

void KYRModel::addPropertyType(KYRPropertyType* propertyType) {
  KYRLinks::own(propertyTypes, this, KYRLinks::required(propertyType));
}

KYRPropertyType* KYRModel::getPropertyType(int elementType, const KYRString& name) const {
  return KYRLinks::find(
      propertyTypes, name,
      [](const KYRObject& type, int wanted) {
        return dynamic_cast<const KYRPropertyType&>(type).elementType == wanted;
      },
      elementType);
}

void KYRModel::listOwned(KYROwnedLists& lists) const {
  KYRElement::listOwned(lists);
  lists.add(KYRLinks::owned(propertyTypes));
  lists.add(KYRLinks::owned(types));
}
