// A concrete type and the types that rest on it.
#include "repository/model/KYRConcreteType.h"

#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYRLinks.h"

KYRConcreteType::~KYRConcreteType() { dissolve(); }

const KYRString& KYRConcreteType::getDataType() const { return dataType; }

int KYRConcreteType::getLength() const { return length; }

int KYRConcreteType::getScale() const { return scale; }

void KYRConcreteType::unlink() {
  for (KYRDerivedType* type : derivedTypes) type->baseConcreteType = nullptr;
  KYRLinks::clear(derivedTypes);
  KYRType::unlink();
}
