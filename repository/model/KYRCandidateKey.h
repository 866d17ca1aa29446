// KYRCandidateKey: a key whose values can identify an instance.
#pragma once

#include "repository/model/KYRKey.h"

class KYR_EXPORT KYRCandidateKey : public KYRKey {
 public:
  bool isUnique = false;
  /// The class of which it is the primary key; null for other keys.
  KYRClass* primaryKeyClass = nullptr;
  KYRCollection<KYRForeignKey> foreignKeys;  // referred to: the keys that refer to it

  KYRCandidateKey() = default;
  ~KYRCandidateKey() override;
  int getElementType() const override { return KYRElementType::candidateKey; }
  void addForeignKey(KYRForeignKey* key);

 protected:
  void leavingOwner() override;
  void unlink() override;
};
