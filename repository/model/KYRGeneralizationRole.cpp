// A role, its class, and the foreign keys that stand on it.
#include "repository/model/KYRGeneralizationRole.h"

#include "repository/model/KYRClass.h"
#include "repository/model/KYRForeignKey.h"
#include "repository/model/KYRLinks.h"

KYRGeneralizationRole::~KYRGeneralizationRole() { dissolve(); }

void KYRGeneralizationRole::addAssociatedClass(KYRClass* end) {
  KYRLinks::tie(*this, associatedClass, end, &KYRClass::generalizationRoles);
}

void KYRGeneralizationRole::addForeignKey(KYRForeignKey* key) {
  KYRLinks::required(key);
  KYRLinks::tie(*key, key->generalizationRole, this, &KYRGeneralizationRole::foreignKeys);
}

void KYRGeneralizationRole::leavingOwner() {
  generalizationAsSubtype = nullptr;
  generalizationAsSupertype = nullptr;
}

void KYRGeneralizationRole::unlink() {
  KYRLinks::untie(*this, associatedClass, &KYRClass::generalizationRoles);
  for (KYRForeignKey* key : foreignKeys) key->generalizationRole = nullptr;
  KYRLinks::clear(foreignKeys);
  KYRModelObject::unlink();
}
