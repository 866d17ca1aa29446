#include "repository/model/KYREnumeration.h"

#include <gtest/gtest.h>

#include "foundation/KYRException.h"
#include "repository/model/KYRArgumentType.h"
#include "repository/model/KYRClassCategoryType.h"
#include "repository/model/KYRDesignLevelType.h"
#include "repository/model/KYRStoreType.h"
#include "repository/model/KYRVisibilityType.h"

namespace {

template <class Enumeration>
class KYREnumerationOf : public testing::Test {};
using All = testing::Types<KYRVisibilityType, KYRArgumentType, KYRClassCategoryType, KYRDesignLevelType,
                           KYRStoreType>;
TYPED_TEST_SUITE(KYREnumerationOf, All);

TYPED_TEST(KYREnumerationOf, StartsAt0AndHoldsTheNumbersInRange) {
  TypeParam value;
  EXPECT_EQ(value, 0);
  for (int number = 0; number <= TypeParam::highestValue; ++number) {
    EXPECT_EQ(TypeParam::isValid(number), number);
    value = number;
    EXPECT_EQ(value, number);
  }
}

TYPED_TEST(KYREnumerationOf, RaisesForOtherNumbersAndKeepsTheOldOne) {
  TypeParam value;
  for (const int number : {-1, TypeParam::highestValue + 1, 256, -2147483647}) {
    EXPECT_THROW(TypeParam::isValid(number), KYRException) << number;
    EXPECT_THROW(value = number, KYRException) << number;
    EXPECT_EQ(value, 0);
  }
}

TEST(KYREnumeration, TheExceptionNamesEnumerationAndNumber) {
  try {
    KYRVisibilityType::isValid(4);
    FAIL();
  } catch (const KYRException& exception) {
    EXPECT_EQ(exception.getMessage(), "[KYRSTD_F0100] KYRVisibilityType has no value 4");
  }
}

TEST(KYREnumeration, HasTheNumbersThatHostsKnow) {
  EXPECT_EQ(KYRVisibilityType::highestValue, 3);
  EXPECT_EQ(KYRArgumentType::highestValue, 4);
  EXPECT_EQ(KYRClassCategoryType::interface_, 9);
  EXPECT_EQ(KYRDesignLevelType::highestValue, 1);
  EXPECT_EQ(KYRStoreType::design, 3);
}

}  // namespace
