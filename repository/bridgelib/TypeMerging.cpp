// Finding, making and merging types. Equal types have equal texts of all that is compared.
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYRStoreModel.h"
#include "repository/model/KYRTypeValue.h"

namespace {

// Each text with its length before it, so that no two lists of texts give the same whole.
void append(std::string& whole, std::string_view text) {
  whole += std::to_string(text.size());
  whole += ':';
  whole += text;
}

std::string describe(const KYRDerivedType& type) {
  std::string whole;
  append(whole, type.getName().view());
  append(whole, type.dataType.view());
  append(whole, type.nativeDataType.view());
  whole += std::to_string(type.length) + '/' + std::to_string(type.scale) + (type.userDefined ? '+' : '-');
  for (const KYRTypeValue* value : type.typeValues) {
    append(whole, value->getName().view());
    append(whole, value->value.view());
  }
  return whole;
}

// Gives `kept` everything that refers to its twin, and deletes the twin.
void merge(KYRDerivedType& kept, KYRDerivedType* twin) {
  twin->moveTypedObjects(&kept);
  while (KYRDerivedType* type = twin->derivedTypes[0]) {
    KYRConcreteType* const below = type == &kept ? twin->baseConcreteType : &kept;
    type->addDerivedFromConcreteType(below == type ? nullptr : below);
  }
  delete twin;
}

}  // namespace

KYRType* getType(KYRModel* model, const KYRString& name, int elementType) {
  return model == nullptr ? nullptr : model->getType(name, elementType);
}

KYRConcreteType* createBaseType(const KYRString& name) {
  auto type = std::make_unique<KYRConcreteType>();
  type->setName(name);
  return type.release();
}

void factorizeTypes(KYRStoreModel* model, int, int) {
  if (model == nullptr) return;
  std::vector<KYRDerivedType*> types;
  for (KYRType* type : model->types) {
    if (auto* derived = dynamic_cast<KYRDerivedType*>(type)) types.push_back(derived);
  }
  std::unordered_map<std::string, KYRDerivedType*> firstOf;
  for (KYRDerivedType* type : types) {
    const auto [known, isNew] = firstOf.try_emplace(describe(*type), type);
    if (!isNew) merge(*known->second, type);
  }
}
