// KYRRBTree: an ordered set of object pointers. It walks in the order of its comparison, which is
// the order of addresses: good for asking what is in it, not for anything that ends in a file.
#pragma once

#include <set>

#include "foundation/KYRContainer.h"

class KYR_EXPORT KYRRBTree : public KYRContainer {
 public:
  KYRRBTree();
  KYRRBTree(const KYRRBTree& other) = delete;
  KYRRBTree& operator=(const KYRRBTree& other) = delete;
  ~KYRRBTree() override;

  /// The iterator of a tree; it can also stand on the stack.
  class KYR_EXPORT Iterator : public KYRContainer::Iterator {
   public:
    Iterator(const KYRRBTree& tree, bool forward);
    ~Iterator() override;
    const void* get() const override;
    bool next() override;

   private:
    friend class KYRRBTree;
    const KYRRBTree& tree_;
    std::set<const void*>::const_iterator at_;
  };

  void empty() override;
  KYRContainer::Iterator* newIterator(bool forward) const override;
  void deleteIterator(KYRContainer::Iterator* iterator) const override;
  /// A tree holds each object once whatever `unique` says; false when it was there.
  bool add(const void* object, bool unique, KYRContainer::Iterator* position) override;
  bool contains(const void* object, KYRContainer::Iterator* position) const override;
  const void* findFirst(const void* key, KYRContainer::Iterator* position) const override;
  const void* remove(KYRContainer::Iterator* position) override;
  unsigned int getCount() const noexcept { return static_cast<unsigned int>(objects_.size()); }

 private:
  std::set<const void*> objects_;
};
