// KYRStringHashSet: only asked whether it holds a text, never walked, so its order does not matter.
#include "foundation/KYRStringHashSet.h"

KYRStringHashSet::KYRStringHashSet(int capacity) {
  if (capacity > 0) texts_.reserve(static_cast<std::size_t>(capacity));
}

bool KYRStringHashSet::add(const KYRString& text) { return texts_.emplace(text.view()).second; }

bool KYRStringHashSet::contains(const KYRString& text) const {
  return texts_.find(std::string(text.view())) != texts_.end();
}

void KYRStringHashSet::clear() { texts_.clear(); }
