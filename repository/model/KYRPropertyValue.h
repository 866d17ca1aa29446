// KYRPropertyValue: the value that one object has for one property.
#pragma once

#include "foundation/KYRString.h"
#include "repository/model/KYRModelForward.h"
#include "repository/model/KYR_Object.h"

/// Made and owned by its element; see KYRElement::setPropertyValue. A model has many of them, so
/// they are not KYRObjects and carry no name of their own.
class KYR_EXPORT KYRPropertyValue : public KYR_Object {
 public:
  KYRString value;
  ~KYRPropertyValue() override;
  /// The definition; null after it has been deleted.
  KYRPropertyType* getPropertyType() const noexcept { return propertyType_; }
  /// The object that has the value.
  KYRElement* getElement() const noexcept { return element_; }
  /// The next value of the same object in order of making; null behind the last.
  KYRPropertyValue* getNext() const noexcept;

 private:
  friend class KYRElement;
  friend class KYRPropertyType;
  KYRPropertyValue(KYRPropertyType* propertyType, KYRElement* element) noexcept;

  KYRPropertyType* propertyType_;
  KYRElement* element_;
  KYRPropertyValue* next_;  // in a ring: the first value stands behind the last
  unsigned int slot_ = 0;   // place in the list of the property type
};
