// KYRElement: an object that can carry notes and property values.
#pragma once

#include "repository/model/KYRCollection.h"
#include "repository/model/KYRObject.h"

class KYR_EXPORT KYRElement : public KYRObject {
 public:
  KYRCollection<KYRNote> notes;  // owned
  ~KYRElement() override;

  void addNote(KYRNote* note);

  /// The value for the property, made when the object has none yet; the later text stays.
  KYRPropertyValue* setPropertyValue(KYRPropertyType* propertyType, const KYRString& value);
  /// The first property value in order of making; null when there is none. See
  /// KYRPropertyValue::getNext.
  KYRPropertyValue* getFirstPropertyValue() const noexcept;
  /// The value for the property; null when the object has none.
  KYRPropertyValue* getPropertyValue(const KYRPropertyType* propertyType) const;

 protected:
  KYRElement() = default;
  void listOwned(KYROwnedLists& lists) const override;

 private:
  KYRPropertyValue* lastValue_ = nullptr;
};
