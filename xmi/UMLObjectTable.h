// UMLObjectTable: all UML objects of a file by xmi:id, in order of reading.
//
// Ids compare exactly. An empty id compares as different from everything, so an object without an
// id is walked but never found.
#pragma once

#include "foundation/KYRHashtable.h"
#include "foundation/KYRString.h"

class UMLElement;

class UMLObjectTable : public KYRHashtable {
 public:
  /// Imports walk the table and find references by number, so ids are hashed only when somebody asks.
  explicit UMLObjectTable(int bucketCount) : KYRHashtable(bucketCount, Hashing::atFirstLookup) {}
  /// The object at a position in order of reading.
  UMLElement* at(unsigned int index) const noexcept;
  /// The first object of that id, or null.
  UMLElement* find(const KYRString& id) const;

  int compare2Object(const void* first, const void* second) const override;
  int compare2Key(const void* object, const void* key) const override;
  unsigned int hashObject(const void* object) const override;
  unsigned int hashKey(const void* key) const override;
};
