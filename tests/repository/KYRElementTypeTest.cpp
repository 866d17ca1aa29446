#include "repository/model/KYRElementType.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "foundation/KYRException.h"
#include "repository/storage/StoredClasses.h"

namespace {

struct Known {
  int number;
  const char* name;
};

TEST(KYRElementType, HasTheNumbersThatHostsKnow) {
  const Known known[] = {
      {2, "KYRStoreModel"}, {4, "KYRConcreteType"}, {5, "KYRDerivedType"},          {9, "KYRDesignPackage"},
      {13, "KYRClass"},     {14, "KYRAttribute"},   {17, "KYRAssociation"},         {21, "KYRCandidateKey"},
      {23, "KYROperation"}, {24, "KYRArgument"},    {155, "KYRGeneralizationRole"},
  };
  for (const Known& row : known) {
    EXPECT_STREQ(KYRElementType::getClassName(row.number), row.name);
    EXPECT_EQ(KYRElementType::findClass(row.name), row.number);
  }
}

TEST(KYRElementType, NoClassHasTheNumber40) {
  EXPECT_EQ(KYRElementType::getClassName(40), nullptr);
  EXPECT_THROW(KYRElementType::isValid(40), KYRException);
}

TEST(KYRElementType, EachNameStandsOnceAndLeadsToTheRoot) {
  std::set<std::string> names;
  for (int number = 0; number < 256; ++number) {
    const char* name = KYRElementType::getClassName(number);
    if (name == nullptr) continue;
    EXPECT_TRUE(names.insert(name).second) << name;
    int type = number;
    for (int steps = 0; KYRElementType::getBase(type) != 0; ++steps) {
      ASSERT_LT(steps, 20) << name;
      type = KYRElementType::getBase(type);
    }
    EXPECT_EQ(type, KYRElementType::object) << name;
  }
  EXPECT_EQ(names.size(), 40U);
}

TEST(KYRElementType, RefusesNumbersOutOfRange) {
  for (const int number : {-1, 0, 1, 3, 254, 256, 100000}) {
    EXPECT_THROW(KYRElementType::isValid(number), KYRException) << number;
    EXPECT_THROW(KYRElementType{number}, KYRException) << number;
    EXPECT_EQ(KYRElementType::getBase(number), 0) << number;
  }
  EXPECT_EQ(KYRElementType::findClass("KYRThing"), 0);
}

TEST(KYRElementType, ObjectsBearTheNumberOfTheirClass) {
  for (const StoredClass& stored : StoredClasses::getAll()) {
    if (stored.make == nullptr) continue;
    const std::unique_ptr<KYRObject> object(stored.make());
    EXPECT_EQ(object->getElementType(), stored.elementType) << stored.name;
  }
}

}  // namespace
