// KYRSdkCollection: a collection as hosts read it, by position.
#pragma once

#include "repository/model/KYRObjectCollection.h"

class KYR_EXPORT KYRSdkCollection : public KYRObjectCollection {
 public:
  /// The object at a position from 0 in order of adding; null beyond the end.
  KYRObject* operator[](unsigned int index) const { return getAt(index); }

 private:
  template <class T>
  friend class KYRCollection;
  KYRSdkCollection(KYRObject* owner, bool isTold) noexcept : KYRObjectCollection(owner, isTold) {}
};
