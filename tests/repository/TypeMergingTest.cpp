#include <gtest/gtest.h>

#include <memory>

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClassType.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYROperation.h"
#include "repository/model/KYRStoreModel.h"
#include "repository/model/KYRTypeValue.h"

namespace {

TEST(CreateBaseType, MakesOneThatIsNotYetInAModel) {
  const std::unique_ptr<KYRConcreteType> type(createBaseType("VARCHAR"));
  EXPECT_EQ(type->getName(), "VARCHAR");
  EXPECT_EQ(type->getElementType(), 4);
  EXPECT_EQ(type->getParent(), nullptr);
}

TEST(GetType, AsksTheModel) {
  KYRStoreModel model;
  KYRConcreteType* base = createBaseType("VARCHAR");
  model.addType(base);
  EXPECT_EQ(getType(&model, "VARCHAR", 4), base);
  EXPECT_EQ(getType(&model, "VARCHAR", 5), nullptr);
  EXPECT_EQ(getType(nullptr, "VARCHAR", 4), nullptr);
}

class FactorizeTypes : public testing::Test {
 protected:
  KYRDerivedType* add() {
    auto* type = new KYRDerivedType();
    model.addType(type);
    type->setName("colour");
    type->dataType = "SQL_VARCHAR";
    type->nativeDataType = "Colour";
    type->length = 3;
    type->scale = 1;
    type->userDefined = true;
    addValue(type, "red", "1");
    addValue(type, "green", "2");
    return type;
  }
  static void addValue(KYRDerivedType* type, const char* name, const char* text) {
    auto* value = new KYRTypeValue();
    value->setName(name);
    value->setValue(text);
    type->addTypeValue(value);
  }
  KYRStoreModel model;
};

TEST_F(FactorizeTypes, EqualTypesMergeIntoTheFirst) {
  KYRDerivedType* first = add();
  KYRDerivedType* second = add();
  KYRDerivedType* third = add();
  KYRAttribute attribute;
  attribute.addType(second);
  KYROperation operation;
  operation.addReturnType(third);
  auto* onTop = new KYRDerivedType();
  model.addType(onTop);
  onTop->addDerivedFromConcreteType(third);
  factorizeTypes(&model, 0, 0);
  EXPECT_EQ(model.types.count(), 2U);
  EXPECT_EQ(attribute.type, first);
  EXPECT_EQ(operation.returnType, first);
  EXPECT_EQ(onTop->baseConcreteType, first);
}

TEST_F(FactorizeTypes, EachDifferenceKeepsTypesApart) {
  using Change = void (*)(KYRDerivedType*);
  const Change changes[] = {
      [](KYRDerivedType* type) { type->setName("Colour"); },
      [](KYRDerivedType* type) { type->dataType = "SQL_INTEGER"; },
      [](KYRDerivedType* type) { type->nativeDataType = "colour"; },
      [](KYRDerivedType* type) { type->length = 4; },
      [](KYRDerivedType* type) { type->scale = 0; },
      [](KYRDerivedType* type) { type->userDefined = false; },
      [](KYRDerivedType* type) { type->typeValues[0]->setName("Red"); },
      [](KYRDerivedType* type) { type->typeValues[1]->setValue("3"); },
      [](KYRDerivedType* type) { delete type->typeValues[1]; },
      [](KYRDerivedType* type) { addValue(type, "blue", "3"); },
      [](KYRDerivedType* type) {  // the same values in another order
        delete type->typeValues[0];
        addValue(type, "red", "1");
      },
  };
  add();
  for (const Change& change : changes) change(add());
  const unsigned int count = model.types.count();
  factorizeTypes(&model, 0, 0);
  EXPECT_EQ(model.types.count(), count);
}

TEST_F(FactorizeTypes, WhatIsNotComparedDoesNotMatter) {
  KYRDerivedType* first = add();
  KYRDerivedType* second = add();
  first->sourceId = "a";
  second->sourceId = "b";
  second->addDerivedFromConcreteType(first);
  factorizeTypes(&model, 0, 0);
  EXPECT_EQ(model.types.count(), 1U);
  EXPECT_EQ(first->baseConcreteType, nullptr);
}

TEST_F(FactorizeTypes, ATypeThatRestsOnItsTwinTakesTheTwinsBase) {
  KYRDerivedType* first = add();
  KYRDerivedType* second = add();
  KYRConcreteType* base = createBaseType("VARCHAR");
  model.addType(base);
  first->addDerivedFromConcreteType(second);
  second->addDerivedFromConcreteType(base);
  factorizeTypes(&model, 0, 0);
  EXPECT_EQ(first->baseConcreteType, base);
  EXPECT_EQ(base->derivedTypes.count(), 1U);
}

TEST_F(FactorizeTypes, BaseTypesAndClassTypesStay) {
  for (int i = 0; i < 2; ++i) {
    model.addType(createBaseType("VARCHAR"));
    model.addType(new KYRClassType());
  }
  factorizeTypes(&model, 0, 0);
  factorizeTypes(nullptr, 0, 0);
  EXPECT_EQ(model.types.count(), 4U);
}

TEST_F(FactorizeTypes, TextsAreNotRunTogether) {
  auto* first = new KYRDerivedType();
  first->setName("ab");
  first->dataType = "c";
  model.addType(first);
  auto* second = new KYRDerivedType();
  second->setName("a");
  second->dataType = "bc";
  model.addType(second);
  factorizeTypes(&model, 0, 0);
  EXPECT_EQ(model.types.count(), 2U);
}

}  // namespace
