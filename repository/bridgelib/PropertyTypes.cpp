// User properties: their definitions in the model and their values on objects.
#include <memory>

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRModel.h"
#include "repository/model/KYRPropertyType.h"

KYRPropertyType* fetchPropertyType(KYRModel* model, KYRElementType elementType, const KYRString& name,
                                   KYRDesignLevelType designLevel, const KYRString& usage,
                                   const KYRString& initialValue, const KYRString& dataType, bool create) {
  if (model == nullptr) return nullptr;
  KYRPropertyType* const known = model->getPropertyType(elementType, name);
  if (known != nullptr || !create) return known;
  auto made = std::make_unique<KYRPropertyType>(elementType);
  made->setName(name);
  made->designLevel = designLevel;
  made->usage = usage;
  made->initialValue = initialValue;
  made->dataType = dataType;
  model->addPropertyType(made.get());
  return made.release();
}

void setPropertyValue(KYRPropertyType* propertyType, const KYRString& value, KYRElement* element) {
  if (propertyType != nullptr && element != nullptr) element->setPropertyValue(propertyType, value);
}
