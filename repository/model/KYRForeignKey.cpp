// A foreign key and what it stands on.
#include "repository/model/KYRForeignKey.h"

#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRCandidateKey.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYRLinks.h"

KYRForeignKey::~KYRForeignKey() { dissolve(); }

void KYRForeignKey::unlink() {
  KYRLinks::untie(*this, candidateKey, &KYRCandidateKey::foreignKeys);
  KYRLinks::untie(*this, associationRole, &KYRAssociationRole::foreignKeys);
  KYRLinks::untie(*this, generalizationRole, &KYRGeneralizationRole::foreignKeys);
  KYRKey::unlink();
}
