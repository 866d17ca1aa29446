#include "repository/model/KYRObjectList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

#include "repository/model/KYRNote.h"

namespace {

class KYRObjectLists : public testing::Test {
 protected:
  KYRObject* make(std::size_t index) {
    while (objects_.size() <= index) objects_.push_back(std::make_unique<KYRNote>());
    return objects_[index].get();
  }
  std::vector<std::unique_ptr<KYRNote>> objects_;
};

TEST_F(KYRObjectLists, AgreeWithAVectorOverManyChanges) {
  KYRObjectList list;
  std::vector<KYRObject*> expected;
  std::mt19937 random(11);
  std::size_t next = 0;
  for (int step = 0; step < 20000; ++step) {
    const bool grows = (step / 2000) % 2 == 0;
    if (expected.empty() || random() % 3 == 0 || (grows && random() % 2 == 0)) {
      KYRObject* object = make(next++);
      list.add(object);
      expected.push_back(object);
    } else {
      const auto at = static_cast<std::ptrdiff_t>(random() % expected.size());
      ASSERT_TRUE(list.remove(expected[static_cast<std::size_t>(at)]));
      expected.erase(expected.begin() + at);
    }
    ASSERT_EQ(list.getCount(), expected.size());
    if (!expected.empty() && step % 7 == 0) {
      const std::size_t at = random() % expected.size();
      ASSERT_EQ(list.getAt(static_cast<std::uint32_t>(at)), expected[at]);
      ASSERT_TRUE(list.contains(expected[at]));
    }
  }
}

TEST_F(KYRObjectLists, WhatIsNotThereIsNotRemoved) {
  KYRObjectList list;
  EXPECT_FALSE(list.remove(make(0)));
  EXPECT_FALSE(list.remove(nullptr));
  EXPECT_FALSE(list.contains(nullptr));
  list.add(make(0));
  EXPECT_FALSE(list.remove(make(1)));
  EXPECT_EQ(list.getAt(1), nullptr);
}

// Removal in three orders, each of which would be quadratic if every one moved the rest.
TEST_F(KYRObjectLists, RemovalOfAllStaysLinearFromAnywhere) {
  constexpr std::size_t count = 100000;
  make(count - 1);
  std::vector<std::size_t> order(count);
  for (std::size_t i = 0; i < count; ++i) order[i] = i;
  for (const char* way : {"front", "back", "anywhere"}) {
    KYRObjectList list;
    for (std::size_t i = 0; i < count; ++i) list.add(make(i));
    if (*way == 'b') std::reverse(order.begin(), order.end());
    if (*way == 'a') std::shuffle(order.begin(), order.end(), std::mt19937(3));
    for (const std::size_t i : order) ASSERT_TRUE(list.remove(make(i)));
    EXPECT_EQ(list.getCount(), 0U) << way;
    EXPECT_LT(list.getComparisonCount(), 100 * count) << way;
  }
}

}  // namespace
