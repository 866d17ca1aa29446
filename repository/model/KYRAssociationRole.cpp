// A role, its class, and the foreign keys that stand on it.
#include "repository/model/KYRAssociationRole.h"

#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRForeignKey.h"
#include "repository/model/KYRLinks.h"

KYRAssociationRole::~KYRAssociationRole() { dissolve(); }

KYRAssociation* KYRAssociationRole::getAssociation() const {
  return dynamic_cast<KYRAssociation*>(getParent());
}

void KYRAssociationRole::addAssociatedClass(KYRClass* end) {
  KYRLinks::tie(*this, associatedClass, end, &KYRClass::associationRoles);
}

void KYRAssociationRole::addForeignKey(KYRForeignKey* key) {
  KYRLinks::required(key);
  KYRLinks::tie(*key, key->associationRole, this, &KYRAssociationRole::foreignKeys);
}

void KYRAssociationRole::unlink() {
  KYRLinks::untie(*this, associatedClass, &KYRClass::associationRoles);
  for (KYRForeignKey* key : foreignKeys) key->associationRole = nullptr;
  KYRLinks::clear(foreignKeys);
  KYRModelObject::unlink();
}
