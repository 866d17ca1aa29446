// KYRType: the type of attributes, arguments and results.
#pragma once

#include "repository/model/KYRNamespaceElement.h"

class KYR_EXPORT KYRType : public KYRNamespaceElement {
 public:
  /// The attributes, arguments and operations that have the type; referred to.
  KYRCollection<KYRModelObject> typedObjects;
  ~KYRType() override;
  /// Makes the model the owner of the type: the same as KYRModel::addType.
  void addModel(KYRModel* model);
  /// Gives everything that has this type the type `other`.
  void moveTypedObjects(KYRType* other);

 protected:
  KYRType() = default;
  void unlink() override;
};
