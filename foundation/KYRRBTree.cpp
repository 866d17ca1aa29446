// KYRRBTree: the balancing is the standard library's.
#include "foundation/KYRRBTree.h"

KYRRBTree::KYRRBTree() = default;

KYRRBTree::~KYRRBTree() = default;

KYRRBTree::Iterator::Iterator(const KYRRBTree& tree, bool /*forward*/)
    : tree_(tree), at_(tree.objects_.begin()) {}

KYRRBTree::Iterator::~Iterator() = default;

const void* KYRRBTree::Iterator::get() const { return at_ == tree_.objects_.end() ? nullptr : *at_; }

bool KYRRBTree::Iterator::next() {
  if (at_ != tree_.objects_.end()) ++at_;
  return at_ != tree_.objects_.end();
}

void KYRRBTree::empty() { objects_.clear(); }

KYRContainer::Iterator* KYRRBTree::newIterator(bool forward) const { return new Iterator(*this, forward); }

void KYRRBTree::deleteIterator(KYRContainer::Iterator* iterator) const { delete iterator; }

bool KYRRBTree::add(const void* object, bool /*unique*/, KYRContainer::Iterator* /*position*/) {
  return objects_.insert(object).second;
}

bool KYRRBTree::contains(const void* object, KYRContainer::Iterator* /*position*/) const {
  return objects_.count(object) != 0;
}

const void* KYRRBTree::findFirst(const void* key, KYRContainer::Iterator* position) const {
  return contains(key, position) ? key : nullptr;
}

const void* KYRRBTree::remove(KYRContainer::Iterator* position) {
  auto* const iterator = dynamic_cast<Iterator*>(position);
  if (iterator == nullptr || &iterator->tree_ != this || iterator->at_ == objects_.end()) return nullptr;
  const void* const object = *iterator->at_;
  iterator->at_ = objects_.erase(iterator->at_);
  return object;
}
