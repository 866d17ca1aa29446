// An argument and its type.
#include "repository/model/KYRArgument.h"

#include "repository/model/KYRLinks.h"
#include "repository/model/KYROperation.h"
#include "repository/model/KYRType.h"

KYRArgument::~KYRArgument() { dissolve(); }

KYROperation* KYRArgument::getOperation() const { return dynamic_cast<KYROperation*>(getParent()); }

void KYRArgument::addType(KYRType* newType) {
  KYRLinks::tie<KYRModelObject>(*this, type, newType, &KYRType::typedObjects);
}

void KYRArgument::unlink() {
  KYRLinks::untie<KYRModelObject>(*this, type, &KYRType::typedObjects);
  KYRModelObject::unlink();
}

void KYRArgument::replaceType(const KYRType* from, KYRType* to) {
  if (type == from) type = to;
}
