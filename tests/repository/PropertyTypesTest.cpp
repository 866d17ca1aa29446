#include <gtest/gtest.h>

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRPropertyType.h"
#include "repository/model/KYRPropertyValue.h"
#include "repository/model/KYRStoreModel.h"

namespace {

KYRPropertyType* fetch(KYRModel& model, int elementType, const char* name, bool create = true) {
  return fetchPropertyType(&model, elementType, name, 0, "USER", "", "SQL_VARCHAR", create);
}

TEST(FetchPropertyType, MakesEachDefinitionOnceInOrderOfMaking) {
  KYRStoreModel model;
  KYRPropertyType* author = fetch(model, 13, "author");
  KYRPropertyType* status = fetch(model, 13, "status");
  KYRPropertyType* ofAttributes = fetch(model, 14, "author");
  EXPECT_EQ(fetch(model, 13, "author"), author);
  EXPECT_NE(fetch(model, 13, "Author"), author);
  EXPECT_EQ(model.propertyTypes[1], status);
  EXPECT_EQ(model.propertyTypes[2], ofAttributes);
  EXPECT_EQ(model.propertyTypes.count(), 4U);
  EXPECT_EQ(author->getParent(), &model);
  EXPECT_EQ(author->getName(), "author");
  EXPECT_EQ(author->elementType, 13);
  EXPECT_EQ(author->designLevel, 0);
  EXPECT_EQ(author->usage, "USER");
  EXPECT_TRUE(author->initialValue.isEmpty());
  EXPECT_EQ(author->dataType, "SQL_VARCHAR");
}

TEST(FetchPropertyType, OnlyFindsWithoutTheFlag) {
  KYRStoreModel model;
  EXPECT_EQ(fetch(model, 13, "author", false), nullptr);
  EXPECT_TRUE(model.propertyTypes.isEmpty());
  KYRPropertyType* author = fetch(model, 13, "author");
  EXPECT_EQ(fetch(model, 13, "author", false), author);
}

TEST(FetchPropertyType, ManyDefinitionsCostLinearTime) {
  constexpr int count = 50000;
  KYRStoreModel model;
  for (int pass = 0; pass < 2; ++pass) {
    for (int i = 0; i < count; ++i)
      fetch(model, 13 + i % 2, (KYRString("p") + KYRString(i / 2)).getCharacters());
  }
  EXPECT_EQ(model.propertyTypes.count(), static_cast<unsigned int>(count));
  EXPECT_LT(model.propertyTypes.getCollection()->getComparisonCount(), 40U * count);
}

TEST(SetPropertyValue, TheLaterValueStays) {
  KYRStoreModel model;
  KYRPropertyType* author = fetch(model, 13, "author");
  KYRClass element;
  setPropertyValue(author, "me", &element);
  setPropertyValue(author, "you", &element);
  setPropertyValue(nullptr, "nobody", &element);
  setPropertyValue(author, "nowhere", nullptr);
  EXPECT_EQ(element.getPropertyValue(author)->value, "you");
  EXPECT_EQ(author->getValueCount(), 1U);
}

}  // namespace
