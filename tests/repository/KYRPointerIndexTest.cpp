#include "repository/model/KYRPointerIndex.h"

#include <gtest/gtest.h>

#include <random>
#include <unordered_map>
#include <vector>

namespace {

TEST(KYRPointerIndex, AgreesWithAMapOverManyChanges) {
  std::vector<int> objects(2000);
  std::unordered_map<const void*, std::uint32_t> expected;
  KYRPointerIndex index;
  std::mt19937 random(7);
  for (std::uint32_t step = 0; step < 100000; ++step) {
    const void* key = &objects[random() % objects.size()];
    switch (random() % 4) {
      case 0:
        index.erase(key);
        expected.erase(key);
        break;
      case 1:
        index.replace(key, step);
        if (expected.count(key) != 0) expected[key] = step;
        break;
      default:
        index.set(key, step);
        expected[key] = step;
    }
    const void* asked = &objects[random() % objects.size()];
    const auto found = expected.find(asked);
    ASSERT_EQ(index.find(asked), found == expected.end() ? KYRPointerIndex::none : found->second);
  }
}

TEST(KYRPointerIndex, AnEmptyOneFindsNothing) {
  KYRPointerIndex index;
  int object = 0;
  EXPECT_EQ(index.find(&object), KYRPointerIndex::none);
  index.erase(&object);
  index.replace(&object, 1);
  EXPECT_EQ(index.find(&object), KYRPointerIndex::none);
}

TEST(KYRPointerIndex, TakesAFewProbesForEachQuestion) {
  constexpr std::size_t count = 100000;
  std::vector<std::uint64_t> objects(count);
  KYRPointerIndex index;
  for (std::size_t i = 0; i < count; ++i) index.set(&objects[i], static_cast<std::uint32_t>(i));
  for (std::size_t i = 0; i < count; ++i) ASSERT_EQ(index.find(&objects[i]), i);
  EXPECT_LT(index.getProbeCount(), 10 * count);
}

}  // namespace
