// KYRForeignKey: a key that refers to a candidate key, over a relation.
#pragma once

#include "repository/model/KYRKey.h"

class KYR_EXPORT KYRForeignKey : public KYRKey {
 public:
  // Referred to; null until tied and after the other side has been deleted.
  KYRCandidateKey* candidateKey = nullptr;
  KYRAssociationRole* associationRole = nullptr;
  KYRGeneralizationRole* generalizationRole = nullptr;

  KYRForeignKey() = default;
  ~KYRForeignKey() override;
  int getElementType() const override { return KYRElementType::foreignKey; }

 protected:
  void unlink() override;
};
