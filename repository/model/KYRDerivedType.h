// KYRDerivedType: a type that rests on another and may list its values.
#pragma once

#include "repository/model/KYRConcreteType.h"

class KYR_EXPORT KYRDerivedType : public KYRConcreteType {
 public:
  bool userDefined = false;
  /// The type that it rests on; referred to. Null until `addDerivedFromConcreteType`.
  KYRConcreteType* baseConcreteType = nullptr;
  KYRCollection<KYRTypeValue> typeValues;  // owned

  KYRDerivedType() = default;
  ~KYRDerivedType() override;
  int getElementType() const override { return KYRElementType::derivedType; }
  /// Sets the base type, in place of one that was set before. Raises a KYRException when that is the
  /// type itself.
  void addDerivedFromConcreteType(KYRConcreteType* base);
  /// Adds the value. Raises a KYRException when the type holds a value of exactly that name, be the
  /// name empty; the value then still belongs to the caller.
  void addTypeValue(KYRTypeValue* value);
  virtual int getTypeValueCount() const;

 protected:
  void listOwned(KYROwnedLists& lists) const override;
  void unlink() override;
};
