// KYRVector: order, uniqueness by pointer, and the index that keeps large lists fast.
#include "foundation/KYRVector.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <utility>
#include <vector>

#include "tests/foundation/AllocationProbe.h"

namespace {

std::vector<const void*> contentOf(const KYRVector& list) {
  std::vector<const void*> content;
  for (unsigned int i = 0; i < list.getCount(); ++i) content.push_back(list.getAt(i));
  return content;
}

class KYRVectorTest : public testing::Test {
 protected:
  const void* object(std::size_t index) const { return &objects_[index]; }
  std::vector<long> objects_ = std::vector<long>(100000);
};

TEST_F(KYRVectorTest, KeepsTheOrderOfAdding) {
  KYRVector list;
  for (std::size_t index : {5U, 1U, 9U, 0U}) list.add(object(index), false, nullptr);
  EXPECT_EQ(contentOf(list), (std::vector<const void*>{object(5), object(1), object(9), object(0)}));
  EXPECT_EQ(list.getAt(4), nullptr);
  EXPECT_EQ(list.getCount(), 4U);
}

TEST_F(KYRVectorTest, WithoutUniqueAnObjectMayStandSeveralTimes) {
  KYRVector list;
  EXPECT_TRUE(list.add(object(0), false, nullptr));
  EXPECT_TRUE(list.add(object(0), false, nullptr));
  EXPECT_FALSE(list.add(object(0), true, nullptr));
  EXPECT_EQ(list.getCount(), 2U);
}

TEST_F(KYRVectorTest, EqualObjectsAtDifferentAddressesAreDifferent) {
  KYRVector list;
  EXPECT_TRUE(list.add(object(0), true, nullptr));
  EXPECT_TRUE(list.add(object(1), true, nullptr));
}

TEST_F(KYRVectorTest, NullIsAnEntryLikeAnyOther) {
  for (const std::size_t others : {3U, 50U}) {  // without and with an index
    KYRVector list;
    for (std::size_t i = 0; i < others; ++i) list.add(object(i), true, nullptr);
    EXPECT_FALSE(list.contains(nullptr, nullptr));
    EXPECT_TRUE(list.add(nullptr, true, nullptr));
    EXPECT_FALSE(list.add(nullptr, true, nullptr));
    EXPECT_TRUE(list.contains(nullptr, nullptr));
    list.removeAt(list.getCount() - 1);
    EXPECT_FALSE(list.contains(nullptr, nullptr));
    EXPECT_EQ(list.getCount(), others);
  }
}

TEST_F(KYRVectorTest, ANegativeInitialSizeCountsAsNone) {
  KYRVector negative(-5);
  KYROrderedVector sized(10);
  EXPECT_TRUE(negative.isEmpty());
  EXPECT_TRUE(sized.isEmpty());
  EXPECT_TRUE(negative.add(object(0), true, nullptr));
}

TEST_F(KYRVectorTest, RemovalAtAPositionClosesTheGap) {
  KYRVector list;
  for (std::size_t i = 0; i < 4; ++i) list.add(object(i), false, nullptr);
  list.removeAt(1);
  list.removeAt(2);
  list.removeAt(2);
  list.removeAt(4000000000U);
  EXPECT_EQ(contentOf(list), (std::vector<const void*>{object(0), object(2)}));
}

TEST_F(KYRVectorTest, CopiesShareTheEntriesAndAreIndependentLists) {
  for (const std::size_t count : {2U, 40U}) {
    KYRVector list;
    for (std::size_t i = 0; i < count; ++i) list.add(object(i), true, nullptr);
    KYRVector copy(list);
    KYRVector assigned;
    for (std::size_t i = 50; i < 90; ++i) assigned.add(object(i), true, nullptr);
    assigned = list;
    const KYRVector& self = assigned;
    assigned = self;
    list.removeAt(0);
    EXPECT_FALSE(list.contains(object(0), nullptr));
    for (KYRVector* each : {&copy, &assigned}) {
      EXPECT_EQ(each->getCount(), count);
      EXPECT_FALSE(each->add(object(0), true, nullptr));
      EXPECT_TRUE(each->add(object(50), true, nullptr));
    }
  }
}

TEST_F(KYRVectorTest, AMoveTakesTheEntriesAndLeavesAnEmptyList) {
  for (const std::size_t count : {2U, 40U}) {
    KYRVector list;
    for (std::size_t i = 0; i < count; ++i) list.add(object(i), true, nullptr);
    KYRVector moved(std::move(list));
    EXPECT_EQ(list.getCount(), 0U);  // NOLINT(bugprone-use-after-move): that is what is tested
    EXPECT_TRUE(list.add(object(0), true, nullptr));
    EXPECT_EQ(moved.getCount(), count);
    EXPECT_FALSE(moved.add(object(1), true, nullptr));
    list = std::move(moved);
    EXPECT_EQ(list.getCount(), count);
    EXPECT_FALSE(list.add(object(1), true, nullptr));
    EXPECT_TRUE(moved.isEmpty());  // NOLINT(bugprone-use-after-move)
  }
}

TEST_F(KYRVectorTest, AnOrderedOneTakesTheEntriesOfAPlainOne) {
  KYRVector list;
  list.add(object(1), true, nullptr);
  list.add(object(0), true, nullptr);
  EXPECT_EQ(contentOf(KYROrderedVector(list)), contentOf(list));
}

TEST_F(KYRVectorTest, AWalkSeesWhatIsAddedOnTheWay) {
  KYRVector list;
  list.add(object(0), true, nullptr);
  for (unsigned int i = 0; i < list.getCount() && i < 100; ++i) list.add(object(i + 1), true, nullptr);
  EXPECT_EQ(list.getCount(), 101U);
}

TEST_F(KYRVectorTest, ManyUniqueAddsCostLinearComparisons) {
  KYRVector list;
  for (std::size_t i = 0; i < objects_.size(); ++i) ASSERT_TRUE(list.add(object(i), true, nullptr));
  for (std::size_t i = 0; i < objects_.size(); ++i) ASSERT_FALSE(list.add(object(i), true, nullptr));
  EXPECT_LT(list.getComparisonCount(), 2 * objects_.size() * 4);
}

TEST_F(KYRVectorTest, AStackOfUniqueEntriesStaysLinear) {
  KYRVector list;
  for (int round = 0; round < 20; ++round) {
    for (std::size_t i = 0; i < 2000; ++i) ASSERT_TRUE(list.add(object(i), true, nullptr));
    while (!list.isEmpty()) list.removeAt(list.getCount() - 1);
  }
  EXPECT_LT(list.getComparisonCount(), 20 * 2000 * 8U);
}

TEST_F(KYRVectorTest, EntriesInTheOrderOfMemoryNeedNoTable) {
  constexpr std::size_t count = 50000;
  KYRVector list(int{count});
  const AllocationProbe probe;
  for (std::size_t i = 0; i < count; ++i) ASSERT_TRUE(list.add(object(i), true, nullptr));
  EXPECT_LE(probe.getCount(), 2U);
  EXPECT_LT(list.getComparisonCount(), 2 * count);
}

// Blocks of memory are filled from their beginning and lie in any order.
TEST_F(KYRVectorTest, EntriesOfBlocksInAnyOrderNeedNoTable) {
  constexpr std::size_t blockSize = std::size_t{128} * 1024;
  constexpr std::size_t blockEntries = 500;
  const std::vector<char> memory(50 * blockSize);
  std::vector<std::size_t> blocks(50);
  std::iota(blocks.begin(), blocks.end(), 0U);
  std::shuffle(blocks.begin(), blocks.end(), std::mt19937(7));
  KYRVector list(int{50 * blockEntries});
  const AllocationProbe probe;
  for (std::size_t block : blocks) {
    for (std::size_t i = 0; i < blockEntries; ++i) {
      ASSERT_TRUE(list.add(&memory[block * blockSize + i * 8], true, nullptr));
    }
  }
  EXPECT_LE(probe.getCount(), 7U);  // room for the fifty runs, doubled six times
  for (std::size_t block : blocks) {
    for (std::size_t i = 0; i < 2 * blockEntries; ++i) {
      ASSERT_EQ(list.contains(&memory[block * blockSize + i * 8], nullptr), i < blockEntries);
    }
  }
}

// Each block before the one added last, so that its run comes first among all.
TEST_F(KYRVectorTest, FallingBlocksOfAFewEntriesStayLinear) {
  constexpr std::size_t blockEntries = 17;
  const std::size_t blocks = objects_.size() / blockEntries;
  KYRVector list;
  for (std::size_t block = blocks; block > 0; --block) {
    for (std::size_t i = 0; i < blockEntries; ++i) {
      ASSERT_TRUE(list.add(object((block - 1) * blockEntries + i), true, nullptr));
    }
  }
  EXPECT_LT(list.getComparisonCount(), 4 * objects_.size());
  for (std::size_t i = 0; i < blocks * blockEntries; ++i) ASSERT_TRUE(list.contains(object(i), nullptr));
}

TEST_F(KYRVectorTest, EntriesInTheOrderOfMemoryMayRepeatAndGo) {
  for (const bool isRepeated : {false, true}) {
    KYRVector list;
    for (std::size_t i = 0; i < 100; ++i) ASSERT_TRUE(list.add(object(2 * i), true, nullptr));
    ASSERT_TRUE(list.add(nullptr, true, nullptr));
    ASSERT_FALSE(list.add(nullptr, true, nullptr));
    if (isRepeated) {
      ASSERT_TRUE(list.add(object(50), false, nullptr));
    }
    KYRVector copy(list);
    list.removeAt(25);  // the entry 50
    EXPECT_EQ(list.contains(object(50), nullptr), isRepeated);
    EXPECT_FALSE(list.contains(object(51), nullptr));
    EXPECT_TRUE(list.contains(object(52), nullptr));
    EXPECT_TRUE(copy.contains(object(50), nullptr));
    EXPECT_TRUE(copy.add(object(51), true, nullptr));
    EXPECT_FALSE(copy.add(object(51), true, nullptr));
  }
}

TEST_F(KYRVectorTest, WithoutMemoryEntriesStillGo) {
  KYRVector list;
  for (std::size_t i = 0; i < 1000; ++i) ASSERT_TRUE(list.add(object(i), true, nullptr));
  {
    const AllocationFailure failing(0);
    EXPECT_THROW(list.contains(object(3), nullptr), std::bad_alloc);
    list.removeAt(3);
  }
  EXPECT_FALSE(list.contains(object(3), nullptr));
  EXPECT_TRUE(list.contains(object(4), nullptr));
  EXPECT_EQ(list.getCount(), 999U);
}

TEST_F(KYRVectorTest, TheLastEntryIsKnownWithoutATable) {
  KYRVector list(1000);
  const AllocationProbe probe;
  for (std::size_t i = 0; i < 1000; ++i) {
    ASSERT_TRUE(list.add(object(i), true, nullptr));
    ASSERT_FALSE(list.add(object(i), true, nullptr));
  }
  EXPECT_LE(probe.getCount(), 2U);
}

TEST_F(KYRVectorTest, OrdersOfManyKindsAreToldRight) {
  constexpr std::size_t count = 3000;
  std::mt19937 random(3);
  const auto far = [](std::size_t i) { return i * 97 % count * 30; };  // gaps on the way, wide ones back
  for (int kind = 0; kind < 5; ++kind) {
    KYRVector list;
    std::vector<bool> isIn(objects_.size());
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t at = kind == 0   ? count - i
                             : kind == 1 ? far(i)
                             : kind == 2 ? (i % 2 == 0 ? i : 90000 - i)
                             : kind == 3 ? random() % count
                                         : i / 40 * 1000 + i % 40;
      ASSERT_EQ(list.add(object(at), true, nullptr), !isIn[at]) << kind << ' ' << i;
      isIn[at] = true;
    }
    for (std::size_t i = 0; i < objects_.size(); ++i) {
      ASSERT_EQ(list.contains(object(i), nullptr), isIn[i]) << kind << ' ' << i;
    }
  }
}

TEST_F(KYRVectorTest, AListThatIsNeverAskedKeepsNoIndex) {
  KYRVector list(1000);
  const AllocationProbe probe;
  for (std::size_t i = 0; i < 1000; ++i) list.add(object(i), false, nullptr);
  EXPECT_EQ(probe.getCount(), 0U);
  EXPECT_EQ(list.getComparisonCount(), 0U);
}

TEST_F(KYRVectorTest, AFailedAddLeavesTheList) {
  for (std::size_t count = 0; count < 130; ++count) {
    KYRVector list;
    for (std::size_t i = 0; i < count; ++i) list.add(object(i), true, nullptr);
    for (std::size_t failure = 0; failure < 4; ++failure) {
      try {
        const AllocationFailure failing(failure);
        list.add(object(count), true, nullptr);
        break;
      } catch (const std::bad_alloc&) {
      }
      ASSERT_EQ(list.getCount(), count);
      ASSERT_FALSE(list.contains(object(count), nullptr));
    }
    ASSERT_EQ(list.getCount(), count + 1);
    ASSERT_FALSE(list.add(object(count), true, nullptr));
  }
}

// Many seeded steps beside a plain model of the list; duplicates and removals anywhere keep the
// index busy.
TEST_F(KYRVectorTest, BehavesAsAPlainListUnderRandomSteps) {
  std::mt19937 random(20260101);
  KYRVector list;
  std::vector<const void*> model;
  for (int step = 0; step < 20000; ++step) {
    const void* const entry = random() % 50 == 0 ? nullptr : object(random() % 60);
    const bool isPresent = std::find(model.begin(), model.end(), entry) != model.end();
    switch (random() % 5) {
      case 0:
        list.add(entry, false, nullptr);
        model.push_back(entry);
        break;
      case 1:
        ASSERT_EQ(list.add(entry, true, nullptr), !isPresent);
        if (!isPresent) model.push_back(entry);
        break;
      case 2:
        ASSERT_EQ(list.contains(entry, nullptr), isPresent);
        break;
      default:
        if (!model.empty() && model.size() > random() % 80) {
          const auto index = static_cast<unsigned int>(random() % model.size());
          list.removeAt(index);
          model.erase(model.begin() + index);
        }
    }
    if (random() % 2000 == 0) {
      list.empty();
      model.clear();
    }
    ASSERT_EQ(list.getCount(), model.size());
  }
  EXPECT_EQ(contentOf(list), model);
}

}  // namespace
