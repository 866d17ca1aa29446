#include "repository/model/KYRType.h"

#include <gtest/gtest.h>

#include <memory>

#include "foundation/KYRException.h"
#include "repository/model/KYRArgument.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassType.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYROperation.h"
#include "repository/model/KYRStoreModel.h"
#include "repository/model/KYRTypeValue.h"

namespace {

TEST(KYRType, IsSharedByAttributesArgumentsAndOperations) {
  auto type = std::make_unique<KYRDerivedType>();
  KYRAttribute attribute;
  KYRArgument argument;
  KYROperation operation;
  attribute.addType(type.get());
  argument.addType(type.get());
  operation.addReturnType(type.get());
  EXPECT_EQ(type->typedObjects.count(), 3U);
  attribute.addType(type.get());
  EXPECT_EQ(type->typedObjects.count(), 3U);
  KYRClassType other;
  argument.addType(&other);
  EXPECT_EQ(type->typedObjects.count(), 2U);
  EXPECT_EQ(other.typedObjects[0], &argument);
  type.reset();
  EXPECT_EQ(attribute.type, nullptr);
  EXPECT_EQ(operation.returnType, nullptr);
  EXPECT_EQ(argument.type, &other);
  argument.addType(nullptr);
  EXPECT_TRUE(other.typedObjects.isEmpty());
}

TEST(KYRType, MovesWhatHasItToAnother) {
  KYRDerivedType from;
  KYRDerivedType to;
  KYRAttribute attribute;
  KYROperation operation;
  attribute.addType(&from);
  operation.addReturnType(&from);
  from.moveTypedObjects(&to);
  EXPECT_EQ(attribute.type, &to);
  EXPECT_EQ(operation.returnType, &to);
  EXPECT_TRUE(from.typedObjects.isEmpty());
  EXPECT_EQ(to.typedObjects.count(), 2U);
  to.moveTypedObjects(&to);
  EXPECT_EQ(to.typedObjects.count(), 2U);
}

TEST(KYRType, AddModelIsTheSameAsAddType) {
  KYRStoreModel model;
  auto* type = new KYRClassType();
  type->addModel(&model);
  EXPECT_EQ(type->getParent(), &model);
  EXPECT_EQ(model.types[0], type);
  EXPECT_THROW(type->addModel(nullptr), KYRException);
}

TEST(KYRDerivedType, RestsOnOneBaseAndLosesItWithItsEnd) {
  KYRDerivedType type;
  EXPECT_EQ(type.baseConcreteType, nullptr);
  KYRConcreteType first;
  type.addDerivedFromConcreteType(&first);
  EXPECT_EQ(first.derivedTypes[0], &type);
  {
    KYRConcreteType second;
    type.addDerivedFromConcreteType(&second);
    EXPECT_TRUE(first.derivedTypes.isEmpty());
  }
  EXPECT_EQ(type.baseConcreteType, nullptr);
  EXPECT_THROW(type.addDerivedFromConcreteType(&type), KYRException);
}

TEST(KYRDerivedType, RefusesAValueOfANameThatItHolds) {
  KYRDerivedType type;
  type.setName("colour");
  const auto value = [](const char* name) {
    auto made = std::make_unique<KYRTypeValue>();
    made->setName(name);
    return made;
  };
  for (const char* name : {"red", "Red", ""}) {
    type.addTypeValue(value(name).release());
  }
  EXPECT_EQ(type.getTypeValueCount(), 3);
  for (const char* name : {"red", ""}) {
    const auto again = value(name);
    EXPECT_THROW(type.addTypeValue(again.get()), KYRException) << name;
    EXPECT_EQ(again->getParent(), nullptr);
  }
  EXPECT_EQ(type.getTypeValueCount(), 3);
}

TEST(KYRDerivedType, TellsItsFieldsThroughItsOperations) {
  KYRDerivedType type;
  type.dataType = "SQL_DECIMAL";
  type.length = 10;
  type.scale = 2;
  const KYRConcreteType& base = type;
  EXPECT_EQ(base.getDataType(), "SQL_DECIMAL");
  EXPECT_EQ(base.getLength(), 10);
  EXPECT_EQ(base.getScale(), 2);
}

TEST(KYRClassType, IsTheClassTypeOfOneClass) {
  KYRClass first;
  KYRClass second;
  auto type = std::make_unique<KYRClassType>();
  type->addAssociatedClass(&first);
  EXPECT_EQ(first.classType, type.get());
  type->addAssociatedClass(&second);
  EXPECT_EQ(first.classType, nullptr);
  EXPECT_EQ(second.classType, type.get());
  KYRClassType other;
  other.addAssociatedClass(&second);
  EXPECT_EQ(type->associatedClass, nullptr);
  EXPECT_EQ(second.classType, &other);
}

TEST(KYRTypeValue, HoldsAValueAndAPosition) {
  KYRTypeValue value;
  EXPECT_TRUE(value.value.isEmpty());
  value.setValue("1");
  EXPECT_EQ(value.value, "1");
  EXPECT_EQ(value.position, 0);
}

}  // namespace
