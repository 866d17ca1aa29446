// The common part of all objects: name, owner, traversal, and the taking down of whole subtrees.
//
// A subtree is taken down without recursion and without memory of its own: its objects are chained
// through their scratch field in order of depth, each is unlinked while all others still stand, and
// then they are deleted one after the other. Lists are emptied on the way, so the destructors find
// nothing left to do.
#include "repository/model/KYRObject.h"

#include <string>
#include <vector>

#include "repository/model/KYRLinks.h"
#include "repository/model/KYRTraversalOperation.h"

namespace {

// The lists of one object on a traversal, and how far they have been walked.
struct Step {
  KYROwnedLists lists;
  unsigned int list = 0;
  unsigned int entry = 0;
};

// The next object below the step; null at its end.
KYRObject* takeNext(Step& step) {
  for (; step.list < step.lists.getCount(); ++step.list, step.entry = 0) {
    if (KYRObject* object = (*step.lists[step.list])[step.entry]) {
      ++step.entry;
      return object;
    }
  }
  return nullptr;
}

}  // namespace

KYRObject::~KYRObject() {
  if (home_ != nullptr) home_->remove(this);
}

void KYRObject::recursiveDelete() {
  // Shapes own nothing and are themselves shown by nothing; left out of the chain they can be deleted
  // while it is walked.
  const auto isNoShape = [](const KYRObject& object) {
    return !object.isInstanceOf(KYRElementType::presentationElement);
  };
  for (KYRObject* object = KYRLinks::chain(*this, isNoShape); object != nullptr;
       object = KYRLinks::nextInChain(*object)) {
    object->deleteShapes();
  }
  delete this;
}

bool KYRObject::isInstanceOf(int elementType) const {
  for (int type = getElementType(); type != 0; type = KYRElementType::getBase(type)) {
    if (type == elementType) return true;
  }
  return false;
}

KYRObject* KYRObject::getParent() const { return home_ == nullptr ? nullptr : home_->getOwner(); }

void KYRObject::depthTraversal(KYRTraversalOperation& operation) {
  const auto stepInto = [](const KYRObject& object) {
    Step step;
    object.listOwned(step.lists);
    return step;
  };
  operation.visit(*this);
  std::vector<Step> way{stepInto(*this)};
  while (!way.empty()) {
    KYRObject* object = takeNext(way.back());
    if (object == nullptr) {
      way.pop_back();
      continue;
    }
    operation.visit(*object);
    Step step = stepInto(*object);
    if (step.lists.getCount() != 0) way.push_back(step);
  }
}

void KYRObject::setName(const KYRString& name) {
  if (name != name_) takeName(name);  // a copy first, since nothing behind it can fail
}

void KYRObject::takeName(KYRString name) {
  if (name == name_) return;
  if (home_ != nullptr) home_->leaveNames(*this);
  leaveNames();
  name_ = std::move(name);
  if (home_ != nullptr) home_->joinNames(*this);
  joinNames();
}

const KYRString& KYRObject::getName() const { return name_; }

KYRString KYRObject::getPath(bool belowModel) const {
  std::vector<const KYRObject*> way;
  for (const KYRObject* object = this; object != nullptr; object = object->getParent()) {
    if (!belowModel || !object->isInstanceOf(KYRElementType::model)) way.push_back(object);
  }
  KYRString path;
  for (std::size_t at = way.size(); at > 0; --at) {
    if (at != way.size()) path += std::string_view("/");
    path += way[at - 1]->getName();
  }
  return path;
}

void KYRObject::listOwned(KYROwnedLists&) const {}
void KYRObject::unlink() {}
void KYRObject::leavingOwner() {}
void KYRObject::leaveNames() {}
void KYRObject::joinNames() {}
void KYRObject::deleteShapes() {}

void KYRObject::dissolve() noexcept {
  KYRLinks::leaveOwner(*this);
  unlink();
  destroyOwned();
}

void KYRObject::destroyOwned() noexcept {
  KYRObject* object = KYRLinks::chainAndRelease(*this);
  while (object != nullptr) {
    KYRObject* const next = KYRLinks::nextInChain(*object);
    delete object;
    object = next;
  }
}
