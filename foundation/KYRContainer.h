// The container family. Containers hold untyped object pointers and never own them: whoever puts
// an object in deletes it. Copying a container shares its entries.
#pragma once

#include "foundation/Export.h"

/// Root of all containers.
class KYR_EXPORT _KYRContainer {  // NOLINT(bugprone-reserved-identifier): hosts know it by this name
 public:
  _KYRContainer() = default;
  _KYRContainer(const _KYRContainer&) = default;
  _KYRContainer& operator=(const _KYRContainer&) = default;
  virtual ~_KYRContainer();
};

/// The operations that every container offers, in the order of their slots.
class KYR_EXPORT KYRContainer : public virtual _KYRContainer {
 public:
  /// Walks a container from its start. Removing entries other than through the iterator ends its
  /// validity.
  class KYR_EXPORT Iterator {
   public:
    Iterator() = default;
    Iterator(const Iterator&) = delete;
    Iterator& operator=(const Iterator&) = delete;
    virtual ~Iterator();
    /// The object under the iterator; null behind the last one.
    virtual const void* get() const = 0;
    /// Moves on by one; false when that is behind the last object.
    virtual bool next() = 0;
  };

  KYRContainer() = default;
  KYRContainer(const KYRContainer&) = default;
  KYRContainer& operator=(const KYRContainer&) = default;
  ~KYRContainer() override;

  /// Removes all entries and deletes none of the objects.
  virtual void empty() = 0;
  /// An iterator at the first entry, freed by `deleteIterator`. The argument has no meaning.
  virtual Iterator* newIterator(bool forward) const = 0;
  virtual void deleteIterator(Iterator* iterator) const = 0;
  /// Adds `object`. With `unique` an object already present is refused and the result is false.
  /// `position` has no meaning and is null.
  virtual bool add(const void* object, bool unique, Iterator* position) = 0;
  virtual bool contains(const void* object, Iterator* position) const = 0;
  /// The first object added among those with `key`, or null.
  virtual const void* findFirst(const void* key, Iterator* position) const = 0;
  /// Removes the object under the iterator and returns it; the iterator moves on to the next one.
  virtual const void* remove(Iterator* position) = 0;
};
