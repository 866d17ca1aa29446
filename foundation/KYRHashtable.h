// KYRHashtable: a chaining hash table of object pointers with overridable comparison and hash.
//
// Decisions that callers rely on:
// - Walks are in insertion order, also after growth and removals, so the same file gives the same
//   bytes everywhere.
// - `findFirst` gives the first object added among equal keys. Equal keys hang in a list of their
//   own behind the first, so neither lookups nor adding slow down when many objects share a key.
// - An object that compares as different even from itself (one without an id) can never be found;
//   it is kept for walks and stays out of the chains.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "foundation/KYRContainer.h"

class KYR_EXPORT KYRHashtable : public KYRContainer {
 public:
  /// A table of about `bucketCount` buckets, which grows with its content.
  explicit KYRHashtable(int bucketCount);
  /// Shares the object pointers.
  KYRHashtable(const KYRHashtable& other);
  ~KYRHashtable() override;

  void empty() override;
  Iterator* newIterator(bool forward) const override;
  void deleteIterator(Iterator* iterator) const override;
  /// With `unique` an object whose key equals one already present is refused: the result is false
  /// and the caller still holds the object.
  bool add(const void* object, bool unique, Iterator* position) override;
  /// Whether an object of equal key is present.
  bool contains(const void* object, Iterator* position) const override;
  const void* findFirst(const void* key, Iterator* position) const override;
  const void* remove(Iterator* position) override;

  /// 0 when the two objects have equal keys. By default the key is the address.
  virtual int compare2Object(const void* first, const void* second) const;
  /// 0 when the object has that key.
  virtual int compare2Key(const void* object, const void* key) const;
  /// Takes the entries of `other` in their order; hashing and comparing stay this table's own.
  virtual KYRHashtable& operator=(const KYRHashtable& other);
  /// Same objects (by address) in the same order.
  virtual bool operator==(const KYRHashtable& other) const;
  virtual bool operator!=(const KYRHashtable& other) const;
  /// Rehashes into at least `bucketCount` buckets.
  virtual void resize(int bucketCount);
  /// Must agree with `hashKey` for an object and its key.
  virtual unsigned int hashObject(const void* object) const;
  virtual unsigned int hashKey(const void* key) const;

  /// Number of objects.
  unsigned int getCount() const noexcept { return count_; }
  /// Number of positions for `getAt`: objects plus the gaps that removals left.
  unsigned int getSlotCount() const noexcept { return static_cast<unsigned int>(entries_.size()); }
  /// The object at a position in insertion order; null at the gap of a removed one. A walk by
  /// position may add objects on the way.
  const void* getAt(unsigned int slot) const noexcept {
    return slot < entries_.size() ? entries_[slot].object : nullptr;
  }
  /// Removes the first object of that key and returns it, or null.
  const void* removeKey(const void* key);
  /// Removes this very object (by address) among those of its key; false when it is not there.
  bool removeObject(const void* object);
  unsigned int getBucketCount() const noexcept { return static_cast<unsigned int>(buckets_.size()); }

 private:
  class TableIterator;
  static constexpr std::uint32_t none = 0xFFFFFFFFU;
  struct Entry {
    const void* object;
    std::uint32_t hash;
    std::uint32_t nextInBucket;  // next first-of-its-key entry of the bucket
    std::uint32_t nextEqual;     // next entry with an equal key, in order of adding
    std::uint32_t lastEqual;     // on the first of a key: the last of its equals, else none
  };

  std::uint32_t findLeader(const void* object, std::uint32_t hash) const;
  void chain(std::uint32_t slot);
  void removeSlot(std::uint32_t slot);

  std::vector<Entry> entries_;
  std::vector<std::uint32_t> buckets_;  // made at the first add
  std::uint32_t wantedBuckets_;
  std::uint32_t count_ = 0;
};
