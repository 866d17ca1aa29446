// UnknownTag: a tag that no table knows, with the place where it first stood.
#pragma once

#include "foundation/KYRHashtable.h"
#include "foundation/KYRString.h"

struct UnknownTag {
  KYRString position;
  KYRString tag;
};

/// UnknownTag records by tag, compared exactly.
class UnknownTagHashtable : public KYRHashtable {
 public:
  explicit UnknownTagHashtable(int bucketCount) : KYRHashtable(bucketCount) {}
  UnknownTag* at(unsigned int index) const noexcept;

  int compare2Object(const void* first, const void* second) const override;
  int compare2Key(const void* object, const void* key) const override;
  unsigned int hashObject(const void* object) const override;
  unsigned int hashKey(const void* key) const override;
};
