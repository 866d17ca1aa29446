// KYRCollection<T>: the typed face of a collection. Most lists of a model are empty, so the face
// costs one pointer, which is null until the first entry arrives.
#pragma once

#include <memory>

#include "repository/model/KYRSdkCollection.h"

/// Read by everybody, changed by the repository's own classes only. Entries are removed by
/// destroying or moving them; that ends the validity of walks.
template <class T>
class KYRCollection {
 public:
  using Entry = T;
  KYRCollection() noexcept = default;
  unsigned int count() const noexcept { return entries_ ? entries_->getCount() : 0; }
  bool isEmpty() const noexcept { return count() == 0; }
  /// The entry at a position from 0 in order of adding; null beyond the end.
  T* operator[](unsigned int index) const { return entries_ ? typed((*entries_)[index]) : nullptr; }
  bool contains(const T* entry) const { return entries_ && entries_->contains(entry); }
  /// The first entry that bears exactly this name; null when there is none.
  T* get(const KYRString& name) const { return entries_ ? typed(entries_->get(name)) : nullptr; }
  /// The untyped collection; null until the first entry has arrived.
  const KYRSdkCollection* getCollection() const noexcept { return entries_.get(); }

  class Walk {
   public:
    Walk(const KYRCollection& list, unsigned int index) noexcept : list_(&list), index_(index) {}
    T* operator*() const { return (*list_)[index_]; }
    Walk& operator++() noexcept {
      ++index_;
      return *this;
    }
    bool operator!=(const Walk& other) const noexcept { return index_ != other.index_; }

   private:
    const KYRCollection* list_;
    unsigned int index_;
  };
  Walk begin() const noexcept { return {*this, 0}; }
  Walk end() const noexcept { return {*this, count()}; }

 private:
  friend class KYRLinks;
  // Repository classes have one base each and none of it virtual, so the way down is a plain cast.
  static T* typed(KYRObject* object) noexcept { return static_cast<T*>(object); }
  KYRSdkCollection& make(KYRObject* owner, bool isTold) {
    if (!entries_) entries_.reset(new KYRSdkCollection(owner, isTold));
    return *entries_;
  }
  std::unique_ptr<KYRSdkCollection> entries_;
};
