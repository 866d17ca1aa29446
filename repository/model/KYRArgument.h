// KYRArgument: an argument of an operation.
#pragma once

#include "repository/model/KYRArgumentType.h"
#include "repository/model/KYRModelObject.h"
#include "repository/model/KYRPosition.h"

class KYR_EXPORT KYRArgument : public KYRModelObject {
 public:
  KYRPosition position;
  KYRArgumentType direction;
  KYRType* type = nullptr;  // referred to

  KYRArgument() = default;
  ~KYRArgument() override;
  int getElementType() const override { return KYRElementType::argument; }
  /// The operation that has the argument; null when none has.
  KYROperation* getOperation() const;
  /// Sets the type, in place of one that was set before.
  void addType(KYRType* newType);

 protected:
  void unlink() override;
  void replaceType(const KYRType* from, KYRType* to) override;
};
