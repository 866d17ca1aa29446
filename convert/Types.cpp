// Types. UML features point at types; features of the repository share them. A class in the place of
// a type becomes a class type; everything else becomes a derived type, which rests on a base type.
//
// The first UML type to use a name decides all about the derived type of that name, length and scale.
#include <array>

#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "foundation/ShownText.h"
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/datatypes/KYRDataTypeConverter.h"
#include "repository/model/KYRArgument.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassType.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYROperation.h"
#include "repository/model/KYRStoreModel.h"
#include "uml/UMLCast.h"
#include "uml/UMLClassifiers.h"
#include "uml/UMLFeatures.h"

namespace {

constexpr const char* undefinedName = "undefined";
constexpr const char* classTypeSuffix = "_type";

// The name with the numbers in it: "varchar_30", "decimal_10_2". A scale by itself adds nothing.
KYRString buildLogicalName(const KYRString& typeName, int length, int scale) {
  KYRString name = shownText(typeName);
  if (length == 0) return name;
  name += "_";
  name += KYRString(length);
  if (scale == 0) return name;
  name += "_";
  name += KYRString(scale);
  return name;
}

// The UML type of an attribute or argument, and what an operation returns; null where there is none.
UMLType* typeElementOf(const KYRObject& feature) {
  if (feature.getElementType() == KYRElementType::operation) {
    const auto* const operation = umlCast<UMLOperation>(feature.umlElement);
    return operation == nullptr ? nullptr : operation->type;
  }
  const auto* const element = umlCast<UMLTypedElement>(feature.umlElement);
  return element == nullptr ? nullptr : element->type;
}

}  // namespace

// The element type is the class, so the casts need no check; there is one for each feature of a model.
// NOLINTBEGIN(cppcoreguidelines-pro-type-static-cast-downcast)
void KYROmgUml2XmiImportBridge::assignFeatureType(KYRObject* feature) {
  UMLType* const element = typeElementOf(*feature);
  switch (feature->getElementType()) {
    case KYRElementType::attribute:
      static_cast<KYRAttribute&>(*feature).addType(featureTypeOf(element));
      break;
    case KYRElementType::argument:
      static_cast<KYRArgument&>(*feature).addType(featureTypeOf(element));
      break;
    case KYRElementType::operation:
      // One without a type returns nothing.
      if (element != nullptr) static_cast<KYROperation&>(*feature).addReturnType(featureTypeOf(element));
      break;
    default:
      break;
  }
}
// NOLINTEND(cppcoreguidelines-pro-type-static-cast-downcast)

// Features, their elements, the types of those, and what these have become lie anywhere in memory: each is
// asked for some features ahead of its use.
void KYROmgUml2XmiImportBridge::assignFeatureTypes() {
  constexpr unsigned int stage = 6;  // features from one question to the next
  constexpr unsigned int elementsAhead = 4 * stage;
  constexpr unsigned int typeElementsAhead = 3 * stage;
  constexpr unsigned int typesAhead = 2 * stage;
  constexpr unsigned int listsAhead = stage;
  std::array<UMLType*, typeElementsAhead + 1> ring{};
  const auto coming = [&ring](unsigned int at) -> UMLType*& { return ring[at % ring.size()]; };
  const unsigned int count = typedFeatures.count();
  for (unsigned int ahead = 0; ahead < count + elementsAhead; ++ahead) {
    if (ahead < count) __builtin_prefetch(typedFeatures.at(ahead)->umlElement);
    const unsigned int at = ahead - elementsAhead;  // wraps to beyond the end while there is none
    if (const unsigned int next = at + typeElementsAhead; next < count) {
      coming(next) = typeElementOf(*typedFeatures.at(next));
      if (coming(next) != nullptr) __builtin_prefetch(&coming(next)->repositoryType);
    }
    if (const unsigned int next = at + typesAhead; next < count && coming(next) != nullptr) {
      if (const KYRType* const type = coming(next)->repositoryType) __builtin_prefetch(&type->typedObjects);
    }
    if (const unsigned int next = at + listsAhead; next < count && coming(next) != nullptr) {
      if (const KYRType* const type = coming(next)->repositoryType) {
        __builtin_prefetch(type->typedObjects.getCollection());
      }
    }
    if (at < count) assignFeatureType(typedFeatures.at(at));
  }
}

// Features without a type share one that is undefined.
KYRType* KYROmgUml2XmiImportBridge::featureTypeOf(UMLType* element) {
  if (element == nullptr) return getDerivedType(undefinedName, KYRString::getEmptyString(), 0, 0, true);
  if (element->repositoryType != nullptr) return element->repositoryType;
  KYRType* const type = convertType(element);
  // What an enumeration becomes is made complete anew for each feature.
  if (element->getKind() != UMLEnumeration::kind) element->repositoryType = type;
  return type;
}

KYRType* KYROmgUml2XmiImportBridge::convertType(UMLType* element) {
  if (element->name.isEmpty()) return getDerivedType(undefinedName, element->id, 0, 0, true);
  const int kind = element->getKind();
  if (kind == UMLEnumeration::kind) return convertEnumeration(umlCast<UMLEnumeration>(element));
  if (kind == UMLClass::kind || kind == UMLInterface::kind) {
    if (KYRClass* const typeClass = KYRClass::from(element->repositoryObject)) return getClassType(typeClass);
  }
  // A class that was dropped lives on here, as a type of its name.
  return getDerivedType(element->name, element->id, element->length, element->scale, true);
}

KYRDerivedType* KYROmgUml2XmiImportBridge::getDerivedType(const KYRString& typeName,
                                                          const KYRString& sourceId, int length, int scale,
                                                          bool withBase) {
  const KYRString logicalName = buildLogicalName(typeName, length, scale);
  if (auto* const known = dynamic_cast<KYRDerivedType*>(
          findDerivedType(storeModel, logicalName, length, scale, KYRElementType::derivedType))) {
    return known;
  }
  auto made = std::make_unique<KYRDerivedType>();
  made->dataType = dataTypeConverter->getImportTypeName(typeName);
  made->nativeDataType = shownText(typeName);
  made->takeName(shownText(logicalName));
  made->userDefined = true;
  made->sourceId = shownText(sourceId);
  if (!isUndefined(made->dataType)) {
    made->length = length;
    made->scale = scale;
  }
  storeModel->addType(made.get());
  KYRDerivedType* const type = made.release();  // ownership: the model
  if (withBase) ensureBaseType(type);
  if (type->getName().isEmpty()) type->setName(undefinedName);
  return type;
}

KYRConcreteType* KYROmgUml2XmiImportBridge::findDerivedType(KYRStoreModel* model, const KYRString& name,
                                                            int length, int scale, int elementType) {
  return typeIndex.find(*model, name, length, scale, elementType);
}

void KYROmgUml2XmiImportBridge::ensureBaseType(KYRDerivedType* type) {
  if (type->baseConcreteType == nullptr) type->addDerivedFromConcreteType(getBaseType(type->dataType));
}

KYRConcreteType* KYROmgUml2XmiImportBridge::getBaseType(const KYRString& dataType) {
  const KYRString& logicalName = getDefaultLogicalName(dataType);
  KYRConcreteType*& base = baseTypes_[std::string(logicalName.view())];
  if (base != nullptr) return base;
  base = dynamic_cast<KYRConcreteType*>(getType(storeModel, logicalName, KYRElementType::baseType));
  if (base != nullptr) return base;
  std::unique_ptr<KYRConcreteType> made(createBaseType(logicalName));
  storeModel->addType(made.get());
  base = made.release();  // ownership: the model
  return base;
}

KYRClassType* KYROmgUml2XmiImportBridge::getClassType(KYRClass* typeClass) {
  if (typeClass == nullptr) return nullptr;
  if (typeClass->classType != nullptr) return typeClass->classType;
  auto made = std::make_unique<KYRClassType>();
  made->takeName(shownText(typeClass->getName()));
  made->setPhysicalName(undefinedName);
  made->addAssociatedClass(typeClass);
  made->addModel(storeModel);
  KYRClassType* const type = made.release();  // ownership: the model
  type->sourceId = typeClass->sourceId + classTypeSuffix;
  return type;
}
