// An association and its roles.
#include "repository/model/KYRAssociation.h"

#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRLinks.h"

KYRAssociation::~KYRAssociation() { dissolve(); }

void KYRAssociation::addAssociationRole(KYRAssociationRole* role) {
  KYRLinks::own(roles, this, KYRLinks::required(role));
}

void KYRAssociation::listOwned(KYROwnedLists& lists) const {
  KYRRelationship::listOwned(lists);
  lists.add(KYRLinks::owned(roles));
}

void KYRAssociation::unlink() {
  if (associationClass != nullptr) associationClass->association = nullptr;
  associationClass = nullptr;
  KYRRelationship::unlink();
}
