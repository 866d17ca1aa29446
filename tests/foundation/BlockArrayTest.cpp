// BlockArray: growth over block ends, and references that stay valid.
#include "foundation/BlockArray.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace {

TEST(BlockArray, GrowsOverBlocksAndMovesNothing) {
  BlockArray<std::size_t> array;
  const std::size_t count = 40 * BlockArray<std::size_t>::firstBlockSize + 1;
  std::vector<const std::size_t*> places;
  for (std::size_t i = 0; i < count; ++i) places.push_back(&array.appendMade([i] { return i; }));
  ASSERT_EQ(array.size(), count);
  for (std::size_t i = 0; i < count; ++i) {
    ASSERT_EQ(array[i], i);
    ASSERT_EQ(&array[i], places[i]);
  }
  EXPECT_EQ(array.getMemorySize(), count * sizeof(std::size_t));
}

TEST(BlockArray, SharesTheEntriesOfAnotherAndGoesOnInABlockOfItsOwn) {
  constexpr std::size_t blockSize = BlockArray<int>::firstBlockSize;
  BlockArray<int> other;
  for (int i = 0; i < static_cast<int>(2 * blockSize) + 3; ++i) other.emplaceBack(i);
  BlockArray<int> array;
  array.shareBlocks(other);
  EXPECT_EQ(array.size(), 4 * blockSize);  // where the block that is begun would end
  EXPECT_EQ(&array[2 * blockSize + 2], &other[2 * blockSize + 2]);
  EXPECT_EQ(array.getMemorySize(), 0U);
  array.emplaceBack(7);
  EXPECT_EQ(array[4 * blockSize], 7);
  EXPECT_EQ(array.getMemorySize(), sizeof(int));
}

TEST(BlockArray, SharesNothingOfAnEmptyOne) {
  const BlockArray<int> other;
  BlockArray<int> array;
  array.shareBlocks(other);
  EXPECT_EQ(array.size(), 0U);
  array.emplaceBack(7);
  EXPECT_EQ(array[0], 7);
}

TEST(BlockArray, AppendsRangesAcrossBlocks) {
  constexpr std::size_t blockSize = BlockArray<int>::firstBlockSize;
  BlockArray<int> other;
  for (int i = 0; i < static_cast<int>(3 * blockSize); ++i) other.emplaceBack(i);
  for (const std::size_t before : {std::size_t{0}, std::size_t{1}, blockSize - 1, blockSize}) {
    for (const std::size_t from : {std::size_t{0}, std::size_t{5}, blockSize - 1, blockSize}) {
      for (const std::size_t count : {std::size_t{0}, std::size_t{1}, blockSize, 2 * blockSize - 1}) {
        BlockArray<int> array;
        for (std::size_t i = 0; i < before; ++i) array.emplaceBack(-1);
        array.appendFrom(other, from, count);
        ASSERT_EQ(array.size(), before + count);
        for (std::size_t i = 0; i < count; ++i) ASSERT_EQ(array[before + i], other[from + i]);
      }
    }
  }
}

}  // namespace
