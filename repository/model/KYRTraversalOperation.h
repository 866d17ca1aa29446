// KYRTraversalOperation: what a traversal of a model does with each object.
#pragma once

#include "foundation/Export.h"
#include "repository/model/KYRModelForward.h"

class KYR_EXPORT KYRTraversalOperation {
 public:
  KYRTraversalOperation() = default;
  KYRTraversalOperation(const KYRTraversalOperation&) = delete;
  KYRTraversalOperation& operator=(const KYRTraversalOperation&) = delete;
  virtual ~KYRTraversalOperation();
  /// Called once for each object; see KYRObject::depthTraversal.
  virtual void visit(KYRObject& object) = 0;
};
