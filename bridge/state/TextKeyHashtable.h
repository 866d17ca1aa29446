// TextKeyHashtable: a table of records by one of their text fields.
//
// Keys compare exactly. An empty key compares as different from everything: such a record is walked
// but never found.
#pragma once

#include "foundation/KYRHashtable.h"
#include "foundation/KYRString.h"

template <class Record, KYRString Record::*keyField>
class TextKeyHashtable : public KYRHashtable {
 public:
  using KYRHashtable::KYRHashtable;

  /// Equal keys are all kept.
  void addRecord(Record* record) { add(untyped(record), false, nullptr); }
  /// The first record added under that key, or null.
  Record* find(const KYRString& key) const { return typed(findFirst(&key, nullptr)); }
  /// The record at a position from 0 to `getSlotCount`, in order of adding; null at a gap.
  Record* at(unsigned int slot) const { return typed(getAt(slot)); }
  /// Takes out this very record, whose key must be the one it was added with.
  bool removeRecord(const Record* record) { return removeObject(untyped(record)); }

  int compare2Object(const void* first, const void* second) const override {
    return compare2Key(first, &keyOf(second));
  }
  int compare2Key(const void* object, const void* key) const override {
    const KYRString& text = *static_cast<const KYRString*>(key);
    return !text.isEmpty() && keyOf(object) == text ? 0 : 1;
  }
  unsigned int hashObject(const void* object) const override { return hashKey(&keyOf(object)); }
  unsigned int hashKey(const void* key) const override {
    return stringHashCode(static_cast<const KYRString*>(key)->view());
  }

 private:
  static const void* untyped(const Record* record) { return static_cast<const void*>(record); }
  static Record* typed(const void* object) { return static_cast<Record*>(const_cast<void*>(object)); }
  static const KYRString& keyOf(const void* object) { return static_cast<const Record*>(object)->*keyField; }
};
