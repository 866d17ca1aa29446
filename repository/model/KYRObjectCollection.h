// KYRObjectCollection: a list of objects in order of adding, found by pointer and by name.
//
// The library keeps its lists with it; everybody else reads them. A list either owns its objects (it
// then has an owner, and each of them knows the list as its home) or only refers to them.
//
// Cost. Adding is O(1), and so is removing in all, from wherever. Short lists are scanned; longer ones
// get hash indexes when the first question asks for them: by pointer and, where the list is told of
// renames, by name.
#pragma once

#include <memory>

#include "foundation/KYRString.h"
#include "repository/model/KYRObjectList.h"

class KYR_EXPORT KYRObjectCollection {
 public:
  KYRObjectCollection(const KYRObjectCollection&) = delete;
  KYRObjectCollection& operator=(const KYRObjectCollection&) = delete;

  unsigned int getCount() const noexcept { return list_.getCount(); }
  bool isEmpty() const noexcept { return getCount() == 0; }
  bool contains(const KYRObject* object) const noexcept { return list_.contains(object); }
  /// The first object in order of adding that bears exactly this name; null when there is none.
  KYRObject* get(const KYRString& name) const;
  /// The object that owns the entries; null for a list that only refers to them.
  KYRObject* getOwner() const noexcept { return owner_; }
  /// Comparisons and index probes made so far, from 0 again behind the highest number. Tests count them to
  /// show that cost stays linear.
  std::uint32_t getComparisonCount() const noexcept;

 protected:
  /// With `isTold` the list is told of every renaming of an entry, and may index names.
  KYRObjectCollection(KYRObject* owner, bool isTold) noexcept;
  ~KYRObjectCollection();
  KYRObject* getAt(unsigned int index) const noexcept { return list_.getAt(index); }

 private:
  friend class KYRLinks;
  friend class KYRObject;
  struct Names;
  using Condition = bool (*)(const KYRObject& object, int argument);

  void add(KYRObject* object);
  void remove(const KYRObject* object) noexcept;
  void clear() noexcept;
  KYRObject* find(std::string_view name, Condition condition, int argument) const;
  /// Whether an entry bears the name. The empty name is never taken.
  bool isTaken(const KYRString& name) const;
  /// Name, separator and the smallest number from 1 that is free.
  KYRString makeUniqueName(const KYRString& name, char separator) const;
  void leaveNames(const KYRObject& object) noexcept;
  void joinNames(KYRObject& object) noexcept;
  bool isIndexed() const;

  // A model has as many collections as objects: the flag stands in what the list leaves of its last word.
  [[no_unique_address]] KYRObjectList list_;
  bool isTold_;
  mutable std::unique_ptr<Names> names_;
  KYRObject* owner_;
};
