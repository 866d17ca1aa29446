// A generalization and its roles on both sides.
#include "repository/model/KYRGeneralization.h"

#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYRLinks.h"

KYRGeneralization::~KYRGeneralization() { dissolve(); }

void KYRGeneralization::addSupertypeRole(KYRGeneralizationRole* role) {
  if (KYRLinks::own(supertypeRoles, this, KYRLinks::required(role))) role->generalizationAsSupertype = this;
}

void KYRGeneralization::addSubtypeRole(KYRGeneralizationRole* role) {
  if (KYRLinks::own(subtypeRoles, this, KYRLinks::required(role))) role->generalizationAsSubtype = this;
}

void KYRGeneralization::listOwned(KYROwnedLists& lists) const {
  KYRRelationship::listOwned(lists);
  lists.add(KYRLinks::owned(supertypeRoles));
  lists.add(KYRLinks::owned(subtypeRoles));
}
