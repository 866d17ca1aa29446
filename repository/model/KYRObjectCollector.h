// KYRObjectCollector: gathers the objects of one element type on a traversal.
#pragma once

#include <vector>

#include "repository/model/KYRTraversalOperation.h"

class KYR_EXPORT KYRObjectCollector : public KYRTraversalOperation {
 public:
  /// Gathers objects whose `getElementType` is exactly this number.
  explicit KYRObjectCollector(int elementType) noexcept : elementType_(elementType) {}
  void visit(KYRObject& object) override;
  unsigned int getCount() const noexcept { return static_cast<unsigned int>(objects_.size()); }
  /// The object at a position from 0 in order of the traversal; null beyond the end.
  KYRObject* operator[](unsigned int index) const noexcept {
    return index < objects_.size() ? objects_[index] : nullptr;
  }
  std::vector<KYRObject*>::const_iterator begin() const noexcept { return objects_.begin(); }
  std::vector<KYRObject*>::const_iterator end() const noexcept { return objects_.end(); }

 private:
  int elementType_;
  std::vector<KYRObject*> objects_;
};
