// KYRLinks: the one way in which the repository's classes change their collections, and the chains
// by which whole subtrees are walked without memory.
#pragma once

#include "repository/model/KYRCollection.h"
#include "repository/model/KYRObject.h"

/// Internal to the repository.
class KYR_EXPORT KYRLinks {
 public:
  /// The object itself; raises a KYRException for null, which no `add` operation can add.
  template <class T>
  static T* required(T* object) {
    if (object == nullptr) raiseNoObject();
    return object;
  }
  /// Makes `owner` the owner of `entry`, which leaves its former owner; false when it is there.
  template <class T>
  static bool own(KYRCollection<T>& list, KYRObject* owner, T* entry) {
    KYRSdkCollection& collection = list.make(owner, true);
    if (entry->home_ == &collection) return false;
    collection.add(entry);
    leaveOwner(*entry);
    entry->home_ = &collection;
    return true;
  }
  /// As `own`, after a name that is taken in the list has been made unique.
  template <class T>
  static bool ownUniqueName(KYRCollection<T>& list, KYRObject* owner, T* entry, char separator) {
    KYRSdkCollection& collection = list.make(owner, true);
    if (entry->home_ == &collection) return false;
    const KYRString& name = entry->getName();
    if (collection.isTaken(name)) entry->setName(collection.makeUniqueName(name, separator));
    return own(list, owner, entry);
  }
  /// Takes the entry out of its owner, if it has one.
  static void leaveOwner(KYRObject& entry) noexcept;

  /// A reference; the caller sees to it that the other side knows.
  template <class T>
  static void refer(KYRCollection<T>& list, T* entry, bool isTold = false) {
    list.make(nullptr, isTold).add(entry);
  }
  /// Makes `target`, or none, what `source` refers to by `field`, and enters `source` in the list that
  /// the target keeps of such sources; a former target is let go.
  template <class Entry, class Target, class Source, class Owner>
  static void tie(Source& source, Target*& field, Target* target, KYRCollection<Entry> Owner::*list,
                  bool isTold = false) {
    if (target == field) return;
    if (target != nullptr) refer<Entry>(target->*list, &source, isTold);
    untie<Entry>(source, field, list);
    field = target;
  }
  template <class Entry, class Target, class Source, class Owner>
  static void untie(Source& source, Target*& field, KYRCollection<Entry> Owner::*list) noexcept {
    if (field != nullptr) remove(field->*list, &source);
    field = nullptr;
  }
  /// Enters two objects in each other's lists, unless they are there.
  template <class First, class Second>
  static void linkOnce(KYRCollection<First>& list, First* first, KYRCollection<Second>& otherList,
                       Second* second) {
    if (otherList.contains(second)) return;
    refer(list, first);
    refer(otherList, second);
  }
  template <class T>
  static void remove(KYRCollection<T>& list, const KYRObject* entry) noexcept {
    if (list.entries_) list.entries_->remove(entry);
  }
  template <class T>
  static void clear(KYRCollection<T>& list) noexcept {
    if (list.entries_) list.entries_->clear();
  }
  template <class T>
  static void leaveNames(KYRCollection<T>& list, const KYRObject& entry) noexcept {
    if (list.entries_) list.entries_->leaveNames(entry);
  }
  template <class T>
  static void joinNames(KYRCollection<T>& list, KYRObject& entry) noexcept {
    if (list.entries_) list.entries_->joinNames(entry);
  }
  /// The list itself, for `listOwned`.
  template <class T>
  static KYRSdkCollection* owned(const KYRCollection<T>& list) noexcept {
    return list.entries_.get();
  }
  /// The first entry of exactly that name for which the condition holds; null when there is none.
  template <class T>
  static T* find(const KYRCollection<T>& list, const KYRString& name,
                 bool (*condition)(const KYRObject&, int), int argument) {
    return list.entries_ ? list.typed(list.entries_->find(name.view(), condition, argument)) : nullptr;
  }

  /// Chains `root` and what it owns, by depth, as far as `isWanted`: nothing is looked for below an
  /// object that is not. Only one chain can go through an object at a time; nothing on it may be
  /// deleted before the object behind it has been asked for.
  static KYRObject* chain(KYRObject& root, bool (*isWanted)(const KYRObject&)) noexcept;
  /// Chains all that `root` owns, unlinked and taken out of its owners. Null when there is nothing.
  static KYRObject* chainAndRelease(KYRObject& root) noexcept;
  /// The object behind this one on the chain; null at the end.
  static KYRObject* nextInChain(const KYRObject& object) noexcept;

 private:
  [[noreturn]] static void raiseNoObject();
  static void setNext(const KYRObject& object, const KYRObject* next) noexcept;
};
