// A candidate key, as primary key of a class and as the aim of foreign keys.
#include "repository/model/KYRCandidateKey.h"

#include "repository/model/KYRClass.h"
#include "repository/model/KYRForeignKey.h"
#include "repository/model/KYRLinks.h"

KYRCandidateKey::~KYRCandidateKey() { dissolve(); }

void KYRCandidateKey::addForeignKey(KYRForeignKey* key) {
  KYRLinks::required(key);
  KYRLinks::tie(*key, key->candidateKey, this, &KYRCandidateKey::foreignKeys);
}

void KYRCandidateKey::leavingOwner() {
  if (primaryKeyClass != nullptr) primaryKeyClass->primaryKey = nullptr;
  primaryKeyClass = nullptr;
  KYRKey::leavingOwner();
}

void KYRCandidateKey::unlink() {
  if (primaryKeyClass != nullptr) primaryKeyClass->primaryKey = nullptr;
  primaryKeyClass = nullptr;
  for (KYRForeignKey* key : foreignKeys) key->candidateKey = nullptr;
  KYRLinks::clear(foreignKeys);
  KYRKey::unlink();
}
