// Notes and property values. The values of an element are a ring of which the element knows the last:
// one pointer for the many that have none.
#include "repository/model/KYRElement.h"

#include <memory>
#include <utility>

#include "repository/KYRRepositoryMessages.h"
#include "repository/model/KYRLinks.h"
#include "repository/model/KYRNote.h"
#include "repository/model/KYRPropertyType.h"
#include "repository/model/KYRPropertyValue.h"

KYRElement::~KYRElement() {
  KYRPropertyValue* value = getFirstPropertyValue();
  while (value != nullptr) {
    KYRPropertyValue* const next = value == lastValue_ ? nullptr : value->next_;
    delete value;
    value = next;
  }
}

void KYRElement::addNote(KYRNote* note) { KYRLinks::own(notes, this, KYRLinks::required(note)); }

KYRPropertyValue* KYRElement::setPropertyValue(KYRPropertyType* propertyType, const KYRString& value) {
  KYRLinks::required(propertyType);
  if (KYRPropertyValue* known = getPropertyValue(propertyType)) {
    known->value = value;
    return known;
  }
  std::unique_ptr<KYRPropertyValue> made(new KYRPropertyValue(nullptr, this));
  made->value = value;
  propertyType->add(made.get());
  made->propertyType_ = propertyType;
  if (lastValue_ != nullptr) made->next_ = std::exchange(lastValue_->next_, made.get());
  lastValue_ = made.release();
  return lastValue_;
}

KYRPropertyValue* KYRElement::getFirstPropertyValue() const noexcept {
  return lastValue_ == nullptr ? nullptr : lastValue_->next_;
}

KYRPropertyValue* KYRElement::getPropertyValue(const KYRPropertyType* propertyType) const {
  constexpr int mostScanned = 16;
  if (propertyType == nullptr) return nullptr;
  int scanned = 0;
  for (KYRPropertyValue* value = getFirstPropertyValue(); value != nullptr; value = value->getNext()) {
    if (value->propertyType_ == propertyType) return value;
    if (++scanned == mostScanned) return propertyType->getValue(this);
  }
  return nullptr;
}

void KYRElement::listOwned(KYROwnedLists& lists) const { lists.add(KYRLinks::owned(notes)); }
