// A value enters the list of its property type when it is made and leaves it with its end.
#include "repository/model/KYRPropertyValue.h"

#include "repository/model/KYRElement.h"
#include "repository/model/KYRPropertyType.h"

KYRPropertyValue::KYRPropertyValue(KYRPropertyType* propertyType, KYRElement* element) noexcept
    : propertyType_(propertyType), element_(element), next_(this) {}

KYRPropertyValue::~KYRPropertyValue() {
  if (propertyType_ != nullptr) propertyType_->remove(*this);
}

KYRPropertyValue* KYRPropertyValue::getNext() const noexcept {
  return next_ == element_->getFirstPropertyValue() ? nullptr : next_;
}
