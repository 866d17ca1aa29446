// A feature and its type.
#include "repository/model/KYRFeature.h"

#include "repository/model/KYRLinks.h"
#include "repository/model/KYRType.h"

KYRFeature::~KYRFeature() = default;

void KYRFeature::addType(KYRType* newType) {
  KYRLinks::tie<KYRModelObject>(*this, type, newType, &KYRType::typedObjects);
}

void KYRFeature::unlink() {
  KYRLinks::untie<KYRModelObject>(*this, type, &KYRType::typedObjects);
  KYRModelObject::unlink();
}

void KYRFeature::replaceType(const KYRType* from, KYRType* to) {
  if (type == from) type = to;
}
