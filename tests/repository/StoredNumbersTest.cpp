// StoredNumbers: the ids of a saved model, and what has none.
#include "repository/storage/StoredNumbers.h"

#include <gtest/gtest.h>

#include <memory>

#include "repository/model/KYRDesignPackage.h"

namespace {

class StoredNumbersTest : public testing::Test {
 protected:
  StoredNumbersTest() {
    for (KYRDesignPackage*& package : packages_) {
      package = new KYRDesignPackage();  // the model owns it
      model_.addDesignPackage(package);
    }
  }

  KYRStoreModel model_;
  KYRDesignPackage* packages_[3] = {};
};

TEST_F(StoredNumbersTest, NumbersFollowTheDocument) {
  for (const auto use : {StoredNumbers::Use::alone, StoredNumbers::Use::shared}) {
    const StoredNumbers numbers(model_, use);
    EXPECT_EQ(numbers.getCount(), 4U);
    EXPECT_EQ(numbers.get(&model_), 1U);
    for (unsigned int i = 0; i < 3; ++i) EXPECT_EQ(numbers.get(packages_[i]), i + 2);
  }
}

TEST_F(StoredNumbersTest, ObjectsAreFoundByTheirNumber) {
  for (const auto use : {StoredNumbers::Use::alone, StoredNumbers::Use::shared}) {
    const StoredNumbers numbers(model_, use);
    EXPECT_EQ(numbers.at(1), &model_);
    EXPECT_EQ(numbers.at(4), packages_[2]);
  }
}

TEST_F(StoredNumbersTest, WhatTheModelDoesNotHoldHasNone) {
  KYRStoreModel other;
  auto* const foreign = new KYRDesignPackage();
  other.addDesignPackage(foreign);
  const KYRDesignPackage alone;
  for (const auto use : {StoredNumbers::Use::alone, StoredNumbers::Use::shared}) {
    const StoredNumbers foreignNumbers(other, use);
    const StoredNumbers numbers(model_, use);
    EXPECT_EQ(numbers.get(nullptr), 0U);
    EXPECT_EQ(numbers.get(&alone), 0U);
    EXPECT_EQ(numbers.get(foreign), 0U);
    EXPECT_EQ(foreignNumbers.get(foreign), 2U);
    EXPECT_EQ(foreignNumbers.get(packages_[0]), 0U);
  }
}

// As in a comparison of a model with itself.
TEST_F(StoredNumbersTest, TwoNumberingsOfAModelStandSideBySide) {
  const StoredNumbers first(model_, StoredNumbers::Use::shared);
  const StoredNumbers second(model_, StoredNumbers::Use::shared);
  EXPECT_EQ(first.get(packages_[1]), 3U);
  EXPECT_EQ(second.get(packages_[1]), 3U);
}

}  // namespace
