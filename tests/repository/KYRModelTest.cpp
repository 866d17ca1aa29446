#include "repository/model/KYRModel.h"

#include <gtest/gtest.h>

#include "foundation/KYRException.h"
#include "repository/model/KYRClassType.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYRMetadataOrigin.h"
#include "repository/model/KYRPropertyType.h"
#include "repository/model/KYRStoreModel.h"

namespace {

TEST(KYRModel, TheOriginAddedLastIsTheMetadataOrigin) {
  KYRStoreModel model;
  EXPECT_EQ(model.metadataOrigin, nullptr);
  auto* first = new KYRMetadataOrigin();
  model.addMetadataOrigin(first);
  auto* second = new KYRMetadataOrigin();
  model.addMetadataOrigin(second);
  EXPECT_EQ(model.metadataOrigin, second);
  EXPECT_EQ(model.getMetadataOriginCount(), 2U);
  EXPECT_EQ(model.getMetadataOrigin(0), first);
  EXPECT_EQ(model.getMetadataOrigin(2), nullptr);
  model.addMetadataOrigin(second);
  EXPECT_EQ(model.getMetadataOriginCount(), 2U);
  EXPECT_THROW(model.addMetadataOrigin(nullptr), KYRException);
}

template <class T>
T* addType(KYRModel& model, const char* name) {
  auto* type = new T();
  type->setName(name);
  model.addType(type);
  return type;
}

TEST(KYRModel, TypesAreFoundByExactNameAndElementType) {
  for (const int others : {0, 100}) {
    KYRStoreModel model;
    for (int i = 0; i < others; ++i) addType<KYRDerivedType>(model, "VARCHAR");
    auto* base = addType<KYRConcreteType>(model, "VARCHAR");
    addType<KYRConcreteType>(model, "VARCHAR");
    auto* derived = addType<KYRDerivedType>(model, "Text");
    auto* ofClass = addType<KYRClassType>(model, "Text");
    EXPECT_EQ(model.getType("VARCHAR", KYRElementType::baseType), base);
    EXPECT_EQ(model.getType("Text", KYRElementType::derivedType), derived);
    EXPECT_EQ(model.getType("Text", KYRElementType::classType), ofClass);
    EXPECT_EQ(model.getType("text", KYRElementType::derivedType), nullptr);
    EXPECT_EQ(model.getType("Text", KYRElementType::baseType), nullptr);
    derived->setName("renamed");
    EXPECT_EQ(model.getType("renamed", KYRElementType::derivedType), derived);
    delete base;
    EXPECT_NE(model.getType("VARCHAR", KYRElementType::baseType), nullptr);
  }
}

TEST(KYRModel, PropertyTypesAreToldApartByElementTypeAndName) {
  KYRStoreModel model;
  for (const int type : {KYRElementType::class_, KYRElementType::attribute}) {
    auto* property = new KYRPropertyType(type);
    property->setName("author");
    model.addPropertyType(property);
  }
  EXPECT_EQ(model.getPropertyType(KYRElementType::class_, "author"), model.propertyTypes[0]);
  EXPECT_EQ(model.getPropertyType(KYRElementType::attribute, "author"), model.propertyTypes[1]);
  EXPECT_EQ(model.getPropertyType(KYRElementType::class_, "Author"), nullptr);
  EXPECT_EQ(model.getPropertyType(KYRElementType::operation, "author"), nullptr);
}

}  // namespace
