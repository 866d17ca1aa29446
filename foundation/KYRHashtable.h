// KYRHashtable: a chaining hash table of object pointers with overridable comparison and hash.
//
// Decisions that callers rely on:
// - Walks are in insertion order, also after growth and removals, so the same file gives the same
//   bytes everywhere.
// - `findFirst` gives the first object added among equal keys. Equal keys hang in a list of their
//   own behind the first, so neither lookups nor adding slow down when many objects share a key.
// - An object that compares as different even from itself (one without an id) can never be found;
//   it is kept for walks and stays out of the chains.
// - A table that is mostly walked may put hashing off until somebody looks something up.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "foundation/KYRContainer.h"

class KYR_EXPORT KYRHashtable : public KYRContainer {
 public:
  /// When objects are hashed: as they are added, or all together at the first operation that needs a
  /// key. Until then their keys must not change; whatever hashing raises comes out of that operation.
  enum class Hashing { atAdd, atFirstLookup };

  /// A table of about `bucketCount` buckets, which grows with its content.
  explicit KYRHashtable(int bucketCount, Hashing hashing = Hashing::atAdd);
  /// Shares the object pointers. The chains are copied as they are, so the copy must hash and compare
  /// as `other` does.
  KYRHashtable(const KYRHashtable& other);
  ~KYRHashtable() override;

  void empty() override;
  Iterator* newIterator(bool forward) const override;
  void deleteIterator(Iterator* iterator) const override;
  /// With `unique` an object whose key equals one already present is refused: the result is false
  /// and the caller still holds the object. Null is refused too. When a hash or a comparison raises,
  /// or memory runs out, the table is as before.
  bool add(const void* object, bool unique, Iterator* position) override;
  /// Whether an object of equal key is present.
  bool contains(const void* object, Iterator* position) const override;
  const void* findFirst(const void* key, Iterator* position) const override;
  /// Leaves a gap and never moves the other entries, so a walk goes on undisturbed.
  const void* remove(Iterator* position) override;

  /// 0 when the two objects have equal keys. By default the key is the address.
  virtual int compare2Object(const void* first, const void* second) const;
  /// 0 when the object has that key.
  virtual int compare2Key(const void* object, const void* key) const;
  // The assignment that each derived table gets by itself hides this one, which is as it should be.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Woverloaded-virtual"
  /// Takes the entries of `other` in their order; hashing and comparing stay this table's own. When
  /// one of them raises, or memory runs out, the table is as before.
  // NOLINTNEXTLINE(misc-unconventional-assign-operator): derived tables override it, so it is virtual
  virtual KYRHashtable& operator=(const KYRHashtable& other);
#pragma GCC diagnostic pop
  /// Same objects (by address) in the same order.
  virtual bool operator==(const KYRHashtable& other) const;
  virtual bool operator!=(const KYRHashtable& other) const;
  /// Rehashes into at least `bucketCount` buckets, and into no fewer than there are objects. `add`
  /// calls it when the table is full.
  virtual void resize(int bucketCount);
  /// Must agree with `hashKey` for an object and its key.
  virtual unsigned int hashObject(const void* object) const;
  virtual unsigned int hashKey(const void* key) const;

  /// Number of objects.
  unsigned int getCount() const noexcept { return count_; }
  /// Number of positions for `getAt`: objects plus the gaps that removals left.
  unsigned int getSlotCount() const noexcept {
    return static_cast<unsigned int>(entries_.size() + waiting_.size());
  }
  /// The object at a position in insertion order; null at the gap of a removed one. A walk by
  /// position may add objects on the way.
  const void* getAt(unsigned int slot) const noexcept {
    if (slot < entries_.size()) return entries_[slot].object;
    return slot < waiting_.size() ? waiting_[slot] : nullptr;
  }
  static constexpr unsigned int noSlot = 0xFFFFFFFFU;
  /// The position of the first object added under that key, or `noSlot`.
  unsigned int getFirstSlot(const void* key) const;
  /// The position of the next object of the same key, in order of adding, or `noSlot`.
  unsigned int getNextEqualSlot(unsigned int slot) const noexcept {
    return slot < entries_.size() ? entries_[slot].nextEqual : noSlot;
  }
  /// Removes the first object of that key and returns it, or null. As with `removeObject`, gaps that
  /// outnumber the objects are closed then, which moves positions: not to be called during a walk.
  const void* removeKey(const void* key);
  /// Removes this very object (by address), also one that no key finds; false when it is not there.
  bool removeObject(const void* object);
  unsigned int getBucketCount() const noexcept { return static_cast<unsigned int>(buckets_.size()); }

 private:
  class TableIterator;
  class AddressIndex;
  static constexpr std::uint32_t none = 0xFFFFFFFFU;
  // The first object of a key is its leader; only leaders hang in the chains of the buckets.
  struct Entry {
    const void* object;
    std::uint32_t hash;
    std::uint32_t link;       // leader: next leader of the bucket; else the previous equal
    std::uint32_t nextEqual;  // next entry with an equal key, in order of adding
    std::uint32_t lastEqual;  // leader: the last of its equals (alone: itself); else none
  };

  template <class List>
  static void makeRoomForOne(List& list);
  void hashWaiting();
  void requireHashes() const;
  std::uint32_t* bucketOf(std::uint32_t hash) noexcept;
  template <class IsEqual>
  std::uint32_t findLeader(std::uint32_t hash, IsEqual isEqual) const;
  std::uint32_t findEqual(const void* object, std::uint32_t hash) const;
  std::uint32_t findKey(const void* key) const;
  std::uint32_t findObject(const void* object);
  void rebuildBuckets(std::size_t bucketCount);
  void append(const void* object, std::uint32_t hash, bool isChained, std::uint32_t leader) noexcept;
  void removeSlot(std::uint32_t slot) noexcept;
  void removeAndCompact(std::uint32_t slot) noexcept;
  void compact() noexcept;

  std::vector<Entry> entries_;
  std::vector<std::uint32_t> buckets_;  // made at the first add
  std::uint32_t wantedBuckets_;
  std::uint32_t count_ = 0;
  std::uint32_t firstSlot_ = 0;  // no object stands before it
  std::unique_ptr<AddressIndex> addresses_;
  Hashing hashing_;
  std::vector<const void*> waiting_;  // all objects, as long as none of them has been hashed
};
