// KYROperation: an operation of a class.
#pragma once

#include "repository/model/KYRNamespaceElement.h"
#include "repository/model/KYRPosition.h"
#include "repository/model/KYRVisibilityType.h"

class KYR_EXPORT KYROperation : public KYRNamespaceElement {
 public:
  KYRPosition position;
  KYRVisibilityType visibility;
  bool isStatic = false;
  KYRType* returnType = nullptr;         // referred to; null: nothing is returned
  KYRCollection<KYRArgument> arguments;  // owned

  KYROperation() = default;
  ~KYROperation() override;
  int getElementType() const override { return KYRElementType::operation; }
  /// The class that has the operation; null when none has.
  KYRClass* getOwner() const;
  /// Adds the argument as it is named.
  void addArgument(KYRArgument* argument);
  int getArgumentCount() const;
  /// Sets the return type, in place of one that was set before.
  void addReturnType(KYRType* type);

 protected:
  void listOwned(KYROwnedLists& lists) const override;
  void unlink() override;
  void replaceType(const KYRType* from, KYRType* to) override;
};
