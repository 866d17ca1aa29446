// KYRModel: a model: where it comes from, its types and its property definitions.
#pragma once

#include <memory>
#include <vector>

#include "repository/model/KYRDesignLevelType.h"
#include "repository/model/KYRElement.h"

class KYR_EXPORT KYRModel : public KYRElement {
 public:
  KYRDesignLevelType designLevel;
  /// The origin added last; null before the first.
  KYRMetadataOrigin* metadataOrigin = nullptr;
  /// ISO 8601 in UTC; empty until setModelModificationTime.
  KYRString modificationTime;
  KYRCollection<KYRType> types;                  // owned
  KYRCollection<KYRPropertyType> propertyTypes;  // owned
  ~KYRModel() override;

  /// Takes ownership of the origin and makes it `metadataOrigin`.
  void addMetadataOrigin(KYRMetadataOrigin* origin);
  unsigned int getMetadataOriginCount() const noexcept;
  /// The origin at a position from 0 in order of adding; null beyond the end.
  KYRMetadataOrigin* getMetadataOrigin(unsigned int index) const noexcept;
  void addType(KYRType* type);
  /// The first type of exactly that name and element type; null when there is none. Hashed.
  KYRType* getType(const KYRString& name, int elementType) const;
  void addPropertyType(KYRPropertyType* propertyType);
  /// The property defined for that element type under exactly that name; null when none is. Hashed.
  KYRPropertyType* getPropertyType(int elementType, const KYRString& name) const;

 protected:
  KYRModel();
  void listOwned(KYROwnedLists& lists) const override;

 private:
  std::vector<std::unique_ptr<KYRMetadataOrigin>> origins_;
};
