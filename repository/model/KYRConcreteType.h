// KYRConcreteType: a type of values. An object of this very class is a base type.
#pragma once

#include "repository/model/KYRType.h"

class KYR_EXPORT KYRConcreteType : public KYRType {
 public:
  /// A data type text such as "SQL_VARCHAR".
  KYRString dataType;
  KYRString nativeDataType;
  int length = 0;
  int scale = 0;
  KYRCollection<KYRDerivedType> derivedTypes;  // referred to: the types that rest on this one

  KYRConcreteType() = default;
  ~KYRConcreteType() override;
  int getElementType() const override { return KYRElementType::baseType; }
  virtual const KYRString& getDataType() const;
  virtual int getLength() const;
  virtual int getScale() const;

 protected:
  void unlink() override;
};
