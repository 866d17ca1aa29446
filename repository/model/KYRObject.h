// KYRObject: what all objects of a model share: a name, an owner, a place in the class tree.
//
// Ownership. An `add` operation makes the container the owner, and an object has one owner at most:
// added elsewhere, it moves. Deleting an owner deletes what it holds, without recursion, so depth
// does not matter. An object that was never added belongs to the code that made it. Whichever way
// an object goes, it is unlinked first from everything that refers to it, so nothing dangles.
#pragma once

#include <cstdint>

#include "foundation/KYRString.h"
#include "repository/model/KYRElementType.h"
#include "repository/model/KYRModelForward.h"
#include "repository/model/KYROwnedLists.h"
#include "repository/model/KYR_Object.h"

class KYR_EXPORT KYRObject : public KYR_Object {
 public:
  /// Free for the caller; the library carries it and never follows it.
  UMLElement* umlElement = nullptr;
  KYRString description;
  /// The id in the source file.
  KYRString sourceId;

  /// Takes the object out of its owner, unlinks it and deletes what it holds.
  ~KYRObject() override;

  /// Deletes the object, all that it holds, and every presentation element on a diagram that shows
  /// one of these. Relations to other objects are unlinked and stay: a role whose class goes has no
  /// class. Only for objects made by `new`.
  virtual void recursiveDelete();
  /// The number of the object's class; see KYRElementType.
  virtual int getElementType() const = 0;
  /// Whether the object's class is that class or derives from it.
  virtual bool isInstanceOf(int elementType) const;
  /// The owner; null for a model and for an object that was not added.
  virtual KYRObject* getParent() const;
  /// Hands the object and all that it holds to `operation`: an object before what it holds, and that
  /// in order of adding. The operation must not add, move or delete objects.
  virtual void depthTraversal(KYRTraversalOperation& operation);
  virtual void setName(const KYRString& name);
  /// As setName, but the text is taken over: one that only shows characters (KYRString::borrow) goes on
  /// showing them, so they must live as long as the object. See KYRStoreModel::keepTexts.
  void takeName(KYRString name);
  virtual const KYRString& getName() const;

  /// The names on the way to the object joined by "/": with `belowModel` from the first object below
  /// the model, else from the model.
  KYRString getPath(bool belowModel) const;

 protected:
  KYRObject() = default;

  /// Adds the collections that own objects, in the order of a traversal.
  virtual void listOwned(KYROwnedLists& lists) const;
  /// Cuts all references between this object and others, ownership aside.
  virtual void unlink();
  /// Called when the object is about to leave its owner other than by the owner's end.
  virtual void leavingOwner();
  /// Called before and after the name changes, for lists other than the owner's.
  virtual void leaveNames();
  virtual void joinNames();
  /// Deletes the presentation elements that show the object.
  virtual void deleteShapes();
  /// The destructor of every class of which objects are made calls it, while all parts still stand.
  void dissolve() noexcept;

 private:
  friend class KYRLinks;
  friend class StoredNumbers;
  void destroyOwned() noexcept;

  KYRString name_;
  KYRObjectCollection* home_ = nullptr;  // the owning collection
  // Scratch: the next object while a chain of objects is built, the number while a model is saved.
  mutable std::uint64_t scratch_ = 0;
};
