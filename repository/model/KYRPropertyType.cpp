// The values of a property are a list in which each value knows its place, and an index by element
// that is made when the first element with many values asks.
#include "repository/model/KYRPropertyType.h"

#include <new>

#include "repository/model/KYRElement.h"
#include "repository/model/KYRPointerIndex.h"
#include "repository/model/KYRPropertyValue.h"

KYRPropertyType::KYRPropertyType(KYRElementType type) : elementType(type) {}

KYRPropertyType::~KYRPropertyType() { dissolve(); }

KYRPropertyValue* KYRPropertyType::getValue(const KYRElement* element) const {
  if (!byElement_) {
    auto index = std::make_unique<KYRPointerIndex>();
    index->reserve(values_.size());
    for (const KYRPropertyValue* value : values_) index->set(value->element_, value->slot_);
    byElement_ = std::move(index);
  }
  const std::uint32_t slot = byElement_->find(element);
  return slot == KYRPointerIndex::none ? nullptr : values_[slot];
}

void KYRPropertyType::unlink() {
  for (KYRPropertyValue* value : values_) value->propertyType_ = nullptr;
  values_.clear();
  byElement_.reset();
}

void KYRPropertyType::add(KYRPropertyValue* value) {
  value->slot_ = getValueCount();
  values_.push_back(value);
  if (!byElement_) return;
  try {
    byElement_->set(value->element_, value->slot_);
  } catch (const std::bad_alloc&) {
    byElement_.reset();  // for speed only, and can be made again
  }
}

void KYRPropertyType::remove(const KYRPropertyValue& value) noexcept {
  // The last value takes the place of the one that goes: the order has no meaning.
  KYRPropertyValue* const last = values_.back();
  values_[value.slot_] = last;
  last->slot_ = value.slot_;
  values_.pop_back();
  if (!byElement_) return;
  byElement_->erase(value.element_);
  byElement_->replace(last->element_, last->slot_);
}
