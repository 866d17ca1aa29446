// A derived type, its base and its values.
#include "repository/model/KYRDerivedType.h"

#include "repository/KYRRepositoryMessages.h"
#include "repository/model/KYRLinks.h"
#include "repository/model/KYRTypeValue.h"

KYRDerivedType::~KYRDerivedType() { dissolve(); }

void KYRDerivedType::addDerivedFromConcreteType(KYRConcreteType* base) {
  if (base == this) KYRRepositoryMessages::TYPE_ON_ITSELF.throwException(getName());
  KYRLinks::tie(*this, baseConcreteType, base, &KYRConcreteType::derivedTypes);
}

void KYRDerivedType::addTypeValue(KYRTypeValue* value) {
  if (typeValues.get(KYRLinks::required(value)->getName()) != nullptr) {
    KYRRepositoryMessages::TYPE_HOLDS_VALUE.throwException(getName(), value->getName());
  }
  KYRLinks::own(typeValues, this, value);
}

int KYRDerivedType::getTypeValueCount() const { return static_cast<int>(typeValues.count()); }

void KYRDerivedType::listOwned(KYROwnedLists& lists) const {
  KYRConcreteType::listOwned(lists);
  lists.add(KYRLinks::owned(typeValues));
}

void KYRDerivedType::unlink() {
  KYRLinks::untie(*this, baseConcreteType, &KYRConcreteType::derivedTypes);
  KYRConcreteType::unlink();
}
