// The index of types, and what it costs to ask it.
#include "bridge/state/TypeIndex.h"

#include <gtest/gtest.h>

#include <string>

#include "repository/model/KYRClassType.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYRStoreModel.h"

namespace {

KYRDerivedType* add(KYRStoreModel& model, const std::string& name, int length, int scale) {
  auto* const type = new KYRDerivedType();
  type->setName(KYRString(name));
  type->length = length;
  type->scale = scale;
  model.addType(type);
  return type;
}

}  // namespace

TEST(TypeIndex, ATypeIsFoundByNameInAnyCaseLengthScaleAndElementType) {
  KYRStoreModel model;
  const KYRDerivedType* const type = add(model, "Money", 10, 2);
  TypeIndex index;
  EXPECT_EQ(index.find(model, "mONEY", 10, 2, KYRElementType::derivedType), type);
  EXPECT_EQ(index.find(model, "money", 10, 0, KYRElementType::derivedType), nullptr);
  EXPECT_EQ(index.find(model, "money", 0, 2, KYRElementType::derivedType), nullptr);
  EXPECT_EQ(index.find(model, "moneys", 10, 2, KYRElementType::derivedType), nullptr);
  EXPECT_EQ(index.find(model, "money", 10, 2, KYRElementType::baseType), nullptr);
}

TEST(TypeIndex, TheFirstOfEqualTypesIsFoundAndLaterOnesAreSeen) {
  KYRStoreModel model;
  TypeIndex index;
  EXPECT_EQ(index.find(model, "a", 0, 0, KYRElementType::derivedType), nullptr);
  const KYRDerivedType* const first = add(model, "A", 0, 0);
  add(model, "a", 0, 0);
  const KYRDerivedType* const other = add(model, "b", 0, 0);
  EXPECT_EQ(index.find(model, "a", 0, 0, KYRElementType::derivedType), first);
  EXPECT_EQ(index.find(model, "b", 0, 0, KYRElementType::derivedType), other);
}

TEST(TypeIndex, ClassTypesArePassedOver) {
  KYRStoreModel model;
  auto* const type = new KYRClassType();
  type->setName("C");
  model.addType(type);
  TypeIndex index;
  EXPECT_EQ(index.find(model, "c", 0, 0, KYRElementType::classType), nullptr);
}

TEST(TypeIndex, AnotherModelIsIndexedAnew) {
  KYRStoreModel one;
  KYRStoreModel two;
  add(one, "a", 0, 0);
  TypeIndex index;
  EXPECT_NE(index.find(one, "a", 0, 0, KYRElementType::derivedType), nullptr);
  EXPECT_EQ(index.find(two, "a", 0, 0, KYRElementType::derivedType), nullptr);
}

TEST(TypeIndex, QuestionsCostTheSameHoweverManyTypesThereAre) {
  constexpr int types = 1000;
  constexpr std::uint64_t stepsForOne = 5;
  KYRStoreModel model;
  for (int i = 0; i < types; ++i) add(model, "t" + std::to_string(i), i, 0);
  TypeIndex index;
  for (int i = 0; i < types; ++i) {
    const KYRString name("T" + std::to_string(i));
    EXPECT_NE(index.find(model, name, i, 0, KYRElementType::derivedType), nullptr);
  }
  EXPECT_LE(index.getComparisonCount(), stepsForOne * types);
}
