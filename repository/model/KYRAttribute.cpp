// An attribute leaves every key that holds it when it goes.
#include "repository/model/KYRAttribute.h"

#include "repository/model/KYRKey.h"
#include "repository/model/KYRLinks.h"

KYRAttribute::~KYRAttribute() { dissolve(); }

void KYRAttribute::leavingOwner() { owner = nullptr; }

void KYRAttribute::unlink() {
  for (KYRKey* key : keys) KYRLinks::remove(key->attributes, this);
  KYRLinks::clear(keys);
  KYRStructuralFeature::unlink();
}
