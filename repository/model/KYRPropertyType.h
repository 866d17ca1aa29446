// KYRPropertyType: the definition of a user property of one class of objects.
#pragma once

#include <memory>
#include <vector>

#include "repository/model/KYRDesignLevelType.h"
#include "repository/model/KYRObject.h"

class KYRPointerIndex;

/// Owned by the model; see fetchPropertyType. Told apart by element type and name.
class KYR_EXPORT KYRPropertyType : public KYRObject {
 public:
  /// The class of objects that can have the property.
  KYRElementType elementType;
  KYRDesignLevelType designLevel;
  /// Who defines the property, such as "USER".
  KYRString usage;
  KYRString initialValue;
  /// A data type text such as "SQL_VARCHAR".
  KYRString dataType;

  explicit KYRPropertyType(KYRElementType type);
  ~KYRPropertyType() override;
  int getElementType() const override { return KYRElementType::propertyType; }
  /// How many objects have a value for the property.
  unsigned int getValueCount() const noexcept { return static_cast<unsigned int>(values_.size()); }
  /// The value that the object has; null when it has none. O(1).
  KYRPropertyValue* getValue(const KYRElement* element) const;

 protected:
  void unlink() override;

 private:
  friend class KYRElement;
  friend class KYRPropertyValue;
  void add(KYRPropertyValue* value);
  void remove(const KYRPropertyValue& value) noexcept;

  std::vector<KYRPropertyValue*> values_;
  mutable std::unique_ptr<KYRPointerIndex> byElement_;
};
